#!/usr/bin/env bash
# Prints the time of the sources, in seconds since 1970, which packages have instead of the time when they are built:
# SOURCE_DATE_EPOCH if it is set, else that of the last commit, else that of the last release.
set -euo pipefail
cd "$(dirname "$0")/.."

if [ -n "${SOURCE_DATE_EPOCH:-}" ]; then
  echo "$SOURCE_DATE_EPOCH"
elif ! git log -1 --format=%ct 2>/dev/null; then
  date --utc --date "$(sed -n 's/^## [0-9.]* (\(.*\))$/\1/p' CHANGELOG.md | head -n 1)" +%s
fi
