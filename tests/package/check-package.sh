#!/usr/bin/env bash
# Runs one check on the package installed in $PREFIX. CMakeLists.txt sets the environment.
set -euo pipefail

here=$(cd "$(dirname "$0")" && pwd)
sources=$(cd "$here/../.." && pwd)
lib=$PREFIX/$LIBDIR
headers=$PREFIX/include/vendorinfofile
work=$WORK/$1
rm -rf "$work"
mkdir -p "$work"
xml=$PREFIX/share/vendorinfofile/examples/usb4-dock.xml
read -ra flags <<<"$FLAGS"
[ -z "$SANITIZE" ] || flags+=("-fsanitize=$SANITIZE")

fail() { echo "FAILED: $*" >&2; exit 1; }

# Programs of another system run under an emulator, which must find the libraries.
run=()
if [ -n "$EMULATOR" ]; then
  run=("$EMULATOR")
  export WINEPATH="Z:${PREFIX//\//\\}\\bin"
fi

# Expects the consumer to read a file and to catch what the library throws.
check_consumer() {
  printf 'PID: 1\nUSB_VID: 0x1A2B\n' >"$work/a.txt"
  local said
  said=$("${run[@]}" "$1" "$work/a.txt" | tr -d '\r')
  [ "$said" = '2 fields, last USB_VID=0x1A2B' ] || fail "the consumer said: $said"
  said=$("${run[@]}" "$1" "$work/b.txt" | tr -d '\r') && fail 'the consumer accepted a missing file'
  [ "$said" = "refused: VIF Does not exist. (name: $work/b.txt)" ] || fail "the consumer said: $said"
}

# Lists the demangled names that a library exports.
exported_by() {
  if [ -n "$EMULATOR" ]; then
    "$OBJDUMP" -p "$PREFIX/bin/$1.dll" | sed -n '/^\[Ordinal\/Name Pointer\]/,/^$/s/^\t\[ *[0-9]*\] //p' | c++filt -_
  else
    nm -DC --defined-only "$lib/lib$1.so" | sed '/ A /d; s/^[^ ]* . //; s/@@.*//'
  fi | LC_ALL=C sort -u
}

# Compiles against the installed headers; links too if given an output file.
compile() { "$CXX" -std=c++20 -Wall -Wextra -Werror "${flags[@]}" -I"$headers" "$@"; }
link=("-L$lib" -lVendorInfoFile -lVendorInfoFileHost "-Wl,-rpath,$lib")

# shellcheck source=tests/package/samples.sh
. "$here/samples.sh"

# Prints a source that includes every installed header.
include_all() { (cd "$headers" && find . -name '*.h' -printf '#include <%P>\n') | LC_ALL=C sort; }

case $1 in
  FoundByCMake)
    if [ -n "$TOOLCHAIN" ]; then
      # The toolchain searches for packages only under its roots.
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
    [ "$(pkg-config --modversion vendorinfofile)" = "$VERSION" ] || fail 'pkg-config reports another version'
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
    [ -z "$EMULATOR" ] || { echo 'SKIPPED: Windows does not search for libraries through symbolic links'; exit; }
    mkdir "$work/files"
    ln -s "$lib"/*.so* "$work/files"
    ln -s "$lib" "$work/directory"
    for links in files directory; do
      LD_LIBRARY_PATH=$work/$links "$PREFIX/bin/vif" list "$xml" >"$work/$links.txt" ||
        fail "no schemas through links: $links"
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
    LD_LIBRARY_PATH=$LIBDIR "${run[@]}" "$work/moving$EXE" "$work/elsewhere" "$xml" ||
      fail 'no schemas from another directory'
    ;;
  HeadersStandAlone)
    count=0
    while IFS= read -r header; do
      count=$((count + 1))
      printf '#include "%s"\n' "$header" >"$work/$count.cpp"
    done < <(cd "$headers" && find . -name '*.h')
    [ "$count" -ge 9 ] || fail "only $count headers are installed"
    printf '%s\0' "$work"/*.cpp | xargs -0 -P "$(nproc)" -n 1 \
      "$CXX" -std=c++20 "${flags[@]}" -Wall -Wextra -Werror -I"$headers" -fsyntax-only ||
      fail 'the headers above do not compile on their own'
    ;;
  NamesLeftToPrograms)
    [ -z "$EMULATOR" ] || { echo 'SKIPPED: COM declares these names itself'; exit; }
    include_all >"$work/all.h"
    for own in own_types own_macros; do
      compile -include "$here/names/$own.h" -include "$work/all.h" "$CONSUMER/consumer.cpp" "${link[@]}" -o "$work/before" ||
        fail "the headers do not compile after $own.h"
      check_consumer "$work/before"
      compile -include "$work/all.h" -include "$here/names/$own.h" "$CONSUMER/consumer.cpp" "${link[@]}" -o "$work/after" ||
        fail "the headers do not compile before $own.h"
      check_consumer "$work/after"
    done
    ;;
  GlobalNamesAreKnown)
    [ -z "$EMULATOR" ] || { echo 'SKIPPED: COM declares further names'; exit; }
    include_all >"$work/all.h"
    compile -E -dD -x c++ "$work/all.h" | python3 -B "$here/names/global_names.py" "$headers/" >"$work/global-names.txt"
    diff "$here/names/global-names.txt" "$work/global-names.txt" ||
      fail 'the global names that the headers declare differ from tests/package/names/global-names.txt'
    ;;
  ExportsOnlyWhatIsIntended)
    for library in VendorInfoFile VendorInfoFileAnalysis VendorInfoFileHost vif; do
      exported_by "$library" >"$work/$library.txt"
      [ -s "$work/$library.txt" ] || fail "$library exports nothing"
      # A DLL exports whole classes, and the list has the type names of 64-bit systems with libstdc++.
      if [ -n "$EMULATOR" ] || [ "$(getconf LONG_BIT)" != 64 ] || grep -q 'std::__1::' "$work"/*.txt; then
        ! grep -E '^(vif::|msxml::|CVIFImpl|std::)' "$work/$library.txt" || fail "$library exports the names above"
      else
        diff "$here/exports/$library.txt" "$work/$library.txt" ||
          fail "the exports of $library differ from tests/package/exports/$library.txt"
      fi
    done
    ;;
  ExportsNoUniqueSymbols)
    [ -z "$EMULATOR" ] || { echo 'SKIPPED: Windows has no unique symbols'; exit; }
    for library in VendorInfoFile VendorInfoFileAnalysis VendorInfoFileHost vif; do
      symbols=$(nm -DC --defined-only "$lib/lib$library.so")
      ! grep ' u ' <<<"$symbols" ||
        fail "the symbols above keep $library from being unloaded"
    done
    ;;
  NamedForItsAbi)
    [ -z "$EMULATOR" ] || { echo 'SKIPPED: the name of a DLL has no version'; exit; }
    abi=${VERSION%%.*}
    [ "$abi" != 0 ] || abi=${VERSION%.*}
    for library in VendorInfoFile VendorInfoFileAnalysis VendorInfoFileHost vif; do
      readelf -d "$lib/lib$library.so" | grep -qF "[lib$library.so.$abi]" || fail "$library is not named for ABI $abi"
      [ -z "$(nm -D --defined-only "$lib/lib$library.so" | grep -vE "(@@| A )${library^^}_$abi\$")" ] ||
        fail "$library has symbols without the version $abi"
    done
    ;;
  PackagedForItsVersion)
    abi=${VERSION%%.*}
    [ "$abi" != 0 ] || abi=${VERSION%.*}
    [[ $(head -n 1 "$sources/debian/changelog") == "vendorinfofile ($VERSION-"* ]] ||
      fail "debian/changelog does not begin with $VERSION"
    for library in libvendorinfofile libvif; do
      grep -qx "Package: $library$abi" "$sources/debian/control" || fail "debian/control has no $library$abi"
      for file in install symbols; do
        [ -f "$sources/debian/$library$abi.$file" ] || fail "debian/$library$abi.$file is missing"
      done
      ! grep -vE "^#|^\*|so\.$abi $library$abi|_$abi $abi\." "$sources/debian/$library$abi.symbols" ||
        fail "debian/$library$abi.symbols has the lines above for another version"
    done
    ;;
  PartOfAnotherProject)
    with=(-DCMAKE_CXX_COMPILER="$CXX")
    [ -z "$TOOLCHAIN" ] || with=(--toolchain "$TOOLCHAIN")
    extract_samples
    mkdir "$work/parent"
    cp "$here/parent/CMakeLists.txt" "$work/parent"
    cp "$CONSUMER/consumer.cpp" "$work/parent/my_tests.cpp"
    cp "$(sample_with cmake 'add_subdirectory(VendorInfoFile)')" "$work/parent/sample.cmake"
    ln -s "$sources" "$work/parent/VendorInfoFile"
    # Flags that a distribution might set. MinGW-w64 has the functions of _FORTIFY_SOURCE in a library of their own.
    fortify='-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3'
    [ -z "$EMULATOR" ] || fortify=
    cmake -S "$work/parent" -B "$work/build" -G Ninja "${with[@]}" -DCMAKE_COMPILE_WARNING_AS_ERROR=ON \
      -DCMAKE_CXX_FLAGS="${flags[*]} -O1 $fortify"
    cmake --build "$work/build" --target my_tests
    [ -n "$EMULATOR" ] || check_consumer "$work/build/my_tests$EXE"
    cmake --install "$work/build" --prefix "$work/prefix"
    installed=$(cd "$work/prefix" && find . -type f)
    [ "$installed" = "./bin/my_tests$EXE" ] || fail "the library installed files of its own: $installed"
    ;;
  FortifiedAsTheFlagsSay)
    [ -z "$EMULATOR" ] || { echo 'SKIPPED: Windows has no fortified calls'; exit; }
    [ -z "$SANITIZE" ] || { echo 'SKIPPED: the sanitizers check these calls themselves'; exit; }
    # Expects a level of _FORTIFY_SOURCE in a source of the library when a project compiles it with these flags.
    expect_level() {
      cmake -S "$sources" -B "$work/build" -G Ninja --fresh -DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_CXX_FLAGS="$2" \
        -DCMAKE_BUILD_TYPE="$3" -DCMAKE_EXPORT_COMPILE_COMMANDS=ON >"$work/log.txt" || fail "cannot configure with $2"
      local command level
      command=$(grep -oP '"command": "\K[^"]*(?= -o )(?=.*/field/VIFField\.cpp")' \
        <(sed 's/\\"/'"'"'/g' "$work/build/compile_commands.json")) || fail 'no command compiles VIFField.cpp'
      level=$(cd "$work/build" && eval "$command -E -dM '$sources/field/VIFField.cpp'" |
        sed -n 's/^#define _FORTIFY_SOURCE //p')
      [ "$level" = "$1" ] || fail "with '$2' and build type '$3' the level is '$level', not '$1'"
    }
    none="$("$CXX" -O1 -E -dM -x c++ - </dev/null | sed -n 's/^#define _FORTIFY_SOURCE //p')"
    expect_level "${none:-2}" '' Release
    expect_level "${none:-2}" '' ''  # Release is the default
    expect_level '' '' Debug
    expect_level 3 '-D_FORTIFY_SOURCE=3' Release
    expect_level 1 '-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=1' Release
    expect_level '' '-U_FORTIFY_SOURCE' Release
    ;;
  DocumentedSamples) check_samples ;;
  LinksOfDocumentsLead)
    mapfile -t installed < <(find "$PREFIX/share/doc" -name '*.md')
    [ ${#installed[@]} -ge 9 ] || fail "only ${#installed[@]} documents are installed"
    python3 -B "$here/broken_links.py" "${installed[@]}" || fail 'the links above, in installed documents, are broken'
    mapfile -t documents < <(find "$sources" -name '*.md' -not -path "$sources/build/*" -not -path '*/node_modules/*')
    python3 -B "$here/broken_links.py" "${documents[@]}" ||
      fail 'the links above, in the sources, are broken'
    mapfile -t scripts < <(grep -ohE '(scripts|tests|python)/[A-Za-z0-9_/.-]+\.(sh|py|cpp|h)\b' "${documents[@]}" | sort -u)
    [ ${#scripts[@]} -ge 20 ] || fail "the documents name only ${#scripts[@]} scripts"
    for script in "${scripts[@]}"; do
      [ -e "$sources/$script" ] || fail "the documents name $script, which does not exist"
    done
    ;;
  SiteHasEveryHeader)
    "$sources/scripts/docs.sh" --headers | sed -E '/^c\/vif\.h$/d; s#^(include|host)/##' | LC_ALL=C sort >"$work/site.txt"
    (cd "$headers" && find . -name '*.h' -printf '%P\n') | LC_ALL=C sort | diff "$work/site.txt" - ||
      fail 'the site (<) and the installation (>) do not have the same headers'
    ;;
  *) fail "unknown check: $1" ;;
esac
