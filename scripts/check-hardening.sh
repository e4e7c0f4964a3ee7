#!/usr/bin/env bash
# Fails when a library or program in a build directory lacks hardening: RELRO with immediate binding, a non-executable
# stack, stack guards, checked calls of the C library, assertions of the standard library, and for the command PIE.
#
#   scripts/check-hardening.sh [BUILD_DIRECTORY]    build/release by default
set -euo pipefail
cd "$(dirname "$0")/.."

build=${1:-build/release}
status=0

# Reports that a file lacks a safeguard when the command after it finds nothing.
require() {
  local file=$1 safeguard=$2
  shift 2
  if ! "$@" >/dev/null; then
    echo "$file: no $safeguard" >&2
    status=1
  fi
}

has_header() { readelf --wide --program-headers "$1" | grep -E "$2"; }
has_entry() { readelf --wide --dynamic "$1" | grep -E "$2"; }
uses() { readelf --wide --dyn-syms "$1" | grep -E "UND $2"; }

check() {
  local file=$1
  require "$file" "RELRO" has_header "$file" '^ *GNU_RELRO'
  require "$file" "immediate binding" has_entry "$file" 'BIND_NOW|FLAGS_1.* NOW'
  require "$file" "non-executable stack" has_header "$file" '^ *GNU_STACK.* RW '
  require "$file" "stack guard" uses "$file" '__stack_chk_fail@'
  require "$file" "assertion of the standard library" uses "$file" '.*__glibcxx_assert_fail'
}

command=$build/cli/vif
echo "==> Hardening of the files in $build"
libraries=("$build/libVendorInfoFile.so" "$build/analysis/libVendorInfoFileAnalysis.so" "$build/host/libVendorInfoFileHost.so")
for file in "${libraries[@]}" "$command" "$build/c/libvif.so"; do check "$file"; done
# The library of the C interface makes no call that can be checked.
for file in "${libraries[@]}" "$command"; do
  require "$file" "checked call of the C library" uses "$file" '__[a-z]+_chk@'
done
require "$command" "position-independent code (PIE)" has_entry "$command" 'FLAGS_1.* PIE'
exit $status
