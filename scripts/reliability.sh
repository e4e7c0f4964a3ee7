#!/usr/bin/env bash
# Runs everything that docs/reliability.md has figures for, in its long form; .ci/run runs a short form of most.
#
#   scripts/reliability.sh [memory | files | threads | fuzzing | coverage | mutation | analysis]...
#
# Without arguments it runs all parts, which takes some two hours on two cores. Fails when a part finds something.
set -euo pipefail
cd "$(dirname "$0")/.."

# Runs a test program and says at how many allocations its tests had memory run out.
count_failure_points() {
  local program=$1 report
  report=$(mktemp)
  "$program" --gtest_brief=1 --gtest_output="xml:$report"
  grep -o 'name="failurePoints" value="[0-9]*"' "$report" | tr -dc '0-9\n' |
    awk -v program="$(basename "$program")" '{ sum += $1 } END { print program ": " sum " failed allocations" }'
  rm "$report"
}

memory() {
  scripts/build.sh release -DVENDORINFOFILE_BUILD_TESTS=ON
  for program in memory/failing_memory_tests testsuite/hooks_memory_tests memory/command/command_memory_tests; do
    count_failure_points "build/release/tests/$program"
  done
  scripts/build.sh asan --target failing_memory_tests --target hooks_memory_tests
  for program in memory/failing_memory_tests testsuite/hooks_memory_tests; do
    count_failure_points "build/asan/tests/$program"
  done
}

files() {
  scripts/build.sh release -DVENDORINFOFILE_BUILD_TESTS=ON
  ctest --preset release --parallel "$(nproc)" -R '^(file_tests|command_file_tests)|Posix|Hostile'
}

# Each test in a process of its own, because some things are created only once in a process.
threads() {
  scripts/build.sh tsan --target field_tests --target host_tests --target vif_tests
  ctest --preset tsan --parallel "$(nproc)" -R 'Thread|Concurrent' --repeat until-fail:20
}

fuzzing() { scripts/fuzz.sh --long; }

coverage() {
  scripts/build.sh asan
  scripts/coverage.sh
}

mutation() { scripts/mutate.sh --count 350; }

analysis() {
  scripts/check-cppcheck.sh
  cmake --preset clang >/dev/null
  scripts/check-tidy.sh build/clang
  scripts/build.sh release
  scripts/check-hardening.sh
}

scripts/setup.sh check
parts=("$@")
[ $# -gt 0 ] || parts=(memory files threads fuzzing coverage mutation analysis)
status=0
for part in "${parts[@]}"; do
  case $part in
    memory | files | threads | fuzzing | coverage | mutation | analysis) ;;
    *) echo "There is no part '$part'" >&2; exit 2 ;;
  esac
done
for part in "${parts[@]}"; do
  echo "==> ${part^}"
  set +e
  (set -e; "$part")  # a failure ends this part, but not the parts after it
  result=$?
  set -e
  [ $result -eq 0 ] || { echo "==> ${part^} found something" >&2; status=1; }
done
exit $status
