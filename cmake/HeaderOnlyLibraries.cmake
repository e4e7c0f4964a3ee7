# Header-only libraries, which are the same for every system.

# Finds a package. A cross build can use this machine's headers too, but copied to a directory of their own: in their
# original one, the compiler would also see this machine's system headers.
#   project_find_header_only(<package> <version> TARGET <target> HEADERS <directory under the include directory>)
function(project_find_header_only package version)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "TARGET;HEADERS" "")
  if(NOT CMAKE_CROSSCOMPILING)
    find_package(${package} ${version} REQUIRED GLOBAL)
    return()
  endif()
  find_path(${package}_INCLUDE_DIR "${arg_HEADERS}" NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  set(copy "${PROJECT_BINARY_DIR}/header-only")
  file(COPY "${${package}_INCLUDE_DIR}/${arg_HEADERS}" DESTINATION "${copy}")
  add_library(${arg_TARGET} INTERFACE IMPORTED GLOBAL)
  target_include_directories(${arg_TARGET} INTERFACE "${copy}")
endfunction()
