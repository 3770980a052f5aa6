# SPDX-License-Identifier: Apache-2.0
# What every folder of the project shares: language level, warnings, sanitizers, where things land.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "" FORCE)
endif()

option(ORVEK_BENCH "Build the benchmarks" OFF)
option(ORVEK_FUZZ "Build the fuzzers (needs clang)" OFF)
option(ORVEK_CCACHE "Compile through ccache, where it is installed" OFF)
option(ORVEK_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)

include(GNUInstallDirs)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(ORVEK_BUNDLE_DIR "${CMAKE_BINARY_DIR}/OrvekFinishing.bundle")
set(ORVEK_PLUGIN_INSTALL_DIR "${CMAKE_INSTALL_LIBDIR}/orvek-print/plugins")

# ccache must be told that a precompiled header may be used by a source that defines more.
if(ORVEK_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  find_program(ORVEK_CCACHE_PROGRAM ccache)
  if(ORVEK_CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
      "${ORVEK_CCACHE_PROGRAM}")
  endif()
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
add_compile_definitions(QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_USE_QSTRINGBUILDER)
add_link_options(-Wl,--as-needed)
if(ORVEK_SANITIZE OR ORVEK_FUZZ)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  add_compile_definitions(ORVEK_SANITIZED)
endif()
if(ORVEK_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets UiTools DBus)
find_package(Cups REQUIRED)
# Where the print server keeps its programs, filters among them.
execute_process(COMMAND cups-config --serverbin OUTPUT_VARIABLE ORVEK_CUPS_SERVERBIN
                OUTPUT_STRIP_TRAILING_WHITESPACE)
if(NOT ORVEK_CUPS_SERVERBIN)
  set(ORVEK_CUPS_SERVERBIN /usr/lib/cups)
endif()

include(CTest)
if(BUILD_TESTING)
  find_package(GTest REQUIRED)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
  include(GoogleTest)
  include(OrvekTest)
endif()
