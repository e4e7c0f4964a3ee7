#!/usr/bin/env bash
# Builds one program of examples/c in another language against the package installed in $PREFIX, and runs it.
# CMakeLists.txt sets the environment. Says "SKIPPED: " and why where there is no compiler for the language.
set -euo pipefail

sources=$(cd "$(dirname "$0")/../.." && pwd)
programs=$sources/examples/c
lib=$PREFIX/$LIBDIR
work=$WORK/languages/$1
rm -rf "$work"
mkdir -p "$work"
vifs=$PREFIX/share/vendorinfofile/examples

fail() { echo "FAILED: $*" >&2; exit 1; }
skip() { echo "SKIPPED: $*"; exit; }
need() { command -v "$1" >/dev/null || skip "there is no $1"; }

# Expects a program to end with a status and to print a text.
expect() {
  local wanted_status=$1 wanted=$2 printed status=0
  shift 2
  printed=$("$@") || status=$?
  [ $status -eq "$wanted_status" ] || fail "$* ended with $status instead of $wanted_status, and printed:
$printed"
  [[ ${printed//$'\r'/} == *"$wanted"* ]] || fail "$* printed, without '$wanted':
$printed"
}

if [ "$1" = MicrosoftAbi ]; then
  [ -n "$EMULATOR" ] || skip 'only Windows has this ABI'
  need clang
  need lld-link
  need llvm-dlltool
  [ -f "$lib/vif.lib" ] || fail 'vif.lib is not installed'
  cd "$work"
  printf 'LIBRARY kernel32.dll\nEXPORTS\nGetStdHandle\nWriteFile\nExitProcess\n' >kernel32.def
  llvm-dlltool -m i386:x86-64 -d kernel32.def -l kernel32.lib
  clang --target=x86_64-pc-windows-msvc -std=c99 -pedantic -Wall -Wextra -Werror -O1 -ffreestanding -fno-stack-protector \
    -I"$PREFIX/include" -c "$sources/tests/package/microsoft-abi/program.c" -o program.obj
  lld-link /entry:Start /subsystem:console /nodefaultlib program.obj "$lib/vif.lib" kernel32.lib /out:program.exe
  cp "$vifs/usb4-dock.xml" dock.xml
  WINEPATH="Z:${PREFIX//\//\\}\\bin" expect 0 '378 fields' "$EMULATOR" program.exe
  exit
fi

[ -z "$EMULATOR" ] || skip 'compilers for this system make no programs for the other one'
[ -z "$SANITIZE" ] || skip 'a program that is not sanitized itself cannot load a sanitized library'
export PKG_CONFIG_PATH=$lib/pkgconfig LD_LIBRARY_PATH=$lib
need pkg-config
read -ra package <<<"$(pkg-config --cflags --libs vif)"
strict=(-pedantic -Wall -Wextra -Werror)

compile_c() {
  need "$1"
  "$1" -std=c99 "${strict[@]}" "$programs/fields.c" "${package[@]}" -o "$work/fields"
  expect 0 'Component 3: Port_Label' "$work/fields" "$vifs/usb4-dock.xml"
  expect 0 'Fields: 378, components: 3' "$work/fields" "$vifs/usb4-dock.xml"
  expect 1 'fields: VIF Does not exist.' bash -c "'$work/fields' missing.txt 2>&1"
  printf '<a/>' >"$work/a.xml"
  expect 1 "line 1: The root element is 'a'" bash -c "'$work/fields' '$work/a.xml' 2>&1"
}

case $1 in
  C99WithGcc)
    compile_c gcc
    python3 -B "$sources/tests/package/code_blocks.py" "$work/samples" "$sources/docs/c.md" >/dev/null
    gcc -std=c99 "${strict[@]}" "$work"/samples/*.c "${package[@]}" -o "$work/sample"
    expect 0 'source PDO 2: 180 x 50 mV' "$work/sample" "$vifs/gan-charger-65w.txt"
    ;;
  C99WithClang) compile_c clang ;;
  Cpp98)
    need g++
    g++ -std=c++98 "${strict[@]}" -fno-exceptions "$programs/check.cpp" "${package[@]}" -o "$work/check"
    expect 1 '[pdo-above-rating]' "$work/check" "$sources/docs/overrated-charger.txt"
    ;;
  CSharp)
    need mcs
    need mono
    mcs -warnaserror -out:"$work/Compare.exe" "$programs/Compare.cs"
    expect 0 'PD_Power_As_Source: 60000 -> 65000' \
      mono "$work/Compare.exe" "$sources/docs/overrated-charger.txt" "$sources/docs/revised-charger.txt"
    ;;
  Rust)
    need rustc
    rustc -D warnings "$programs/source_pdos.rs" -L "$lib" -C link-arg=-Wl,-rpath-link,"$lib" -o "$work/source_pdos"
    expect 0 'Component 1, source PDO 2: 9 V' "$work/source_pdos" "$vifs/gan-charger-65w.txt"
    ;;
  CMake)
    need cmake
    need cc
    cat >"$work/CMakeLists.txt" <<'END'
cmake_minimum_required(VERSION 3.25)
project(Fields LANGUAGES C)
find_package(VendorInfoFile REQUIRED)
add_executable(fields fields.c)
target_link_libraries(fields PRIVATE VendorInfoFile::C)
END
    cp "$programs/fields.c" "$work"
    cmake -S "$work" -B "$work/build" -G Ninja -DCMAKE_PREFIX_PATH="$PREFIX"
    cmake --build "$work/build"
    expect 0 'Fields: 378, components: 3' "$work/build/fields" "$vifs/usb4-dock.xml"
    ;;
  *) fail "unknown check: $1" ;;
esac
