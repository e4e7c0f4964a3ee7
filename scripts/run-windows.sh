#!/usr/bin/env bash
# Runs a Windows program under Wine.
#
#   scripts/run-windows.sh PROGRAM [ARGUMENT]...
#
# Wine keeps its files in WINEPREFIX; when that is not set, in a directory of this project's own, made on first use.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export WINEPREFIX=${WINEPREFIX:-$root/build/wine}
export WINEDEBUG=${WINEDEBUG:--all}
# No offers to install what no test needs.
export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml=}

if [ ! -e "$WINEPREFIX/made" ]; then
  mkdir -p "$WINEPREFIX"
  exec 9>"$WINEPREFIX/lock"
  flock 9
  if [ ! -e "$WINEPREFIX/made" ]; then
    wine wineboot --init >/dev/null 2>&1 || { echo "Wine cannot make $WINEPREFIX" >&2; exit 1; }
    touch "$WINEPREFIX/made"
  fi
  exec 9>&-
fi
exec wine "$@"
