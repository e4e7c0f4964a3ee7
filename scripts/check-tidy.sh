#!/usr/bin/env bash
# Fails when clang-tidy reports something about a source that a build directory compiles: all of them, or those named.
#
#   scripts/check-tidy.sh BUILD_DIRECTORY [FILE...]
set -euo pipefail
cd "$(dirname "$0")/.."
build=$1
shift

if [ $# -gt 0 ]; then
  sources=("$@")
else
  mapfile -t sources < <(git ls-files '*.cpp' | while read -r file; do
    if grep -qF "\"file\": \"$PWD/$file\"" "$build/compile_commands.json"; then echo "$file"; fi
  done)
fi
[ ${#sources[@]} -gt 0 ] || { echo "$build compiles none of the sources" >&2; exit 1; }
# Newer versions skip the system's headers, which are most of what a source includes.
tidy=$(command -v clang-tidy-22 || command -v clang-tidy)
echo "$tidy checks ${#sources[@]} files"
# Newer versions also report deprecated names that the standard library's own headers use.
# On standard error, clang-tidy counts the warnings that it does not show; grep drops these lines.
printf '%s\0' "${sources[@]}" |
  xargs -0 -P "$(nproc)" -n 1 "$tidy" --quiet --extra-arg=-Wno-deprecated-declarations -p "$build" 2> >(grep -v 'warnings\? generated\|^Suppressed\|^Use -header' >&2)
