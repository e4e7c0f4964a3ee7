#!/usr/bin/env bash
# Installs what is missing, builds everything for 64-bit Windows and runs the tests under Wine. Arguments go to ctest, such
# as -R TextReader.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh windows
source scripts/wine.sh
keep_wine_server
scripts/build.sh windows -DVENDORINFOFILE_BUILD_TESTS=ON
echo "==> Running the tests under Wine"
# A program that Wine does not end gets a second try, and only such a one.
ctest --preset windows --parallel "$(nproc)" --repeat after-timeout:2 "$@"
