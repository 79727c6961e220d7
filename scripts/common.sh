# SPDX-License-Identifier: GPL-2.0-or-later
# Shared by the scripts of this folder; sourced, never run.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
ROOT=$PWD

# What building needs, what the modules are built from, what the windows are drawn with.
BUILD_PACKAGES="g++ cmake ninja-build pkg-config qt6-base-dev libsqlite3-dev mdbtools-dev
  libcurl4-openssl-dev qtkeychain-qt6-dev python3-aiosmtpd openssl unzip poppler-utils
  libsword-dev zlib1g-dev libzip-dev libgtest-dev libgmock-dev libbenchmark-dev python3"
SOURCE_PACKAGES="sword-text-kjv sword-text-web sword-text-sparv sword-comm-mhcc sword-dict-naves dict-wn
  bibledit-data npm"
FONT_PACKAGES="fonts-nanum fonts-nanum-coding fonts-noto-core fonts-noto-cjk fonts-sil-ezra
  fonts-sil-galatia python3-fonttools libharfbuzz-bin libqt6svg6"
DISPLAY_PACKAGES="xvfb xdotool imagemagick"

say() { printf '%s\n' "$*"; }

as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# A package counts as installed when dpkg says so; npm may also come from elsewhere.
is_installed() {
  [ "$1" = npm ] && command -v npm >/dev/null && return 0
  [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

install_missing() {
  local missing=() package
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  say "Installing: ${missing[*]}"
  as_root env DEBIAN_FRONTEND=noninteractive apt-get update -qq ||
    say "The package lists could not be renewed; going on with those that are here."
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" >/dev/null
}

# build_preset <preset> [targets...]
build_preset() {
  local preset=$1 started=$SECONDS
  shift
  say "Building ($preset) ..."
  cmake --preset "$preset" >"$ROOT/build/configure-$preset.log" 2>&1 || {
    cat "$ROOT/build/configure-$preset.log"
    return 1
  }
  cmake --build --preset "$preset" ${@:+--target "$@"} >"$ROOT/build/build-$preset.log" 2>&1 || {
    tail -n 60 "$ROOT/build/build-$preset.log"
    return 1
  }
  say "Built in $((SECONDS - started)) s."
}

# build_fonts <folder>: the Hebrew and Greek fonts, unless they are newer than what makes them.
build_fonts() {
  local font source
  for font in OrvaneHeb OrvaneHebC OrvaneGrk; do
    for source in scripts/build-fonts /usr/share/fonts/truetype/{ezra/SILEOT,galatia/GalSILR}.ttf; do
      if [ ! -e "$1/$font.ttf" ] || [ "$source" -nt "$1/$font.ttf" ]; then
        say "Building the Hebrew and Greek fonts ..."
        scripts/build-fonts "$1"
        return
      fi
    done
  done
}

mkdir -p build
