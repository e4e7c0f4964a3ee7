# Builds for 64-bit ARM on Debian (packages g++-aarch64-linux-gnu and libxml2-dev:arm64), and runs what is built under QEMU
# (qemu-user-static).
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)

set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)  # for GoogleTest, which asks for it
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)

# Debian keeps the libraries of every architecture side by side.
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
set(ENV{PKG_CONFIG_LIBDIR} /usr/lib/aarch64-linux-gnu/pkgconfig:/usr/share/pkgconfig)

set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64-static)
