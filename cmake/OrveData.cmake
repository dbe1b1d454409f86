# The data folder of the components. Programs look for `share/orve` beside their own folder; in the build tree
# that is a link to the sources' `data/`.
set(ORVE_DATA_SOURCE ${PROJECT_SOURCE_DIR}/data)
if(EXISTS ${ORVE_DATA_SOURCE})
  file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/share/orve)
  file(CREATE_LINK ${ORVE_DATA_SOURCE} ${PROJECT_BINARY_DIR}/share/orve/wzfdata SYMBOLIC COPY_ON_ERROR)
endif()
