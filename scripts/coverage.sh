#!/usr/bin/env bash
# Runs the tests of the preset asan, which scripts/build.sh has built, and shows how much of the libraries' sources
# they cover: lines and branches of each file, each folder and the whole. A branch is one outcome of a condition.
# Fails when a test fails, or below 98 % of all lines or 95 % of all branches. Sources for Windows only are not
# compiled here and do not count. Where a condition ends in an exception, the compiler counts it as false.
#
#   scripts/coverage.sh [--no-tests] [--missing]
#
# --no-tests shows the coverage of the last run; --missing also lists the lines and branches that are not covered.
set -euo pipefail
cd "$(dirname "$0")/.."

least_lines=98
least_branches=95
folders=(analysis field host include readers testsuite vif)

tests=yes
list=()
for argument in "$@"; do
  case $argument in
    --no-tests) tests=no ;;
    --missing) list=(--missing) ;;
    *) echo "usage: scripts/coverage.sh [--no-tests] [--missing]" >&2; exit 2 ;;
  esac
done

build=build/asan
counts=$build/coverage
if [ $tests = yes ]; then
  rm -rf "$counts"
  ctest --preset asan --parallel "$(nproc)"
fi

mapfile -t objects < <(
  find "$build" -maxdepth 2 -name 'lib*.so'
  # Completion scripts are called vif, too.
  find "$build/tests" "$build/cli" -type f -executable \( -name '*_tests' -o -name vif \))
others=()
for object in "${objects[@]:1}"; do others+=(-object "$object"); done

echo "==> Coverage by the tests"
llvm-profdata merge -sparse "$counts"/*.profraw -o "$counts/all.profdata"
# An inline function that one program uses and another only declares is "mismatched" in the other.
llvm-cov export -skip-functions -instr-profile "$counts/all.profdata" "${objects[0]}" "${others[@]}" \
  "${folders[@]/#/$PWD/}" 2> >(grep -v 'functions have mismatched data' >&2) >"$counts/all.json"
scripts/coverage.py "$counts/all.json" "$PWD" $least_lines $least_branches "${list[@]}"
