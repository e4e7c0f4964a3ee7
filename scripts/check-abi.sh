#!/usr/bin/env bash
# Compares the C interface, its functions and the layout of its structures, with the description that is committed.
# Fails when they differ: programs that were built against the one may not work with the other.
#
#   scripts/check-abi.sh             compares
#   scripts/check-abi.sh --update    writes the description, after an addition or, with a new SOVERSION, a change
#
# What is described is a library of the header's functions without their code. So what the handles hold, which no
# program sees, does not count. That the real library exports these functions is tested with the package.
set -euo pipefail
cd "$(dirname "$0")/.."

description=tests/package/abi/vif.abi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

python3 -B - c/vif.h >"$work/vif.c" <<'END'
import re
import sys

header = open(sys.argv[1], encoding="utf-8").read()
text = re.sub(r"/\*.*?\*/", "", header, flags=re.DOTALL)
print('#include "vif.h"')
for declaration in re.findall(r"^VIF_C_API ([^;]*);", text, flags=re.MULTILINE):
    print(declaration, "{ __builtin_unreachable(); }")
END
cp c/vif.h "$work"
(cd "$work" && "${CC:-gcc}" -std=c99 -g -fPIC -shared -Wl,-soname,libvif.so vif.c -o libvif.so)
abidw --no-corpus-path --no-comp-dir-path --no-show-locs --out-file "$work/vif.abi" "$work/libvif.so"

if [ "${1:-}" = --update ]; then
  mkdir -p "$(dirname "$description")"
  cp "$work/vif.abi" "$description"
  echo "Wrote $description"
  exit
fi
functions=$(grep -c '<function-decl' "$work/vif.abi")
names=$(wc -l <tests/package/exports/vif.txt)
[ "$functions" -eq "$names" ] || { echo "The header declares $functions functions; tests/package/exports/vif.txt has $names" >&2; exit 1; }
if ! abidiff --no-show-locs "$description" "$work/vif.abi"; then
  echo "The C interface differs from $description. If that is meant, and a change comes with a new SOVERSION," >&2
  echo "run scripts/check-abi.sh --update." >&2
  exit 1
fi
