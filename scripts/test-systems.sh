#!/usr/bin/env bash
# Creates a bare system of each kind in a chroot, runs ./run.sh and ./test.sh there on what is committed here, and
# prints a table of the outcomes. Fails when a system fails.
#
#   scripts/test-systems.sh [NAME...]     all systems by default; needs root and debootstrap
#
# The systems with their builds, and the logs, stay in VENDORINFOFILE_SYSTEMS, by default build/systems; remove it to
# start afresh. Packages come from the archive that this machine's apt uses for Debian, or from VENDORINFOFILE_MIRROR.
set -euo pipefail
cd "$(dirname "$0")/.."

# Name, suite, architecture, and the function that tests it.
systems="
bookworm         bookworm  amd64  test_all
trixie           trixie    amd64  test_all
sid              sid       amd64  test_all
bookworm-i386    bookworm  i386   test_all
bookworm-libc++  bookworm  amd64  test_libcxx
bookworm-arm64   bookworm  amd64  test_arm64
"

# These run in the system, in its copy of the repository, and leave ctest's report in build/report.xml.
test_all() {
  ./run.sh >/dev/null
  ./test.sh --output-junit "$PWD/build/report.xml"
}

test_libcxx() {
  export CXX=clang++ CXXFLAGS=-stdlib=libc++
  test_all
}

# Under an emulator, running everything would take too long.
test_arm64() {
  scripts/setup.sh arm64
  scripts/build.sh arm64 -DVENDORINFOFILE_BUILD_TESTS=ON --target vif --target field_tests \
    --target reader_tests --target vif_tests
  qemu-aarch64-static build/arm64/cli/vif show examples/vif/usb4-dock.xml >/dev/null
  ctest --preset arm64 --parallel "$(nproc)" -R '^(field|reader|vif)_tests\.' --output-junit "$PWD/build/report.xml"
}

# shellcheck source=scripts/systems.sh
. scripts/systems.sh

# A count from the report, such as "failures"; - if there is none.
count() { grep -o "[[:blank:]]$1=\"[0-9]*\"" "$2" 2>/dev/null | head -n 1 | grep -o '[0-9]*' || echo -; }

print_row() { printf '%-16s %-14s %-9s %7s %7s %8s %8s  %s\n' "$@"; }

# Tests one system and prints its row; its output goes to its log.
test_system() {
  local name=$1 suite=$2 architecture=$3 test=$4
  local root=$home/$name log=$home/$name.log begin=$SECONDS outcome=ok
  local report=$root/$copy/build/report.xml all failed skipped passed=- compiler libxml2
  rm -f "$report"  # that of an earlier run
  set +e
  (
    set -e
    make_system "$suite" "$architecture" "$root"
    copy_repository "$root"
    inside "$root" bash -c "set -euo pipefail; cd /$copy; $(declare -f test_all "$test"); $test"
  ) >"$log" 2>&1 </dev/null
  [ $? -eq 0 ] || outcome="FAILED, see $log"
  set -e

  all=$(count tests "$report")
  failed=$(count failures "$report")
  skipped=$(count skipped "$report")
  [[ $all$failed$skipped == *-* ]] || passed=$((all - failed - skipped))
  compiler=$(cat "$root/$copy"/build/*/CMakeFiles/*/CMakeCXXCompiler.cmake 2>/dev/null |
    sed -n 's/^set(CMAKE_CXX_COMPILER_\(ID\|VERSION\) "\(.*\)")$/\2/p' | head -n 2 | paste -sd ' ' || true)
  libxml2=$(sed -n 's/^#define LIBXML_DOTTED_VERSION "\(.*\)"/\1/p' "$root/usr/include/libxml2/libxml/xmlversion.h" \
    2>/dev/null || true)
  print_row "$name" "${compiler:--}" "${libxml2:--}" "$passed" "$failed" "$skipped" "$((SECONDS - begin)) s" "$outcome"
  [ "$outcome" = ok ] || status=1
}

for name in "$@"; do
  grep -q "^$name " <<<"$systems" || fail "There is no system '$name'; there are$(awk '{ printf " %s", $1 }' <<<"$systems")"
done

status=0
print_row system compiler libxml2 passed failed skipped time ''
while read -r name suite architecture test; do
  [ -n "$name" ] || continue
  [ $# -eq 0 ] || [[ " $* " == *" $name "* ]] || continue
  test_system "$name" "$suite" "$architecture" "$test"
done <<<"$systems"
exit $status
