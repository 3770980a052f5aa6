# SPDX-License-Identifier: Apache-2.0
# What makes a fault in the code hard to exploit, in every optimised build: read-only relocations bound
# at the start, position-independent programs, guarded stacks, bounds known to the compiler checked, and
# branches that land where they may. tools/check-hardening.py looks for each in the binaries.

include(CheckCXXCompilerFlag)
include(CheckPIESupported)
check_pie_supported()

string(TOUPPER "${CMAKE_BUILD_TYPE}" type)
set(flags "${CMAKE_CXX_FLAGS} ${CMAKE_CXX_FLAGS_${type}}")
# The sanitizers watch the same places themselves; without optimisation the compiler knows no bounds.
set(ORVEK_HARDENED OFF)
if(flags MATCHES "-O[123s]" AND NOT flags MATCHES "-O0" AND NOT ORVEK_SANITIZE AND NOT ORVEK_FUZZ)
  set(ORVEK_HARDENED ON)
endif()

if(ORVEK_HARDENED)
  add_compile_options(-fstack-protector-strong)
  check_cxx_compiler_flag(-fcf-protection ORVEK_HAS_CF_PROTECTION)
  if(ORVEK_HAS_CF_PROTECTION)
    add_compile_options(-fcf-protection)
  endif()
  if(NOT flags MATCHES "_FORTIFY_SOURCE")
    add_compile_definitions(_FORTIFY_SOURCE=2)
  endif()
  add_link_options(LINKER:-z,relro,-z,now)
endif()
