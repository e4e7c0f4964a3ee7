# Run by CPack before it makes a package. The zsh of Debian looks for the completion of packages in a folder of its own.
if(CPACK_GENERATOR STREQUAL "DEB")
  file(GLOB_RECURSE scripts "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/_vif")
  foreach(script IN LISTS scripts)
    cmake_path(GET script PARENT_PATH folder)
    cmake_path(GET folder PARENT_PATH parent)
    file(RENAME "${folder}" "${parent}/vendor-completions")
  endforeach()
endif()
