#!/usr/bin/env bash
# Installs what is missing, builds the benchmarks, runs them and prints their table of ratios as Markdown. What is said on
# the way goes to standard error.
#
#   scripts/bench.sh [FILTER]    only benchmarks whose names this regular expression finds, such as ^text/
#
# Fails when something cannot be measured, and not when a goal is missed: times are for people to judge.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh bench >&2
scripts/build.sh release -DVENDORINFOFILE_BUILD_BENCHMARKS=ON --target benchmarks >&2
echo "==> Measuring" >&2
# Both sides of every ratio by turns, so that what else the machine does meets both.
exec build/release/bench/benchmarks --benchmark_filter="${1:-.}" --benchmark_enable_random_interleaving=true \
  --benchmark_repetitions=9 --benchmark_min_time=0.1
