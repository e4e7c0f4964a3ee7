# Builds for WebAssembly with Debian's emscripten. The preset web sets the environment that it needs.
include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)

# Exceptions of WebAssembly itself are smaller and faster than those that JavaScript emulates.
set(CMAKE_C_FLAGS_INIT -fwasm-exceptions)
set(CMAKE_CXX_FLAGS_INIT -fwasm-exceptions)
set(CMAKE_EXE_LINKER_FLAGS_INIT -fwasm-exceptions)
