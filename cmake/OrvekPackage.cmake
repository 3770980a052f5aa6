# SPDX-License-Identifier: Apache-2.0
# What is installed, in three components: "runtime" is what programs need to run, "filter" the CUPS filter, for
# print servers alone, "development" what other projects build against: headers, static libraries and the
# CMake package OrvekFinishing.

include(CMakePackageConfigHelpers)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME runtime)
set(ORVEK_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/OrvekFinishing")

# orvek_find_libraries_in(TARGET FOLDER): once installed, TARGET finds our libraries in FOLDER ("." is its
# own), wherever the whole is moved to. Who packages has the last word with CMAKE_INSTALL_RPATH.
function(orvek_find_libraries_in target folder)
  if(NOT DEFINED CMAKE_INSTALL_RPATH)
    string(REGEX REPLACE "/\\.$" "" place "$ORIGIN/${folder}")
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "${place}")
  endif()
endfunction()

# orvek_install_library(TARGET NAME HEADERS ...): installs it as OrvekFinishing::NAME, and those of its
# headers that don't show what the library is made of, under include/orvek as in the source tree.
function(orvek_install_library target name)
  list(TRANSFORM ARGN PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/" OUTPUT_VARIABLE headers)
  target_sources(${target} PUBLIC
    FILE_SET HEADERS BASE_DIRS "${CMAKE_SOURCE_DIR}" FILES ${headers})
  set_target_properties(${target} PROPERTIES
    EXPORT_NAME ${name} VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  orvek_find_libraries_in(${target} ".")
  install(TARGETS ${target} EXPORT OrvekFinishing
          LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
                  COMPONENT runtime NAMELINK_COMPONENT development
          ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development
          FILE_SET HEADERS DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/orvek" COMPONENT development)
endfunction()

configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/OrvekFinishingConfig.cmake.in"
  "${CMAKE_BINARY_DIR}/OrvekFinishingConfig.cmake" INSTALL_DESTINATION "${ORVEK_PACKAGE_DIR}")
write_basic_package_version_file("${CMAKE_BINARY_DIR}/OrvekFinishingConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES "${CMAKE_BINARY_DIR}/OrvekFinishingConfig.cmake"
              "${CMAKE_BINARY_DIR}/OrvekFinishingConfigVersion.cmake"
        DESTINATION "${ORVEK_PACKAGE_DIR}" COMPONENT development)
install(EXPORT OrvekFinishing NAMESPACE OrvekFinishing:: FILE OrvekFinishingTargets.cmake
        DESTINATION "${ORVEK_PACKAGE_DIR}" COMPONENT development)
