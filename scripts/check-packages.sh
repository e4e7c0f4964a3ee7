#!/usr/bin/env bash
# Unpacks each package that package.sh built into an empty directory, checks that all files are there and that the
# documents' links lead somewhere, and runs the command from there, the Windows one under Wine.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD

work=$root/build/packages/unpacked
rm -rf "$work"
fail() { echo "FAILED: $*" >&2; exit 1; }

# Expects the files that all packages have, and a command that reads every example.
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
  local examples=(share/vendorinfofile/examples/*.txt share/vendorinfofile/examples/*.xml)
  [ ${#examples[@]} -eq 6 ] || fail "there are ${#examples[@]} examples"
  for file in "${examples[@]}"; do
    "$@" list "$file" >listed || fail "$* cannot list $file"
    grep -q 'Component 1' listed || fail "$* lists no component in $file"
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

shopt -s failglob
packages=$root/build/packages

unpack_into zip
unzip -q "$packages"/VendorInfoFile-*-win64.zip
cd VendorInfoFile-*-win64
for file in bin/{VendorInfoFile,VendorInfoFileAnalysis,VendorInfoFileHost,vif}.dll bin/vif.exe lib/vif.lib lib/libvif.dll.a lib/libVendorInfoFile{,Analysis,Host}.dll.a; do
  [ -f "$file" ] || fail "$file is missing"
done
[ ! -e share/man ] || fail 'there are manual pages for Windows'
check "$PWD" "$root/scripts/run-windows.sh" bin/vif.exe

unpack_into tar
tar xzf "$packages"/VendorInfoFile-*-linux-*.tar.gz
cd VendorInfoFile-*
check_manual . site-functions
check "$PWD" bin/vif

unpack_into deb
dpkg-deb -x "$packages"/vendorinfofile_*.deb .
check_manual usr vendor-completions
check "$PWD/usr" bin/vif
dpkg-deb -f "$packages"/vendorinfofile_*.deb Depends | grep -q libxml2 || fail 'the package does not depend on libxml2'

echo "All packages are complete and work."
