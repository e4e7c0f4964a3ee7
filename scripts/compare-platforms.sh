#!/usr/bin/env bash
# Lists VIFs with this system's command and with the Windows command under Wine, both already built, and expects the
# same output, byte for byte. The files are the examples and generated files of both forms.
#
#   scripts/compare-platforms.sh [COUNT]     COUNT text files and as many XML files; VIF_TEST_SEED seeds the generator
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

# The command's output for some files, and its exit status.
list_here() { "$here/cli/vif" list --format json "$@" 2>&1 && echo "status 0" || echo "status $?"; }
list_there() { "${windows[@]}" list --format json "$@" 2>&1 && echo "status 0" || echo "status $?"; }

# Drops the reason, which each system's XML parser words its own way.
without_reason() { sed 's/\( is not a valid Vendor Info File\.\) .*/\1/'; }

differ() { ! diff <(list_here "$@" | without_reason) <(list_there "$@" | without_reason) >"$work/$1.diff"; }

# Compares both commands on some files and, if they differ, on each alone. Differences go to FILE.diff.
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

# Refused files are compared one by one, because the first of many would hide the others.
refused=()
loaded=()
for file in *; do
  if "$here/cli/vif" list --format json "$file" >/dev/null 2>&1; then loaded+=("$file"); else refused+=("$file"); fi
done
export -f list_here list_there without_reason differ compare
export here work
# A new shell inherits functions, but not arrays.
printf '%s\n' "${windows[@]}" >"$work/windows"
run() { xargs -d '\n' -n "$1" -P "$(nproc)" bash -c 'mapfile -t windows <"$work/windows"; compare "$@"' compare; }
printf '%s\n' "${loaded[@]}" | run "$per_run"
[ ${#refused[@]} -eq 0 ] || printf '%s\n' "${refused[@]}" | run 1

shopt -s nullglob
differences=("$work"/*.diff)
echo "Compared ${#loaded[@]} files that load here and ${#refused[@]} that are refused; ${#differences[@]} differ"
[ ${#differences[@]} -eq 0 ] || { head -n 20 "${differences[@]}"; exit 1; }
