#!/usr/bin/env bash
# Installs what is missing, builds everything for 64-bit Windows and runs the tests under Wine. Arguments such as
# -R TextReader go to ctest.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh windows
source scripts/wine.sh
keep_wine_server
scripts/build.sh windows -DVENDORINFOFILE_BUILD_TESTS=ON
echo "==> Running the tests under Wine"
# Wine sometimes does not end a program: only a test that times out gets a second try.
ctest --preset windows --parallel "$(nproc)" --repeat after-timeout:2 "$@"
