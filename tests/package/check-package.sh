#!/usr/bin/env bash
# Checks one thing about the installed package, which lies in $PREFIX. See CMakeLists.txt for the environment.
set -euo pipefail

lib=$PREFIX/$LIBDIR
work=$WORK/$1
rm -rf "$work"
mkdir -p "$work"
xml=$PREFIX/share/vendorinfofile/examples/usb4-dock.xml
flags=()
[ -z "$SANITIZE" ] || flags=("-fsanitize=$SANITIZE")

fail() { echo "FAILED: $*" >&2; exit 1; }

# The program of another system runs under an emulator, which must find the libraries.
run=()
if [ -n "$EMULATOR" ]; then
  run=("$EMULATOR")
  export WINEPATH="Z:${PREFIX//\//\\}\\bin"
fi

# Expects the consumer to list a file and to catch what the library throws.
check_consumer() {
  printf 'PID: 1\nUSB_VID: 0x1A2B\n' >"$work/a.txt"
  local said
  said=$("${run[@]}" "$1" "$work/a.txt" | tr -d '\r')
  [ "$said" = '2 fields, last USB_VID=0x1A2B' ] || fail "the consumer said: $said"
  said=$("${run[@]}" "$1" "$work/b.txt" | tr -d '\r') && fail 'a missing file was not refused'
  [ "$said" = "refused: VIF Does not exist. (name: $work/b.txt)" ] || fail "the consumer said: $said"
}

# The names that a library exports, as people read them.
exported_by() {
  if [ -n "$EMULATOR" ]; then
    "$OBJDUMP" -p "$PREFIX/bin/$1.dll" | sed -n '/^\[Ordinal\/Name Pointer\]/,/^$/s/^\t\[ *[0-9]*\] //p' | c++filt -_
  else
    nm -DC --defined-only "$lib/lib$1.so" | sed 's/^[^ ]* . //; s/@@.*//'
  fi
}

case $1 in
  FoundByCMake)
    if [ -n "$TOOLCHAIN" ]; then
      # The toolchain looks for packages nowhere but under its roots.
      with=(--toolchain "$TOOLCHAIN" -DVendorInfoFile_DIR="$lib/cmake/VendorInfoFile")
    else
      with=(-DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_PREFIX_PATH="$PREFIX")
    fi
    cmake -S "$CONSUMER" -B "$work" -G Ninja "${with[@]}" -DCMAKE_CXX_FLAGS="${flags[*]}"
    cmake --build "$work"
    check_consumer "$work/consumer$EXE"
    ;;
  FoundByPkgConfig)
    export PKG_CONFIG_PATH=$lib/pkgconfig
    [ "$(pkg-config --modversion vendorinfofile)" = "$VERSION" ] || fail 'pkg-config knows another version'
    read -ra package <<<"$(pkg-config --cflags --libs vendorinfofile)"
    "$CXX" -std=c++20 "${flags[@]}" "$CONSUMER/consumer.cpp" "${package[@]}" -Wl,-rpath,"$lib" -o "$work/consumer$EXE"
    check_consumer "$work/consumer$EXE"
    ;;
  CommandRunsInPlace)
    count=0
    for example in "$PREFIX"/share/vendorinfofile/examples/*.txt; do
      listed=$("${run[@]}" "$PREFIX/bin/vif$EXE" list "$example")
      [[ $listed == *'Component 1'* ]] || fail "vif lists no component of $example"
      count=$((count + 1))
    done
    [ "$count" -ge 3 ] || fail "only $count examples are installed"
    ;;
  SchemasFoundThroughLinks)
    [ -z "$EMULATOR" ] || { echo 'SKIPPED: Windows does not look for libraries through symbolic links'; exit; }
    mkdir "$work/files"
    ln -s "$lib"/*.so* "$work/files"
    ln -s "$lib" "$work/directory"
    for links in files directory; do
      LD_LIBRARY_PATH=$work/$links "$PREFIX/bin/vif" list "$xml" >"$work/$links.txt" || fail "not through links: $links"
    done
    ;;
  SchemasFoundFromAnotherDirectory)
    cat >"$work/moving.cpp" <<'EOF'
#include <VendorInfoFile.h>
#include <msxml/ComApartment.h>

#include <filesystem>

int main(int, char** argv) {
  const CComApartment apartment;
  std::filesystem::current_path(argv[1]);
  return CVendorInfoFile(argv[2]).Count() == 0 ? 1 : 0;
}
EOF
    "$CXX" -std=c++20 "${flags[@]}" "$work/moving.cpp" -I"$PREFIX/include/vendorinfofile" -L"$lib" \
      -lVendorInfoFile -lVendorInfoFileHost $([ -z "$EMULATOR" ] || echo -lole32 -loleaut32) -o "$work/moving$EXE"
    mkdir "$work/elsewhere"
    cd "$PREFIX"
    LD_LIBRARY_PATH=$LIBDIR "${run[@]}" "$work/moving$EXE" "$work/elsewhere" "$xml" || fail 'not from another directory'
    ;;
  HeadersStandAlone)
    count=0
    while IFS= read -r header; do
      printf '#include "%s"\n' "$header" >"$work/one.cpp"
      "$CXX" -std=c++20 -Wall -Wextra -Werror -I"$PREFIX/include/vendorinfofile" -fsyntax-only "$work/one.cpp" ||
        fail "$header cannot be included alone"
      count=$((count + 1))
    done < <(cd "$PREFIX/include/vendorinfofile" && find . -name '*.h')
    [ "$count" -ge 9 ] || fail "only $count headers are installed"
    ;;
  ExportsOnlyWhatIsIntended)
    for library in VendorInfoFile VendorInfoFileAnalysis VendorInfoFileHost; do
      symbols=$(exported_by "$library")
      grep -q . <<<"$symbols" || fail "$library exports nothing"
      # Names of namespaces and layers that are nobody's business but the library's.
      ! grep -E '^(vif::|CVIFImpl|std::)' <<<"$symbols" || fail "$library exports the above"
    done
    ;;
  *) fail "no check is called $1" ;;
esac
