# Settings for all targets of this project. None of them reach a program that uses the library, or a project that
# includes this one.

# A user who runs cmake without a preset expects an optimised build. An enclosing project decides for itself.
if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Kind of build" FORCE)
endif()

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
# A page has one module, in which all libraries are static.
if(NOT EMSCRIPTEN)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
endif()
# Whatever the build directory, the files have the same build ID.
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
if(MINGW)
  add_link_options(LINKER:--no-insert-timestamp)  # the same sources give the same bytes
endif()

# Windows looks for a program's libraries next to it, and their names have no prefix.
if(WIN32)
  set(CMAKE_SHARED_LIBRARY_PREFIX "")
  set(CMAKE_SHARED_MODULE_PREFIX "")
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
  set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
endif()

# For example "address,undefined". Every finding ends the program.
set(VENDORINFOFILE_SANITIZE "" CACHE STRING "Sanitizers to build everything with, separated by commas")

add_library(VendorInfoFileSettings INTERFACE)
target_compile_features(VendorInfoFileSettings INTERFACE cxx_std_20)
if(WIN32)
  # Text is Unicode, and windows.h declares no more than is needed.
  target_compile_definitions(VendorInfoFileSettings INTERFACE UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN)
endif()
if(MSVC)
  # C4251, C4275: exported classes must have members and bases from the standard library.
  target_compile_options(VendorInfoFileSettings INTERFACE /W4 /permissive- /utf-8 /wd4251 /wd4275)
  target_compile_definitions(VendorInfoFileSettings INTERFACE _CRT_SECURE_NO_WARNINGS)
else()
  target_compile_options(VendorInfoFileSettings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
    -Woverloaded-virtual)
endif()

# Without this, files of more than 2 GB cannot be opened on 32-bit systems.
if(UNIX AND NOT EMSCRIPTEN AND CMAKE_SIZEOF_VOID_P EQUAL 4)
  target_compile_definitions(VendorInfoFileSettings INTERFACE _FILE_OFFSET_BITS=64)
endif()

# The library reads files from anywhere. If one of them triggers a bug, the process must end rather than be exploited.
if(NOT MSVC)
  target_compile_definitions(VendorInfoFileSettings INTERFACE _GLIBCXX_ASSERTIONS)
endif()
if(UNIX AND NOT APPLE AND NOT EMSCRIPTEN)
  target_compile_options(VendorInfoFileSettings INTERFACE -fstack-protector-strong)
  # A library that has a unique symbol is never unloaded.
  target_compile_options(VendorInfoFileSettings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
  # If the user's flags set this, they decide. The sanitizers check the same calls themselves.
  string(TOUPPER "CMAKE_CXX_FLAGS_${CMAKE_BUILD_TYPE}" flags_of_build_type)
  if(NOT VENDORINFOFILE_SANITIZE AND NOT "${CMAKE_CXX_FLAGS} ${${flags_of_build_type}}" MATCHES "_FORTIFY_SOURCE")
    target_compile_options(VendorInfoFileSettings INTERFACE "SHELL:-include \"${CMAKE_CURRENT_LIST_DIR}/Fortify.h\"")
  endif()
  target_link_options(VendorInfoFileSettings INTERFACE LINKER:-z,relro,-z,now,-z,noexecstack)
endif()

if(EMSCRIPTEN)
  # Its compiler spends most of its time on the headers of the standard library.
  target_precompile_headers(VendorInfoFileSettings INTERFACE
    <algorithm> <filesystem> <functional> <map> <memory> <optional> <regex> <span> <string> <string_view> <vector>)
endif()

if(VENDORINFOFILE_SANITIZE)
  add_compile_options(-fsanitize=${VENDORINFOFILE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${VENDORINFOFILE_SANITIZE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # With the sanitizers' code in between, g++ no longer sees that std::regex initialises what it uses.
    add_compile_options(-Wno-maybe-uninitialized)
  endif()
endif()

# Each program and library has a file of counts, to which every run adds. The counts are atomic: if threads overwrote
# each other's, branches could appear that were never taken.
option(VENDORINFOFILE_COVERAGE "Measure coverage, with clang++, for scripts/coverage.sh" OFF)
if(VENDORINFOFILE_COVERAGE)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "VENDORINFOFILE_COVERAGE needs clang++, not ${CMAKE_CXX_COMPILER}")
  endif()
  add_compile_options(
    "-fprofile-instr-generate=${PROJECT_BINARY_DIR}/coverage/%m.profraw" -fprofile-update=atomic -fcoverage-mapping)
  add_link_options(-fprofile-instr-generate)
endif()

# The ABI version, in the file names of shared libraries and the versions of their symbols: it tells apart libraries
# that cannot replace each other. Before 1.0, every minor version may break the previous one.
set(VENDORINFOFILE_ABI ${PROJECT_VERSION_MAJOR})
if(PROJECT_VERSION_MAJOR EQUAL 0)
  set(VENDORINFOFILE_ABI ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
endif()

# Sets a shared library's version, and keeps everything that its map does not name out of its interface, such as
# instantiations of the standard library's templates, which are visible by default.
function(project_set_interface target map)
  set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${VENDORINFOFILE_ABI})
  if(UNIX AND NOT APPLE AND NOT EMSCRIPTEN)
    set(versioned_map "${PROJECT_BINARY_DIR}/${target}.map")
    configure_file("${map}" "${versioned_map}" @ONLY)
    target_link_options(${target} PRIVATE "LINKER:--version-script=${versioned_map}")
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${versioned_map}")
  endif()
endfunction()
