# SPDX-License-Identifier: Apache-2.0
# orvek_add_test(NAME SOURCES ... LIBS ... [TIMEOUT SECONDS]): one GoogleTest program, each of its tests known to CTest.

function(orvek_add_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LIBS;DEPENDS" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 60)
  endif()
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE ${ARG_LIBS} orvek-test-main)
  target_compile_definitions(${name} PRIVATE
    ORVEK_SOURCE_DIR="${CMAKE_SOURCE_DIR}"
    ORVEK_BINARY_DIR="${CMAKE_BINARY_DIR}"
    ORVEK_BUNDLE_DIR="${ORVEK_BUNDLE_DIR}")
  if(ARG_DEPENDS)
    add_dependencies(${name} ${ARG_DEPENDS})
  endif()
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST NO_PRETTY_VALUES
    PROPERTIES TIMEOUT ${ARG_TIMEOUT} ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
endfunction()
