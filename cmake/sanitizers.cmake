# SPDX-License-Identifier: GPL-2.0-or-later
option(LUMEN_SANITIZE "Build with address and undefined-behaviour sanitizers" OFF)
if(LUMEN_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  # The import child limits its address space; a sanitizer's shadow memory does not fit in it.
  add_compile_definitions(LUMEN_SANITIZE)
endif()
