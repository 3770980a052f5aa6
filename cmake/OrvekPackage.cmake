# SPDX-License-Identifier: Apache-2.0
# What other projects build against: libraries, headers and the CMake package OrvekFinishing. It all
# belongs to the component "development", which can be installed without the programs.

include(CMakePackageConfigHelpers)

set(ORVEK_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/OrvekFinishing")

# orvek_install_library(TARGET NAME): installs it as OrvekFinishing::NAME.
function(orvek_install_library target name)
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
  install(TARGETS ${target} EXPORT OrvekFinishing
          LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development
          ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development)
endfunction()

# orvek_install_headers(FOLDER): installs its headers under include/orvek/FOLDER, except those that show
# what a library is made of.
function(orvek_install_headers folder)
  install(DIRECTORY "${CMAKE_SOURCE_DIR}/${folder}/"
          DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/orvek/${folder}" COMPONENT development
          FILES_MATCHING PATTERN "*.h"
          PATTERN "Transfer.h" EXCLUDE
          PATTERN "InactivityLimit.h" EXCLUDE
          PATTERN "ReplyCursor.h" EXCLUDE)
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
