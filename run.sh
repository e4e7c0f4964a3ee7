#!/usr/bin/env bash
# Installs what is missing, builds the library and the command, and shows a Vendor Info File.
#
#   ./run.sh                  shows an example
#   ./run.sh ARGUMENT...      runs the command with these arguments, such as ./run.sh list my.txt
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

# Progress goes to standard error, so that the command's output can be piped.
"$root/scripts/setup.sh" build >&2
"$root/scripts/build.sh" release --target vif >&2

vif=$root/build/release/cli/vif
if [ $# -eq 0 ]; then
  set -- show "$root/examples/vif/usb4-dock.xml"
  echo "==> vif $*" >&2
fi
exec "$vif" "$@"
