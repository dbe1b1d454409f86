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
set(ORVE_COMPONENTS orve3_bs6399_2 engines)
foreach(target IN ITEMS automation c c_static)
  if(TARGET orve3_bs6399_2::${target})
    list(APPEND ORVE_COMPONENTS ${target})
  endif()
endforeach()
list(JOIN ORVE_COMPONENTS ", " ORVE_COMPONENTS)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})

# windcase carries two header libraries inside, whose licences ask for their notices beside the binary. The notices
# are those of the packages that were compiled in; another system names its own files.
if(ORVE_BUILD_WINDCASE)
  foreach(carried CLI11:libcli11-dev nlohmann-json:nlohmann-json3-dev)
    string(REPLACE ":" ";" carried ${carried})
    list(GET carried 0 name)
    list(GET carried 1 package)
    find_file(ORVE_NOTICE_${name} copyright PATHS /usr/share/doc/${package} NO_DEFAULT_PATH
      DOC "Licence of ${name}, installed with windcase")
    if(NOT ORVE_NOTICE_${name})
      message(WARNING "No licence of ${name} is installed with windcase: set ORVE_NOTICE_${name} to its file")
      continue()
    endif()
    install(FILES ${ORVE_NOTICE_${name}} DESTINATION ${CMAKE_INSTALL_DOCDIR}/licences RENAME ${name}.txt)
  endforeach()
endif()

install(EXPORT orve3_bs6399_2Targets NAMESPACE orve3_bs6399_2:: DESTINATION ${orve_package_dir})
configure_package_config_file(cmake/orve3_bs6399_2Config.cmake.in
  ${PROJECT_BINARY_DIR}/orve3_bs6399_2Config.cmake INSTALL_DESTINATION ${orve_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/orve3_bs6399_2ConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/orve3_bs6399_2Config.cmake
  ${PROJECT_BINARY_DIR}/orve3_bs6399_2ConfigVersion.cmake
  DESTINATION ${orve_package_dir})

# Takes back what the last installation from this build folder wrote.
if(NOT TARGET uninstall)
  add_custom_target(uninstall
    COMMAND ${CMAKE_COMMAND} -DMANIFEST=${CMAKE_BINARY_DIR}/install_manifest.txt
      -P ${CMAKE_CURRENT_LIST_DIR}/OrveUninstall.cmake
    VERBATIM)
endif()
