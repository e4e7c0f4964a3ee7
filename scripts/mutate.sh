#!/usr/bin/env bash
# Mutation testing: changes the product in one place at a time - a comparison, an operator, a constant, a condition - and
# runs the tests, which are to fail. Fails when fewer than 95 % of the changes that compile are caught, those left out that
# scripts/mutation/survivors.txt explains; or when what that explains is caught, or is no change at all any more. The
# sources stay as they are.
#
#   scripts/mutate.sh [--count N] [--seed N] [--jobs N] [--least PERCENT]    some drawn by the seed, 36 and 1 by default
#   scripts/mutate.sh --only FILE[:LINE]...                                  all of there
#   scripts/mutate.sh --list ...                                             only says which
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
