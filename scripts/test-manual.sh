#!/usr/bin/env bash
# Installs what reads manual pages, and shells, and tests the manual pages and the completion of `vif` with them. Tests
# that ctest would skip elsewhere must run here.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh manual
scripts/build.sh release -DVENDORINFOFILE_BUILD_TESTS=ON
log=$(mktemp)
trap 'rm -f "$log"' EXIT
ctest --preset release -R '^(manual|completion)\.' "$@" | tee "$log"
! grep -q 'Skipped' "$log" || { echo 'FAILED: some tests were skipped' >&2; exit 1; }
