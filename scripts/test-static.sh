#!/usr/bin/env bash
# Builds the static command and runs it in a bare system of another release, from which the modules for encodings and the
# locales are removed. Its output must be that of the usual command on this system, for the examples, for generated files,
# and for a file in each encoding.
#
#   scripts/test-static.sh [SUITE [COUNT]]     bullseye by default, and COUNT (500) files of each form; needs root and
#                                              debootstrap
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/systems.sh
. scripts/systems.sh

suite=${1:-bullseye}
count=${2:-500}
usual=$source/build/release/cli/vif
tested=$source/build/static/cli/vif
work=$source/build/static/tested

scripts/setup.sh test
scripts/setup.sh package
scripts/build.sh release -DVENDORINFOFILE_BUILD_TESTS=ON --target vif --target generate_vifs
scripts/build.sh static --target VifManual --target vif
headers=$(readelf --wide --program-headers "$tested")
[[ $headers != *INTERP* ]] || fail "$tested needs libraries"

rm -rf "$work"
mkdir -p "$work/files"
cd "$work/files"
"$source/build/release/tests/platforms/generate_vifs" . "$count"
cp "$source"/examples/vif/*.txt "$source"/examples/vif/*.xml .

# A character of each encoding beyond ASCII. The last ones are refused: they do not exist, or have bytes that mean nothing.
in_encoding() {
  local name=$1 text=$2
  sed "s/encoding=\"[^\"]*\"/encoding=\"$name\"/; s|\(<vif:Vendor_Name>\)[^<]*|\1$text|" \
    "$source/examples/vif/gan-charger-65w.xml" | iconv -f UTF-8 -t "$name" >"encoding-$name.xml"
}
for name in ISO-8859-1 ISO-8859-15 WINDOWS-1252 CP1252 WINDOWS-1254 WINDOWS-1258; do in_encoding "$name" 'Größe ÿ'; done
for name in ISO-8859-2 WINDOWS-1250 ISO-8859-16; do in_encoding "$name" 'Łódź'; done
for name in ISO-8859-5 WINDOWS-1251 KOI8-R KOI8-U; do in_encoding "$name" 'Москва'; done
for name in ISO-8859-7 WINDOWS-1253; do in_encoding "$name" 'Αθήνα'; done
for name in ISO-8859-8 WINDOWS-1255; do in_encoding "$name" 'שלום'; done
for name in ISO-8859-6 WINDOWS-1256; do in_encoding "$name" 'سلام'; done
for name in GB2312 EUC-CN; do in_encoding "$name" '中文'; done
in_encoding WINDOWS-1257 'Šiauliai'
in_encoding TIS-620 'ไทย'
in_encoding EUC-JP '日本語'
in_encoding EUC-KR '한국어'
in_encoding EUC-TW '臺灣'
in_encoding UTF-16 'Größe 臺灣'
sed 's/encoding="[^"]*"/encoding="WINDOWS-9999"/' encoding-WINDOWS-1252.xml >unknown-encoding.xml
LC_ALL=C sed 's/\xFF/\x81/' encoding-WINDOWS-1252.xml >undefined-byte.xml
cd "$work"

# In the system: what each command says about each file.
list_all() {
  local file
  for file in files/*; do
    echo "== $file"
    "$1" list --format json "$file" 2>&1 || echo "status $?"
    "$1" check "$file" 2>&1 || echo "status $?"
  done
  "$1" report files/gan-charger-65w.xml
  "$1" explain Src_PDO_Voltage
}
list_all "$usual" >usual.txt

bare=$home/bare-$suite root=$home/static-$suite
make_system "$suite" amd64 "$bare" ca-certificates
rm -rf --one-file-system "$root"
cp -a --reflink=auto "$bare" "$root"
rm -rf "$root"/usr/lib/*/gconv "$root/usr/lib/locale" "$root/usr/share/i18n"
mkdir "$root/test"
cp -r files "$root/test/"
cp "$tested" "$root/test/vif"
! inside "$root" test -e /usr/lib/x86_64-linux-gnu/libxml2.so.2 || fail "$suite is not bare"
inside "$root" bash -c "cd /test; $(declare -f list_all); list_all ./vif" >static.txt
rm -rf --one-file-system "$root"

cmp usual.txt static.txt || { diff usual.txt static.txt | head -n 20; fail 'The static command says something else'; }
echo "The static command ($(stat -c %s "$tested") bytes) says the same on $suite about $(find files -type f | wc -l) files"
