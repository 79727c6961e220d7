# SPDX-License-Identifier: GPL-2.0-or-later
# lumen_library(<folder> DEPENDS <libraries> SOURCES <files>)
#   A static library lumen_<folder> of one layer. Includes are written from src/.
# lumen_test(<folder> DEPENDS <libraries> SOURCES <files>)
#   One GoogleTest program test_<folder>, found by ctest.

function(_lumen_settings target)
  target_link_libraries(${target} PRIVATE lumen_warnings)
  target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  set_target_properties(${target} PROPERTIES AUTOMOC ON LINKER_LANGUAGE CXX)
endfunction()

function(lumen_library folder)
  cmake_parse_arguments(arg "" "" "DEPENDS;SOURCES" ${ARGN})
  add_library(lumen_${folder} STATIC ${arg_SOURCES})
  _lumen_settings(lumen_${folder})
  target_link_libraries(lumen_${folder} PUBLIC ${arg_DEPENDS})
endfunction()

function(lumen_test folder)
  cmake_parse_arguments(arg "" "" "DEPENDS;SOURCES" ${ARGN})
  add_executable(test_${folder} ${arg_SOURCES})
  _lumen_settings(test_${folder})
  target_include_directories(test_${folder} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(test_${folder} PRIVATE lumen_test_support ${arg_DEPENDS})
  include(GoogleTest)
  gtest_discover_tests(test_${folder}
    TEST_PREFIX ${folder}. DISCOVERY_TIMEOUT 60
    PROPERTIES TIMEOUT 300)
endfunction()
