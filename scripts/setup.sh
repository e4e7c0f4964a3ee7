#!/usr/bin/env bash
# Installs the Debian packages that a task needs and that are not there yet. Works as root or with sudo.
#
#   scripts/setup.sh build | test | check | windows | package | bench
#
# "test" includes "build", "check" includes both, "windows" is for building and testing for Windows, "package" for making
# the packages of both systems, "bench" for measuring.
set -euo pipefail

build_packages=(g++ cmake ninja-build libcli11-dev libxml2-dev nlohmann-json3-dev)
test_packages=(libgtest-dev libgmock-dev pkg-config python3)
check_packages=(clang cppcheck clang-format clang-tidy libclang-rt-14-dev llvm)
windows_packages=(cmake ninja-build g++-mingw-w64-x86-64-posix googletest libcli11-dev nlohmann-json3-dev wine wine64)
package_packages=(dpkg-dev file python3 unzip zip)
bench_packages=(libbenchmark-dev libxml2-utils valgrind)

case "${1:-}" in
  build) wanted=("${build_packages[@]}") ;;
  test) wanted=("${build_packages[@]}" "${test_packages[@]}") ;;
  check) wanted=("${build_packages[@]}" "${test_packages[@]}" "${check_packages[@]}") ;;
  windows) wanted=("${windows_packages[@]}") ;;
  package) wanted=("${build_packages[@]}" "${windows_packages[@]}" "${package_packages[@]}") ;;
  bench) wanted=("${build_packages[@]}" "${bench_packages[@]}") ;;
  *) echo "usage: scripts/setup.sh build | test | check | windows | package | bench" >&2; exit 2 ;;
esac

is_installed() { [ "$(dpkg-query -W -f '${db:Status-Abbrev}' "$1" 2>/dev/null)" = 'ii ' ]; }

# Where there is a newer one that is twice as fast, that; both find nothing in what is committed.
[ "$1" != check ] || [ -z "$(apt-cache madison clang-tidy-22 2>/dev/null)" ] || wanted+=(clang-tidy-22)

missing=()
for package in "${wanted[@]}"; do
  is_installed "$package" || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

if [ "$(id -u)" -eq 0 ]; then
  as_root=()
elif command -v sudo >/dev/null; then
  as_root=(sudo)
else
  echo "These packages are missing: ${missing[*]}" >&2
  echo "Install them as root, or install sudo." >&2
  exit 1
fi

echo "==> Installing ${missing[*]}"
# The lists of a fresh machine may be missing or old.
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
