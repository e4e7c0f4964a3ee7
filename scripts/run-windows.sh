#!/usr/bin/env bash
# Runs a Windows program under Wine.
#
#   scripts/run-windows.sh PROGRAM [ARGUMENT]...
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/wine.sh"
make_wine_prefix
exec wine "$@"
