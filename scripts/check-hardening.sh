#!/usr/bin/env bash
# Fails when a library or program of a build directory lacks one of the safeguards that it is to be linked or compiled
# with: addresses that cannot be overwritten once bound, a stack that is not executable, guards on the stack, checked calls
# of the C library, assertions of the standard library.
#
#   scripts/check-hardening.sh [BUILD_DIRECTORY]    build/release when none is given
set -euo pipefail
cd "$(dirname "$0")/.."

build=${1:-build/release}
status=0

# Says that a file has no such safeguard when the command behind finds nothing.
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
  require "$file" "stack that is not executable" has_header "$file" '^ *GNU_STACK.* RW '
  require "$file" "guard on the stack" uses "$file" '__stack_chk_fail@'
  require "$file" "checked call of the C library" uses "$file" '__[a-z]+_chk@'
  require "$file" "assertion of the standard library" uses "$file" '.*__glibcxx_assert_fail'
}

command=$build/cli/vif
echo "==> Safeguards of what is built in $build"
for file in "$build/libVendorInfoFile.so" "$build/analysis/libVendorInfoFileAnalysis.so" "$build/host/libVendorInfoFileHost.so" "$command"; do check "$file"; done
require "$command" "code that can stand at any address" has_entry "$command" 'FLAGS_1.* PIE'
exit $status
