#!/usr/bin/env bash
# Mutation testing: makes mutants by changing the product in one place each - a comparison, an operator, a constant, a
# condition - and runs the tests, one of which should fail. scripts/mutation/survivors.txt explains equivalent
# mutants, which no test can catch. Fails when fewer than 95 % of the other mutants that compile are caught, when an
# explained one is caught, or when an explanation fits no mutant any more. The sources stay as they are.
#
#   scripts/mutate.sh [--count N] [--seed N] [--jobs N] [--least PERCENT]    tries N random mutants, 36 by default
#   scripts/mutate.sh --only FILE[:LINE] [--only ...]...                     tries all mutants of a file or a line
#   scripts/mutate.sh --list ...                                             only lists the mutants
#
# With --build DIRECTORY it uses that build, which must have the tests, instead of the one that ./test.sh makes.
set -euo pipefail
cd "$(dirname "$0")/.."

case " $* " in
  *" --list "*) ;;
  *" --build "* | *" --build="*) ;;
  *)
    scripts/setup.sh test
    scripts/build.sh release -DVENDORINFOFILE_BUILD_TESTS=ON
    ;;
esac
# -B, because Python would leave compiled files beside the sources.
exec python3 -B scripts/mutation/main.py "$@"
