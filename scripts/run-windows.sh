#!/usr/bin/env bash
# Runs a Windows program under Wine.
#
#   scripts/run-windows.sh PROGRAM [ARGUMENT]...
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/wine.sh"
make_wine_prefix
if [ -t 1 ]; then exec wine "$@"; fi

# The output goes through files: processes that Wine starts beside a program, such as its desktop, keep the program's
# output open, so that a reader of a pipe would wait for its end forever.
said=$(mktemp -d)
trap 'rm -rf "$said"' EXIT
status=0
wine "$@" >"$said/output" 2>"$said/error" || status=$?
cat "$said/output"
cat "$said/error" >&2
exit "$status"
