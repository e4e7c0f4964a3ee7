#!/usr/bin/env bash
# Prints the version of the project.
set -euo pipefail
cd "$(dirname "$0")/.."

sed -n 's/^project(VendorInfoFile VERSION \([^ ]*\) .*/\1/p' CMakeLists.txt
