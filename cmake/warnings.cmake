# SPDX-License-Identifier: GPL-2.0-or-later
# Warnings are errors in everything of ours; headers of libraries are system headers.
add_library(lumen_warnings INTERFACE)
target_compile_options(lumen_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
target_compile_definitions(lumen_warnings INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_URL_CAST_FROM_STRING)
