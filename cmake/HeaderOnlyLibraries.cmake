# Libraries of headers alone, which are the same for every system.

# Finds a package. When the build is for another system, this machine's headers serve too, but not the directory that
# they are in: with it, the compiler would see this machine's system headers. They are copied out of it.
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
