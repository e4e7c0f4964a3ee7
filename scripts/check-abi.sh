#!/usr/bin/env bash
# Compares the interfaces with the descriptions that are committed: the functions and structures of C, and the layout of
# the types of C++ with their virtual functions and values. Lists what was added. Fails when anything was removed or
# changed: programs that were built against the one may not work with the other.
#
#   scripts/check-abi.sh             compares, and proves that a change is noticed
#   scripts/check-abi.sh --update    writes the descriptions, after an addition; after anything else it refuses, unless the
#                                    SOVERSION is another
#
# A description is of a library made from the headers alone. So what the handles hold, which no program sees, does not
# count. That the real libraries export what they should is tested with the package. What is described of C++ depends on
# the standard library too: descriptions are of Debian 12's.
set -euo pipefail
cd "$(dirname "$0")/.."

descriptions=tests/package/abi
abi=$(scripts/version.sh | sed 's/^\(0\.[0-9]*\|[1-9][0-9]*\)\..*/\1/')
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "$*" >&2; exit 1; }

# Describes a library, without the name of the temporary directory.
#   describe HEADERS LIBRARY DESCRIPTION
describe() {
  abidw --headers-dir "$1" --drop-private-types --no-corpus-path --no-comp-dir-path --no-show-locs --out-file "$3" "$2"
  sed -i "s|path='$work/|path='|" "$3"
}

describe_c() {
  python3 -B scripts/abi_source.py c "$work/c/vif.h" >"$work/c.c"
  "${CC:-gcc}" -std=c99 -g -fPIC -shared -I"$work/c" "-Wl,-soname,libvif.so.$abi" "$work/c.c" -o "$work/c.so"
  describe "$work/c" "$work/c.so" "$1"
}

# By default g++ describes a class with virtual functions only where those are.
describe_cpp() {
  python3 -B scripts/abi_source.py c++ "$work/cpp" >"$work/cpp.cpp"
  "${CXX:-g++}" -std=c++20 -g -femit-class-debug-always -fPIC -shared -I"$work/cpp" "-Wl,-soname,libVendorInfoFile.so.$abi" "$work/cpp.cpp" -o "$work/cpp.so"
  describe "$work/cpp" "$work/cpp.so" "$1"
}

# Fails when the second description lacks anything of the first, or changes it.
keeps() { abidiff --no-show-locs --no-added-syms "$1" "$2"; }

mkdir "$work/c" "$work/cpp"
cp c/vif.h "$work/c"
cmake --install build/release --prefix "$work/prefix" >/dev/null
cp -r "$work/prefix/include/vendorinfofile/." "$work/cpp"
describe_c "$work/vif.abi"
describe_cpp "$work/cpp.abi"

functions=$(grep -c '<function-decl' "$work/vif.abi")
names=$(wc -l <tests/package/exports/vif.txt)
[ "$functions" -eq "$names" ] || fail "The header declares $functions functions; tests/package/exports/vif.txt has $names"

for name in vif cpp; do
  committed=$descriptions/$name.abi
  if [ ! -e "$committed" ] || ! grep -q "soname='[^']*\.so\.$abi'" "$committed"; then
    [ "${1:-}" = --update ] || fail "$committed is not of SOVERSION $abi. Run scripts/check-abi.sh --update."
  else
    abidiff --no-show-locs "$committed" "$work/$name.abi" || true
    keeps "$committed" "$work/$name.abi" >/dev/null ||
      fail "The interface is no longer what $committed describes. Only a new SOVERSION may change it."
  fi
  [ "${1:-}" != --update ] || { cp "$work/$name.abi" "$committed" && echo "Wrote $committed"; }
done
[ "${1:-}" != --update ] || exit 0

# Expects a change to be noticed: abidiff's status has 4 for a change, and 1 or 2 when it fails itself.
expect_noticed() {
  local what=$1 file=$2 edit=$3 describe=$4 description=$5 status=0
  cp "$file" "$work/sound"
  sed -i "$edit" "$file"
  ! cmp -s "$file" "$work/sound" || fail "nothing to change for: $what"
  "$describe" "$work/changed.abi"
  keeps "$description" "$work/changed.abi" >/dev/null || status=$?
  [ $((status & 7)) -eq 4 ] || fail "not noticed, with status $status: $what"
  cp "$work/sound" "$file"
}
expect_noticed 'a function of C that is gone' "$work/c/vif.h" '/^VIF_C_API .*vif_version(/d' describe_c "$work/vif.abi"
expect_noticed 'a member in the middle' "$work/cpp/analysis/Finding.h" \
  's/^  std::size_t line;/  int added;\n&/' describe_cpp "$work/cpp.abi"
expect_noticed 'another value' "$work/cpp/VIFLocations.h" 's/^  eVifLocComponent = 6,/  eVifLocComponent = 60,/' describe_cpp "$work/cpp.abi"
expect_noticed 'another virtual function' "$work/cpp/TestUtilities/TULog.h" '0,/^  virtual /s//  virtual void Added();\n&/' \
  describe_cpp "$work/cpp.abi"
echo "The interfaces of C and C++ keep what SOVERSION $abi has"
