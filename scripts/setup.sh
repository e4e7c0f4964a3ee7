#!/usr/bin/env bash
# Installs the packages that a task needs and this system lacks, by apt, as root or with sudo. Where there is no apt, it
# says what is needed and installs nothing.
#
#   scripts/setup.sh build | test | check | windows | arm64 | package | bench
#
# "test" includes "build", "check" includes both, "windows" and "arm64" are for building and testing for other systems,
# "package" is for making the packages of Linux and Windows, "bench" for measuring. CXX and CXXFLAGS choose the compiler
# and the standard library, as they do for CMake: CXX=clang++ CXXFLAGS=-stdlib=libc++.
set -euo pipefail

task=${1:-}
case $task in
  build | test | check | windows | arm64 | package | bench) ;;
  *) echo "usage: scripts/setup.sh build | test | check | windows | arm64 | package | bench" >&2; exit 2 ;;
esac

if ! command -v apt-get >/dev/null; then
  cat >&2 <<'END'
==> This system has no apt: its own packages must provide what is missing.
    To build: g++ 12 or clang++ 14, CMake 3.25, Ninja, libxml2 2.9.10 with its headers, CLI11, nlohmann-json 3.11
    To test: GoogleTest with GoogleMock, pkg-config, Python 3
    For anything else: what scripts/setup.sh lists by Debian's names
END
  exit 0
fi

if [ "$(id -u)" -eq 0 ]; then
  as_root=()
elif command -v sudo >/dev/null; then
  as_root=(sudo)
else
  as_root=(cannot_install)
fi
cannot_install() {
  echo "These packages are missing: ${missing[*]:-unknown, as there are no lists of packages}" >&2
  echo "Install them as root, or install sudo." >&2
  exit 1
}
update_lists() { "${as_root[@]}" apt-get update -qq; }

compiler_packages=(g++)
googletest_packages=(libgtest-dev libgmock-dev)
case ${CXX:-g++} in
  g++*) compiler_packages=("${CXX:-g++}") ;;
  clang++*) compiler_packages=("${CXX/clang++/clang}") ;;
  *) compiler_packages=() ;;  # the caller's own
esac
if [[ ${CXXFLAGS:-} == *-stdlib=libc++* ]]; then
  compiler_packages+=(libc++-dev libc++abi-dev)
  googletest_packages=(googletest)  # the sources, as the libraries are built for libstdc++
fi

header_packages=(libcli11-dev nlohmann-json3-dev)
build_packages=("${compiler_packages[@]}" cmake ninja-build libxml2-dev "${header_packages[@]}")
test_packages=("${build_packages[@]}" "${googletest_packages[@]}" pkg-config python3)
windows_packages=(cmake ninja-build g++-mingw-w64-x86-64-posix googletest wine wine64 "${header_packages[@]}")
case $task in
  build) wanted=("${build_packages[@]}") ;;
  test) wanted=("${test_packages[@]}") ;;
  check)
    # A fresh system has no lists that could be asked for versions.
    [ -n "$(apt-cache madison clang)" ] || update_lists
    clang=$(apt-cache depends clang | grep -om 1 'clang-[0-9]*')
    wanted=("${test_packages[@]}" clang clang-format clang-tidy cppcheck "lib${clang/-/-rt-}-dev" llvm)
    # Where there is a newer one that is twice as fast, that; both find nothing in what is committed.
    [ -z "$(apt-cache madison clang-tidy-22)" ] || wanted+=(clang-tidy-22)
    ;;
  windows) wanted=("${windows_packages[@]}") ;;
  arm64) wanted=(cmake ninja-build g++-aarch64-linux-gnu googletest libxml2-dev:arm64 qemu-user-static "${header_packages[@]}") ;;
  package) wanted=("${build_packages[@]}" "${windows_packages[@]}" dpkg-dev file python3 unzip zip) ;;
  bench) wanted=("${build_packages[@]}" libbenchmark-dev libxml2-utils valgrind) ;;
esac

is_installed() { [ "$(dpkg-query -W -f '${db:Status-Abbrev}' "$1" 2>/dev/null)" = 'ii ' ]; }

missing=()
for package in "${wanted[@]}"; do
  is_installed "$package" || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

echo "==> Installing ${missing[*]}"
[ "$task" != arm64 ] || "${as_root[@]}" dpkg --add-architecture arm64
# The lists may be missing or old.
update_lists
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
