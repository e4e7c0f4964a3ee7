#!/usr/bin/env bash
# Fails when clang-tidy has something to say about a source that a build directory compiles.
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
# Newer versions pass over what is in the system's headers, which is most of what a source includes.
tidy=$(command -v clang-tidy-22 || command -v clang-tidy)
echo "$tidy reads ${#sources[@]} files"
# Newer ones also see where the standard library's own headers use what is deprecated.
# It counts on standard error the warnings that it does not show.
printf '%s\0' "${sources[@]}" |
  xargs -0 -P "$(nproc)" -n 1 "$tidy" --quiet --extra-arg=-Wno-deprecated-declarations -p "$build" 2> >(grep -v 'warnings\? generated\|^Suppressed\|^Use -header' >&2)
