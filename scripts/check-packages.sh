#!/usr/bin/env bash
# Unpacks each package that package.sh built into an empty directory, checks that all files are there, that the
# documents' links lead somewhere, and that the bill of materials is valid and fits, and runs the command from there, the
# Windows one under Wine.
#
#   scripts/check-packages.sh [KIND]...     the kinds of package.sh; all of them by default
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD

[ $# -gt 0 ] || set -- tar zip static wheel site debian
packages=$root/build/packages
work=$packages/unpacked
rm -rf "$work"
fail() { echo "FAILED: $*" >&2; exit 1; }
shopt -s failglob

# Checks the bill of materials of the package in this directory.
#   check_bill BILL
check_bill() {
  python3 -B -W ignore::DeprecationWarning "$root/scripts/check_sbom.py" "$1" . || fail "the bill of materials $1 is wrong"
  # A bill of a package with programs is spoilt below.
  ! grep -q '"value": "\(dynamic\|static\)"' "$1" || { spoilt_package=$PWD && spoilt_bill=$1; }
}

# Expects the files that packages of the library have, and a command that reads every example.
#   check DIRECTORY PROGRAM...
check() {
  local directory=$1
  shift
  cd "$directory"
  local file
  for file in include/vendorinfofile/{VendorInfoFile,VIFField,TestSuiteVIF,DOMDocVIF}.h \
    include/vendorinfofile/TestUtilities/DOMDoc.h include/vendorinfofile/msxml/MsXml.h \
    include/vif.h lib/cmake/VendorInfoFile/VendorInfoFileConfig.cmake lib/pkgconfig/{vendorinfofile,vif}.pc \
    share/vendorinfofile/schemas/VendorInfoFile{,OptionalContent}.xsd share/doc/VendorInfoFile/{LICENSE,README.md}; do
    [ -f "$file" ] || fail "$file is missing"
  done
  python3 -B "$root/tests/package/broken_links.py" $(find share/doc/VendorInfoFile -name '*.md') ||
    fail 'the links above lead nowhere'
  check_bill share/doc/VendorInfoFile/sbom.cdx.json
  local examples=(share/vendorinfofile/examples/*.txt share/vendorinfofile/examples/*.xml)
  [ ${#examples[@]} -eq 6 ] || fail "there are ${#examples[@]} examples"
  for file in "${examples[@]}"; do
    "$@" list "$file" >"$work/listed" || fail "$* cannot list $file"
    grep -q 'Component 1' "$work/listed" || fail "$* lists no component in $file"
  done
  [ "$("$@" list --format csv share/vendorinfofile/examples/usb4-dock.xml | wc -l)" -eq 379 ] || fail 'not 378 fields'
  cd "$root"
}

# Expects the manual pages and the completion of three shells, that of zsh in the given folder.
#   check_manual DIRECTORY FOLDER
check_manual() {
  local file
  for file in man/man1/vif{,-check,-diff,-explain,-get,-list,-report,-show}.1 man/man3/vif.3 \
    man/man7/vif-{rules,fields}.7 bash-completion/completions/vif fish/vendor_completions.d/vif.fish "zsh/$2/_vif"; do
    [ -s "$1/share/$file" ] || fail "share/$file is missing"
  done
}

# Creates the directory for a package and enters it.
unpack_into() { mkdir -p "$work/$1" && echo "==> $1" && cd "$work/$1"; }

check_zip() {
  unpack_into zip
  unzip -q "$packages"/VendorInfoFile-*-win64.zip
  cd VendorInfoFile-*-win64
  local file
  for file in bin/{VendorInfoFile,VendorInfoFileAnalysis,VendorInfoFileHost,vif}.dll bin/vif.exe lib/vif.lib \
    lib/libvif.dll.a lib/libVendorInfoFile{,Analysis,Host}.dll.a \
    bin/lib{stdc++-6,gcc_s_seh-1,winpthread-1}.dll; do
    [ -f "$file" ] || fail "$file is missing"
  done
  [ ! -e share/man ] || fail 'there are manual pages for Windows'
  check "$PWD" "$root/scripts/run-windows.sh" bin/vif.exe
}

check_tar() {
  unpack_into tar
  tar xzf "$packages"/VendorInfoFile-*-linux-*.tar.gz
  cd VendorInfoFile-*
  check_manual . site-functions
  check "$PWD" bin/vif
}

check_static() {
  unpack_into static
  tar xzf "$packages"/vif-*-static.tar.gz
  cd vif-*
  local headers file
  headers=$(readelf --wide --program-headers vif)
  [[ $headers != *INTERP* ]] || fail 'the static command needs libraries'
  for file in "$root"/examples/vif/*.txt "$root"/examples/vif/*.xml; do
    ./vif list "$file" >"$work/listed" || fail "the static command cannot list $file"
    grep -q 'Component 1' "$work/listed" || fail "the static command lists no component in $file"
  done
  [ -s man/vif-rules.7 ] && [ -s completion/_vif ] || fail 'manual pages or completions are missing'
  [ -f licences/libc6-dev ] && [ -f LICENSE ] || fail 'licences are missing'
  check_bill sbom.cdx.json
}

check_wheel() {
  unpack_into wheel
  unzip -q "$packages"/vendorinfofile-*.whl
  [ -f vendorinfofile/_lib/VendorInfoFile.xsd ] || fail 'the schemas are missing'
  # They come after the bill.
  rm vendorinfofile-*.dist-info/{RECORD,WHEEL}
  check_bill "$(echo vendorinfofile-*.dist-info/sboms/vendorinfofile.cdx.json)"
}

check_site() {
  unpack_into site
  tar xzf "$packages"/VendorInfoFile-*-site.tar.gz
  cd VendorInfoFile-*
  python3 -B "$root/scripts/site/check_links.py" .
  check_bill sbom.cdx.json
}

check_debian() {
  local package name
  for package in "$packages"/*.deb; do
    [[ $package != *-dbgsym_* ]] || continue
    name=$(basename "$package")
    name=${name%%_*}
    unpack_into "$name"
    dpkg-deb -x "$package" .
    check_bill "$(echo "usr/share/doc/$name"/sbom*.cdx.json)"
  done
  # Not the package of debugging symbols, whose name begins the same way.
  local needed
  needed=$(dpkg-deb -f "$packages"/libvendorinfofile0.[0-9]_*.deb Depends)
  [[ $needed == *libxml2* ]] || fail 'the library does not depend on libxml2'
  echo "==> lintian"
  lintian --allow-root --fail-on error,warning "$packages"/*.dsc "$packages"/*.deb
}

for kind; do
  "check_$kind"
  cd "$root"
done

if [ -z "${spoilt_package:-}" ]; then
  echo "The packages are complete: $*"
  exit
fi
echo "==> Bills of materials that are wrong"
cd "$spoilt_package"
cp "$spoilt_bill" "$work/sound.json"
# Expects the check to refuse a bill after an edit, in Python.
#   expect_objection EDIT REASON
expect_objection() {
  python3 -B - "$work/sound.json" "$spoilt_bill" "$1" <<'END'
import json, sys
sound, spoilt, edit = sys.argv[1:]
bill = json.load(open(sound, encoding="utf-8"))
parts = bill["components"]
files = [part for part in parts if part["type"] == "file"]
exec(edit)
if bill == json.load(open(sound, encoding="utf-8")):
    sys.exit(f"nothing to spoil by {edit}")
json.dump(bill, open(spoilt, "w", encoding="utf-8"))
END
  expect_refusal "after $1" "$2"
}
# Expects the check to refuse the bill as it is.
#   expect_refusal WHAT REASON
expect_refusal() {
  local said
  ! said=$(python3 -B -W ignore::DeprecationWarning "$root/scripts/check_sbom.py" "$spoilt_bill" . 2>&1) ||
    fail "a bill $1 passes"
  grep -q "$2" <<<"$said" || fail "a bill $1 is refused for another reason: $said"
}
expect_objection 'bill["specVersion"] = 1.5' "specVersion: 1.5 is not of type 'string'"
expect_objection 'bill["serialNumber"] = bill["serialNumber"].removeprefix("urn:uuid:")' 'serialNumber: .* does not match'
expect_objection 'files[0]["hashes"][0]["content"] = "12"' 'content: .*12'
expect_objection 'bill["metadata"]["livecycles"] = []' 'metadata: Additional properties are not allowed'
expect_objection 'files[0]["type"] = "document"' 'is not one of'
expect_objection 'files[0]["hashes"][0]["content"] = "0" * 64' ': another hash$'
expect_objection 'parts.remove(files[0])' ': not in the bill$'
expect_objection 'parts.append(dict(files[0], name="absent", **{"bom-ref": "file:absent"}))' ': absent: not in the package$'
expect_objection 'bill["components"] = files' ': names no library, but the package has programs$'
cp "$work/sound.json" "$spoilt_bill"
touch extra
expect_refusal 'without a file of the package' ': extra: not in the bill$'
rm extra
check_bill "$spoilt_bill"

echo "The packages are complete and work: $*"
