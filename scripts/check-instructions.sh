#!/usr/bin/env bash
# Counts the instructions that fixed work takes (bench/CountedWork.cpp) and fails when a count is more than 5 % away from
# the one in bench/instructions.txt. Counts, unlike times, are the same on a machine that is busy.
#
#   scripts/check-instructions.sh             compares
#   scripts/check-instructions.sh --update    writes the counts into the file; for changes that are meant to cost or save
#
# The counts in the file are those of Debian 12's g++, libstdc++, libc and libxml2 on an x86-64 processor with AVX2: they
# include what these libraries do, and libc has other code for other processors. Elsewhere, write them anew from the
# state before a change, compare after it, and do not commit the file.
set -euo pipefail
cd "$(dirname "$0")/.."
if [ $# -gt 1 ] || [ "${1:---update}" != --update ]; then
  echo "usage: scripts/check-instructions.sh [--update]" >&2
  exit 2
fi

if [ "${1:-}" != --update ] && ! grep -qw avx2 /proc/cpuinfo; then
  echo "==> The instruction counts are those of a processor with AVX2, which this one is not: nothing to compare"
  exit 0
fi

scripts/setup.sh bench
scripts/build.sh release -DVENDORINFOFILE_BUILD_BENCHMARKS=ON --target counted_work

kept=$PWD/bench/instructions.txt
program=$PWD/build/release/bench/counted_work
work=$PWD/build/release/instructions
counted=$work/counts
mkdir -p "$work"
: >"$counted"

echo "==> Counting instructions"
for case in load-text load-xml query-location query-name query-expression; do
  # With an environment that is always the same, as it lies in the process's memory.
  if ! (cd "$work" && env -i PATH="$PATH" LC_ALL=C valgrind --tool=callgrind --toggle-collect=CountedWork \
      --callgrind-out-file="$case.callgrind" "$program" "$case") >"$work/$case.log" 2>&1; then
    cat "$work/$case.log" >&2
    echo "$case cannot be counted" >&2
    exit 1
  fi
  echo "$case $(awk '/^summary:/ { print $2 }' "$work/$case.callgrind")" >>"$counted"
done
if ! awk '!($2 > 0) { exit 1 }' "$counted"; then
  cat "$counted" >&2
  echo "valgrind has not found the function to count" >&2
  exit 1
fi

if [ "${1:-}" = --update ]; then
  cp "$counted" "$kept"
  cat "$kept"
  exit 0
fi

awk '
  FILENAME == ARGV[1] { kept[$1] = $2; next }
  { isCounted[$1] = 1 }
  !($1 in kept) {
    printf "FAILED: %s takes %d instructions, and bench/instructions.txt does not have it\n", $1, $2
    hasFailed = 1
    next
  }
  {
    percent = 100 * ($2 - kept[$1]) / kept[$1]
    isFar = percent > 5 || percent < -5
    printf "%s%s takes %d instructions instead of %d: %+.2f %%\n", isFar ? "FAILED: " : "", $1, $2, kept[$1], percent
    if (isFar) hasFailed = 1
  }
  END {
    for (name in kept) {
      if (name in isCounted) continue
      printf "FAILED: bench/instructions.txt has %s, which is no case\n", name
      hasFailed = 1
    }
    if (hasFailed) print "Where that is meant, write the new counts with scripts/check-instructions.sh --update"
    exit hasFailed
  }' "$kept" "$counted"
