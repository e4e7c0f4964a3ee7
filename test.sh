#!/usr/bin/env bash
# Installs what is missing, builds everything and runs the tests. Arguments such as -R TextReader go to ctest.
set -euo pipefail
cd "$(dirname "$0")"

scripts/setup.sh test
scripts/build.sh release -DVENDORINFOFILE_BUILD_TESTS=ON
echo "==> Running the tests"
ctest --preset release --parallel "$(nproc)" "$@"
