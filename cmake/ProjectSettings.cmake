# What all targets of this project are compiled with. Nothing of it reaches a program that uses the library.

# A user who runs cmake without a preset expects an optimised build.
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Kind of build" FORCE)
endif()

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# Windows looks for the libraries of a program beside it, and has no prefix for them.
if(WIN32)
  set(CMAKE_SHARED_LIBRARY_PREFIX "")
  set(CMAKE_SHARED_MODULE_PREFIX "")
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
  set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
endif()

# Lists of sanitizers, such as "address,undefined". Every finding ends the program.
set(VENDORINFOFILE_SANITIZE "" CACHE STRING "Sanitizers to build everything with, separated by commas")

add_library(project_settings INTERFACE)
target_compile_features(project_settings INTERFACE cxx_std_20)
if(WIN32)
  # Text is Unicode, and windows.h brings no more than is asked for.
  target_compile_definitions(project_settings INTERFACE UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN)
endif()
if(MSVC)
  # C4251, C4275: that exported classes have members and bases of the standard library is as it must be.
  target_compile_options(project_settings INTERFACE /W4 /permissive- /utf-8 /wd4251 /wd4275)
  target_compile_definitions(project_settings INTERFACE _CRT_SECURE_NO_WARNINGS)
else()
  target_compile_options(project_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
    -Woverloaded-virtual)
endif()

# What the library reads comes from anywhere. A mistake of its own that a file finds is to end the process rather than be
# made use of.
if(NOT MSVC)
  target_compile_definitions(project_settings INTERFACE _GLIBCXX_ASSERTIONS)
endif()
if(UNIX AND NOT APPLE)
  target_compile_options(project_settings INTERFACE -fstack-protector-strong)
  # It needs an optimised build, and the sanitizers watch the same calls themselves.
  if(NOT VENDORINFOFILE_SANITIZE)
    target_compile_options(project_settings INTERFACE
      $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE$<SEMICOLON>-D_FORTIFY_SOURCE=2>)
  endif()
  target_link_options(project_settings INTERFACE LINKER:-z,relro,-z,now,-z,noexecstack)
endif()

if(VENDORINFOFILE_SANITIZE)
  add_compile_options(-fsanitize=${VENDORINFOFILE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${VENDORINFOFILE_SANITIZE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # With the sanitizers' code in between, g++ no longer sees that std::regex initialises what it uses.
    add_compile_options(-Wno-maybe-uninitialized)
  endif()
endif()

# Every run adds to the counts of the runs before it; each program and library has a file of them. Counts that threads
# write over one another would let branches appear that were never taken.
option(VENDORINFOFILE_COVERAGE "Count what is run of the sources, with clang++, for scripts/coverage.sh" OFF)
if(VENDORINFOFILE_COVERAGE)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "VENDORINFOFILE_COVERAGE needs clang++; ${CMAKE_CXX_COMPILER} is another compiler")
  endif()
  add_compile_options(
    "-fprofile-instr-generate=${PROJECT_BINARY_DIR}/coverage/%m.profraw" -fprofile-update=atomic -fcoverage-mapping)
  add_link_options(-fprofile-instr-generate)
endif()

# Keeps instantiations of the standard library's templates, which are visible by default, out of the library's
# interface: only what the map names is exported.
function(project_export_only target map)
  if(UNIX AND NOT APPLE)
    target_link_options(${target} PRIVATE "LINKER:--version-script=${map}")
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${map}")
  endif()
endfunction()
