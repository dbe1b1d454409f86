# What an installation holds: the library, the engines, their headers, the components' data folder and a CMake
# package with the targets orve3_bs6399_2::orve3_bs6399_2 and orve3_bs6399_2::engines.
include(CMakePackageConfigHelpers)

set(orve_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/orve3_bs6399_2)

install(TARGETS orve3_bs6399_2 orve_engines EXPORT orve3_bs6399_2Targets)
install(DIRECTORY library/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orve3_bs6399_2
  FILES_MATCHING PATTERN "*.h")
install(DIRECTORY engines/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orve3_bs6399_2/engines
  FILES_MATCHING PATTERN "*.h")
if(EXISTS ${ORVE_DATA_SOURCE})
  install(DIRECTORY ${ORVE_DATA_SOURCE}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/orve/wzfdata)
endif()
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})

install(EXPORT orve3_bs6399_2Targets NAMESPACE orve3_bs6399_2:: DESTINATION ${orve_package_dir})
configure_package_config_file(cmake/orve3_bs6399_2Config.cmake.in
  ${PROJECT_BINARY_DIR}/orve3_bs6399_2Config.cmake INSTALL_DESTINATION ${orve_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/orve3_bs6399_2ConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/orve3_bs6399_2Config.cmake
  ${PROJECT_BINARY_DIR}/orve3_bs6399_2ConfigVersion.cmake
  DESTINATION ${orve_package_dir})
