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

# Expects the consumer to list a file and to catch what the library throws.
check_consumer() {
  printf 'PID: 1\nUSB_VID: 0x1A2B\n' >"$work/a.txt"
  local said
  said=$("$1" "$work/a.txt")
  [ "$said" = '2 fields, last USB_VID=0x1A2B' ] || fail "the consumer said: $said"
  said=$("$1" "$work/b.txt") && fail 'a missing file was not refused'
  [ "$said" = "refused: VIF Does not exist. (name: $work/b.txt)" ] || fail "the consumer said: $said"
}

case $1 in
  FoundByCMake)
    cmake -S "$CONSUMER" -B "$work" -G Ninja -DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_PREFIX_PATH="$PREFIX" \
      -DCMAKE_CXX_FLAGS="${flags[*]}"
    cmake --build "$work"
    check_consumer "$work/consumer"
    ;;
  FoundByPkgConfig)
    export PKG_CONFIG_PATH=$lib/pkgconfig
    [ "$(pkg-config --modversion vendorinfofile)" = "$VERSION" ] || fail 'pkg-config knows another version'
    read -ra package <<<"$(pkg-config --cflags --libs vendorinfofile)"
    "$CXX" -std=c++20 "${flags[@]}" "$CONSUMER/consumer.cpp" "${package[@]}" -Wl,-rpath,"$lib" -o "$work/consumer"
    check_consumer "$work/consumer"
    ;;
  CommandRunsInPlace)
    count=0
    for example in "$PREFIX"/share/vendorinfofile/examples/*.txt; do
      listed=$("$PREFIX/bin/vif" list "$example")
      [[ $listed == *'Component 1'* ]] || fail "vif lists no component of $example"
      count=$((count + 1))
    done
    [ "$count" -ge 3 ] || fail "only $count examples are installed"
    ;;
  SchemasFoundThroughLinks)
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

#include <filesystem>

int main(int, char** argv) {
  std::filesystem::current_path(argv[1]);
  return CVendorInfoFile(argv[2]).Count() == 0 ? 1 : 0;
}
EOF
    "$CXX" -std=c++20 "${flags[@]}" "$work/moving.cpp" -I"$PREFIX/include/vendorinfofile" -L"$lib" \
      -lVendorInfoFile -lVendorInfoFileHost -o "$work/moving"
    mkdir "$work/elsewhere"
    cd "$PREFIX"
    LD_LIBRARY_PATH=$LIBDIR "$work/moving" "$work/elsewhere" "$xml" || fail 'not from another directory'
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
    for library in VendorInfoFile VendorInfoFileHost; do
      symbols=$(nm -DC --defined-only "$lib/lib$library.so" | sed 's/^[^ ]* . //; s/@@.*//')
      grep -q . <<<"$symbols" || fail "$library exports nothing"
      # Names of namespaces and layers that are nobody's business but the library's.
      ! grep -E '^(vif::|CVIFImpl|std::)' <<<"$symbols" || fail "$library exports the above"
    done
    ;;
  *) fail "no check is called $1" ;;
esac
