#!/usr/bin/env bash
# Installs what is missing, builds everything for 64-bit Windows and runs the tests under Wine. Arguments such as
# -R TextReader go to ctest.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh windows
source scripts/wine.sh
keep_wine_server
scripts/build.sh windows -DVENDORINFOFILE_BUILD_TESTS=ON
run_tests() { ctest --preset windows --parallel "$(nproc)" "$@"; }
echo "==> Running the tests under Wine"
# On a busy machine Wine sometimes fails to start a program, or to end it, so tests that fail get a second try.
run_tests "$@" || { echo "==> Running the tests that failed a second time" && run_tests --rerun-failed; }
