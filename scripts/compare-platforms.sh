#!/usr/bin/env bash
# Lists VIFs with the command of this system and with that of Windows under Wine, both built before, and expects the same
# of both, to the byte: the examples, and generated files of both forms.
#
#   scripts/compare-platforms.sh [COUNT]     so many text files and so many XML files; VIF_TEST_SEED says which
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD

count=${1:-2000}
here=$root/build/release
windows=("$root/scripts/run-windows.sh" "$root/build/windows/bin/vif.exe")
work=$here/platforms
per_run=50

source scripts/wine.sh
keep_wine_server
rm -rf "$work"
mkdir -p "$work"
"$here/tests/platforms/generate_vifs" "$work/files" "$count"
cp examples/vif/*.txt examples/vif/*.xml "$work/files"
cd "$work/files"

# What the command makes of files: what it prints and its exit status.
list_here() { "$here/cli/vif" list --format json "$@" 2>&1 && echo "status 0" || echo "status $?"; }
list_there() { "${windows[@]}" list --format json "$@" 2>&1 && echo "status 0" || echo "status $?"; }

# Without what each system's XML parser has to say.
without_reason() { sed 's/\( is not a valid Vendor Info File\.\) .*/\1/'; }

differ() { ! diff <(list_here "$@" | without_reason) <(list_there "$@" | without_reason) >"$work/$1.diff"; }

# Compares what both make of some files; on a difference, of each alone. What differs is in a file.diff.
compare() {
  if ! differ "$@"; then
    rm "$work/$1.diff"
    return
  fi
  mv "$work/$1.diff" "$work/together-$1.diff"
  local file found=
  for file in "$@"; do
    if differ "$file"; then found=yes; else rm "$work/$file.diff"; fi
  done
  [ -z "$found" ] || rm "$work/together-$1.diff"
}

# Those that are refused here are compared one by one, for the first of many would hide the others.
refused=()
loaded=()
for file in *; do
  if "$here/cli/vif" list --format json "$file" >/dev/null 2>&1; then loaded+=("$file"); else refused+=("$file"); fi
done
export -f list_here list_there without_reason differ compare
export here work
# Functions see no arrays of their caller's in a new shell.
printf '%s\n' "${windows[@]}" >"$work/windows"
run() { xargs -d '\n' -n "$1" -P "$(nproc)" bash -c 'mapfile -t windows <"$work/windows"; compare "$@"' compare; }
printf '%s\n' "${loaded[@]}" | run "$per_run"
[ ${#refused[@]} -eq 0 ] || printf '%s\n' "${refused[@]}" | run 1

shopt -s nullglob
differences=("$work"/*.diff)
echo "${#loaded[@]} files that both load and ${#refused[@]} that both refuse were compared; ${#differences[@]} differ"
[ ${#differences[@]} -eq 0 ] || { head -n 20 "${differences[@]}"; exit 1; }
