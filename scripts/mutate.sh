#!/usr/bin/env bash
# Mutation testing: changes the product in one place at a time - a comparison, an operator, a constant, a condition - and
# runs the tests, which are to fail. Fails when fewer than 95 % of the changes that compile are caught, those left out that
# scripts/mutation/survivors.txt explains; or when what that explains is caught, or is no change at all any more. The
# sources stay as they are.
#
#   scripts/mutate.sh [--count N] [--seed N] [--jobs N] [--least PERCENT]    tries N mutants drawn at random; 36 unless said
#   scripts/mutate.sh --only FILE[:LINE]...                                  tries all those of a file or a line
#   scripts/mutate.sh --list ...                                             lists the mutants and tries none
#
# With --build DIRECTORY it uses that build with tests instead of what ./test.sh builds.
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
# Without -B, Python would leave compiled files beside the sources.
exec python3 -B scripts/mutation/main.py "$@"
