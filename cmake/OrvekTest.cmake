# SPDX-License-Identifier: Apache-2.0
# orvek_add_test(NAME SOURCES ... LIBS ... [TIMEOUT SECONDS]): one GoogleTest program, each of its tests
# known to CTest; or, where all are run anyway, known as a whole: under the sanitizers a program takes
# longer to start than most tests do to run.

option(ORVEK_WHOLE_TESTS "Run each test program once, with all of its tests" OFF)

# Those that may take long begin first.
function(orvek_add_whole_test name timeout)
  add_test(NAME ${name} COMMAND ${name})
  math(EXPR whole_timeout "600 + ${timeout}")
  set_tests_properties(${name} PROPERTIES TIMEOUT ${whole_timeout} COST ${timeout})
endfunction()

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
  set(environment "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
  if(ORVEK_WHOLE_TESTS)
    orvek_add_whole_test(${name} ${ARG_TIMEOUT})
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "${environment}")
    return()
  endif()
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST NO_PRETTY_VALUES
    PROPERTIES TIMEOUT ${ARG_TIMEOUT} ENVIRONMENT "${environment}")
endfunction()
