#!/usr/bin/env bash
# Installs the packages that a task needs and this system lacks, with apt, as root or with sudo. Without apt it only
# says what is needed.
#
#   scripts/setup.sh build | test | check | windows | arm64 | package | bench | browser | languages | python | docs |
#                    manual | web | reproducible
#
# "test" includes "build", and "check" includes both. "windows" and "arm64" are for building and testing for other
# systems, "package" for building and checking the packages, "bench" for measuring, "browser" for testing pages in a
# browser, "languages" for programs in other languages, "python" for building and testing the Python package, "docs" for
# building the site of the documentation, "manual" for testing manual pages and the completion of shells, "web" for
# building the page that reads VIFs, "reproducible" for comparing two builds of the packages. "package" and "browser" also
# take the npm packages that a package-lock.json in tests/ names. CXX and CXXFLAGS choose the compiler and the standard
# library, as they do for CMake: CXX=clang++ CXXFLAGS=-stdlib=libc++.
set -euo pipefail

task=${1:-}
case $task in
  build | test | check | windows | arm64 | package | bench | browser | languages | python | docs | manual | web | \
    reproducible) ;;
  *)
    sed -n 's/^#   \(scripts.*\)/usage: \1/p; s/^#    \( .*\)/       \1/p' "$0" >&2
    exit 2
    ;;
esac

# Into node_modules of a folder in tests/, unless what its lock file names is there. Nothing that the packages bring is
# run.
install_npm_packages() {
  local folder
  folder=$(dirname "$0")/../tests/$1
  local installed=$folder/node_modules/installed-lock.json
  ! cmp -s "$folder/package-lock.json" "$installed" || return 0
  echo "==> Installing the npm packages of tests/$1"
  npm ci --prefix "$folder" --ignore-scripts --no-audit --no-fund --loglevel error
  cp "$folder/package-lock.json" "$installed"
}

if ! command -v apt-get >/dev/null; then
  cat >&2 <<'END'
==> This system has no apt. Install what is missing from its own packages.
    To build: g++ 12 or clang++ 14, CMake 3.25, Ninja, libxml2 2.9.10 with its headers, CLI11, nlohmann-json 3.11
    To test: GoogleTest with GoogleMock, pkg-config, Python 3
    To test pages in a browser: Chromium, Node.js 18, npm
    To build the site: doxygen 1.9.4, doxygen-awesome-css, awk, Python 3
    For the page that reads VIFs: emscripten 3.1.6, Node.js 18, libxml2 built with it
    For Python: cffi, pip, setuptools, wheel; to test it also pytest and mypy
    For other tasks: the packages that scripts/setup.sh lists, under their Debian names
END
  if [ "$task" = browser ] && command -v npm >/dev/null; then install_npm_packages browser; fi
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
  echo "These packages are missing: ${missing[*]:-unknown, because there are no package lists}" >&2
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
  googletest_packages=(googletest)  # the sources, because the libraries are built for libstdc++
fi

header_packages=(libcli11-dev nlohmann-json3-dev)
build_packages=("${compiler_packages[@]}" cmake ninja-build libxml2-dev "${header_packages[@]}")
test_packages=("${build_packages[@]}" "${googletest_packages[@]}" pkg-config python3)
# llvm makes the import library for compilers with Microsoft's ABI.
windows_packages=(llvm cmake ninja-build g++-mingw-w64-x86-64-posix googletest wine wine64 "${header_packages[@]}")
# A Node.js from elsewhere brings its own npm, and excludes Debian's.
add_node() {
  command -v node >/dev/null || wanted+=(nodejs)
  command -v npm >/dev/null || wanted+=(npm)
}
case $task in
  build) wanted=("${build_packages[@]}") ;;
  test) wanted=("${test_packages[@]}") ;;
  check)
    # A fresh system has no package lists to look versions up in.
    [ -n "$(apt-cache madison clang)" ] || update_lists
    # sed reads to the end: if it stopped at the first match, apt-cache could fail for lack of a reader.
    clang=$(apt-cache depends clang | sed -n '0,/clang-[0-9]/s/.*\(clang-[0-9]*\).*/\1/p')
    wanted=("${test_packages[@]}" abigail-tools clang clang-format clang-tidy cppcheck "lib${clang/-/-rt-}-dev" llvm)
    # A newer clang-tidy, where there is one, is twice as fast; both report nothing for what is committed.
    [ -z "$(apt-cache madison clang-tidy-22)" ] || wanted+=(clang-tidy-22)
    ;;
  windows) wanted=("${windows_packages[@]}") ;;
  arm64) wanted=(cmake ninja-build g++-aarch64-linux-gnu googletest libxml2-dev:arm64 qemu-user-static "${header_packages[@]}") ;;
  package)
    # dpkg-buildpackage wants all that debian/control names, so GoogleTest too, although no test runs.
    wanted=("${build_packages[@]}" "${windows_packages[@]}" debhelper dh-python dpkg-dev file libgmock-dev libgtest-dev
      liblzma-dev lintian pkg-config python3 python3-cffi python3-jsonschema unzip zip zlib1g-dev)
    add_node
    ;;
  languages) wanted=("${test_packages[@]}" "${windows_packages[@]}" gcc clang lld mono-mcs mono-runtime rustc) ;;
  python)
    # lxml is what the benchmark compares with. Before Python 3.11, pytest needs exceptiongroup and tomli.
    wanted=("${test_packages[@]}" gcc pypy3 python3-cffi python3-exceptiongroup python3-lxml python3-mypy python3-pip
      python3-pytest python3-setuptools python3-tomli python3-venv python3-wheel)
    ;;
  docs) wanted=(doxygen doxygen-awesome-css gawk python3) ;;
  manual) wanted=("${test_packages[@]}" bash-completion bsdextrautils fish groff-base man-db mandoc zsh) ;;
  bench) wanted=("${build_packages[@]}" libbenchmark-dev libxml2-utils valgrind) ;;
  web) wanted=(cmake dpkg-dev emscripten ninja-build nodejs) ;;
  reproducible) wanted=(diffoscope-minimal faketime) ;;
  browser)
    wanted=(chromium fonts-dejavu-core pngquant)
    add_node
    ;;
esac

is_installed() { [ "$(dpkg-query -W -f '${db:Status-Abbrev}' "$1" 2>/dev/null)" = 'ii ' ]; }

missing=()
for package in "${wanted[@]}"; do
  is_installed "$package" || missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "==> Installing ${missing[*]}"
  [ "$task" != arm64 ] || "${as_root[@]}" dpkg --add-architecture arm64
  # The package lists may be missing or old.
  update_lists
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi
case $task in
  browser) install_npm_packages browser ;;
  package) install_npm_packages sbom ;;
esac
