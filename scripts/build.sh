#!/usr/bin/env bash
# Configures and builds one preset of CMakePresets.json, incrementally.
#
#   scripts/build.sh PRESET [-DNAME=VALUE]... [--target TARGET]
set -euo pipefail
cd "$(dirname "$0")/.."

preset=$1
shift
configure=()
build=()
while [ $# -gt 0 ]; do
  case $1 in
    --target) build+=(--target "$2"); shift 2 ;;
    *) configure+=("$1"); shift ;;
  esac
done

echo "==> Building ($preset)"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! cmake --preset "$preset" "${configure[@]}" >"$log" 2>&1; then
  cat "$log" >&2
  exit 1
fi
cmake --build --preset "$preset" "${build[@]}"
