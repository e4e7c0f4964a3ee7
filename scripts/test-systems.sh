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

source=$PWD
home=${VENDORINFOFILE_SYSTEMS:-$PWD/build/systems}
copy=root/VendorInfoFile

fail() { echo "$*" >&2; exit 2; }
[ "$(id -u)" -eq 0 ] || fail "chroot needs root"
command -v debootstrap >/dev/null || fail "debootstrap is missing; Debian has a package of that name"

# The archive of this machine's own release.
find_mirror() {
  local codename
  codename=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
  apt-get indextargets --format '$(SITE) $(CODENAME)' 'Created-By: Packages' 'Origin: Debian' |
    awk -v codename="$codename" '$2 == codename && !mirror { mirror = $1 } END { print mirror }'
}
mirror=${VENDORINFOFILE_MIRROR:-$(find_mirror || true)}
[ -n "$mirror" ] || fail "This machine's apt has no Debian archive; name one in VENDORINFOFILE_MIRROR"

# Runs a command in a system. The mounts are in a namespace that ends with the command, however that ends. Names are
# looked up as on this machine at that time.
inside() {
  local root=$1
  shift
  cp -L /etc/resolv.conf /etc/hosts "$root/etc/"
  unshare --mount bash -c 'mount -t proc proc "$0/proc" && mount --rbind /dev "$0/dev" && exec chroot "$0" "$@"' \
    "$root" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 "$@"
}

make_system() {
  local suite=$1 architecture=$2 root=$3
  [ ! -e "$root/made" ] || return 0
  rm -rf --one-file-system "$root"
  # In a namespace of its own too, because it mounts in the system, and may end before it unmounts.
  unshare --mount debootstrap --variant=minbase --include=ca-certificates,git --arch="$architecture" "$suite" "$root" "$mirror"
  apt-config dump | grep -E '^Acquire::https?::Proxy' >"$root/etc/apt/apt.conf.d/proxy" || true
  # Sid's package lists expire, and the archive may have older ones.
  [ "$suite" != sid ] || echo 'Acquire::Check-Valid-Until "false";' >"$root/etc/apt/apt.conf.d/old-lists"
  touch "$root/made"
}

# Updates the system's copy of the repository and keeps its build, so that builds are incremental.
copy_repository() {
  local there=$1/$copy
  git init --quiet "$there"
  git -C "$there" fetch --quiet "$source" HEAD
  git -C "$there" reset --quiet --hard FETCH_HEAD
}

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

mkdir -p "$home"
status=0
print_row system compiler libxml2 passed failed skipped time ''
while read -r name suite architecture test; do
  [ -n "$name" ] || continue
  [ $# -eq 0 ] || [[ " $* " == *" $name "* ]] || continue
  test_system "$name" "$suite" "$architecture" "$test"
done <<<"$systems"
exit $status
