# Compiles each header of the library and of the engines by itself, so that none leans on what another file
# happened to include before it.
file(GLOB_RECURSE orve_headers CONFIGURE_DEPENDS
  RELATIVE ${PROJECT_SOURCE_DIR} library/*.h engines/*.h)
set(orve_header_sources "")
foreach(header ${orve_headers})
  string(REPLACE "/" "_" name ${header})
  set(source ${PROJECT_BINARY_DIR}/headers/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "#include \"${PROJECT_SOURCE_DIR}/${header}\"\n")
  list(APPEND orve_header_sources ${source})
endforeach()
add_library(orve_header_check OBJECT ${orve_header_sources})
target_link_libraries(orve_header_check PRIVATE orve_compile orve_engines orve3_bs6399_2)
