#!/usr/bin/env bash
# Installs compilers for other languages, and runs the programs of examples/c against the library of the preset release;
# then the program for Microsoft's ABI, under Wine, against that of the preset windows.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh languages
scripts/build.sh release -DVENDORINFOFILE_BUILD_TESTS=ON
ctest --preset release -R '^languages\.'
scripts/test-windows.sh -R '^languages\.MicrosoftAbi$'
