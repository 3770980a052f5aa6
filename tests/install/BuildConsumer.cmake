# SPDX-License-Identifier: Apache-2.0
# Installs into a fresh folder, moves that, and builds and runs the consumer there: nothing of the build
# tree may be needed.

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGN}\n${output}")
  endif()
endfunction()

set(place "${BUILD}/install-test")
file(REMOVE_RECURSE "${place}")
foreach(component runtime development)
  run("${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${place}/first" --component ${component})
endforeach()
file(RENAME "${place}/first" "${place}/prefix")
set(flags "")
if(SANITIZE)
  set(flags "-fsanitize=address,undefined")
endif()
run("${CMAKE_COMMAND}" -S "${CONSUMER}" -B "${place}/consumer" -G Ninja
    -D "CMAKE_PREFIX_PATH=${place}/prefix" -D "CMAKE_CXX_COMPILER=${COMPILER}"
    -D "CMAKE_CXX_FLAGS=${flags}")
run("${CMAKE_COMMAND}" --build "${place}/consumer")
run("${place}/consumer/consumer")
