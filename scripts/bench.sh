#!/usr/bin/env bash
# Installs what is missing, builds the benchmarks, runs them and prints their table of ratios as Markdown. Progress
# goes to standard error.
#
#   scripts/bench.sh [FILTER]    only benchmarks with names that match this regular expression, such as ^text/
#
# Fails when something cannot be measured, but not when a goal is missed: times are for people to judge.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh bench >&2
scripts/build.sh release -DVENDORINFOFILE_BUILD_BENCHMARKS=ON --target benchmarks >&2
echo "==> Measuring" >&2
# The two sides of every ratio run alternately, so that other load on the machine affects both.
exec build/release/bench/benchmarks --benchmark_filter="${1:-.}" --benchmark_enable_random_interleaving=true \
  --benchmark_repetitions=9 --benchmark_min_time=0.1
