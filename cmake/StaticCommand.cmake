# The vif command as one file: static, with the schemas inside, so that it runs on every Linux system of its architecture,
# whatever libraries that has. The libraries cannot be installed from such a build.
if(NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
  message(FATAL_ERROR "VENDORINFOFILE_STATIC_COMMAND is for Linux")
endif()
set(library_type STATIC)
set(VENDORINFOFILE_EMBED_SCHEMAS ON)
set(VENDORINFOFILE_INSTALL OFF)
set(VENDORINFOFILE_BUILD_EXAMPLES OFF)

find_library(LIBXML2_LIBRARY libxml2.a REQUIRED)

# Debian's libxml2 asks ICU for encodings that iconv does not know. ICU's tables would take 30 MB, so every function of
# ICU is replaced by one that knows no encoding. The names of ICU's functions end with its version.
execute_process(COMMAND "${CMAKE_NM}" --undefined-only "${LIBXML2_LIBRARY}"
  OUTPUT_VARIABLE undefined ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "(ucnv|UCNV)_[A-Za-z_0-9]+" icu_functions "${undefined}")
list(REMOVE_DUPLICATES icu_functions)
list(TRANSFORM icu_functions PREPEND "LINKER:--defsym=" OUTPUT_VARIABLE icu_options)
list(TRANSFORM icu_options APPEND "=OpenNoIcuConverter")

# In a library of objects, because several programs need them.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
set(encoding_tables "${PROJECT_BINARY_DIR}/static/EncodingTables.h")
add_custom_command(OUTPUT "${encoding_tables}"
  COMMAND "${CMAKE_COMMAND}" -E make_directory "${PROJECT_BINARY_DIR}/static"
  COMMAND "${Python3_EXECUTABLE}" -B "${PROJECT_SOURCE_DIR}/static/encoding_tables.py" "${encoding_tables}"
  DEPENDS "${PROJECT_SOURCE_DIR}/static/encoding_tables.py"
  VERBATIM)
add_library(StaticEncodings OBJECT static/Iconv.cpp static/NoIcu.cpp "${encoding_tables}")
target_include_directories(StaticEncodings PRIVATE host "${PROJECT_BINARY_DIR}/static")
target_link_libraries(StaticEncodings PRIVATE VendorInfoFileSettings)

# Links a program so that it needs no library, and none of the modules that glibc loads for encodings.
function(project_link_statically target)
  target_link_libraries(${target} PRIVATE StaticEncodings)
  # The linker warns of libxml2's calls for the network, which nothing here reaches.
  target_link_options(${target} PRIVATE -static-pie ${icu_options} "LINKER:-Map,${PROJECT_BINARY_DIR}/${target}.map")
endfunction()
