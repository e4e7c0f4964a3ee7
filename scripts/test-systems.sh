#!/usr/bin/env bash
# Makes a bare system of each kind in a chroot, runs ./run.sh and ./test.sh there on what is committed here, and prints
# what came of it as a table. Fails when one of them does.
#
#   scripts/test-systems.sh [NAME...]     all systems unless some are named; needs root and debootstrap
#
# The systems, with what is built in them, and the logs stay in VENDORINFOFILE_SYSTEMS, which is build/systems unless
# set; remove it to begin anew. Packages come from the archive that this machine's apt uses for Debian, or from
# VENDORINFOFILE_MIRROR.
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

# Under an emulator not everything can be run in reasonable time.
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

# The archive that has what this machine's own release is made of.
find_mirror() {
  local codename
  codename=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
  apt-get indextargets --format '$(SITE) $(RELEASE)' 'Created-By: Packages' 'Origin: Debian' |
    awk -v codename="$codename" '$2 == codename { print $1; exit }'
}
mirror=${VENDORINFOFILE_MIRROR:-$(find_mirror)}
[ -n "$mirror" ] || fail "This machine's apt has no Debian archive; name one in VENDORINFOFILE_MIRROR"

# Runs a command in a system. The mounts are in a name space that ends with the command, however it ends.
inside() {
  local root=$1
  shift
  unshare --mount bash -c 'mount -t proc proc "$0/proc" && mount --rbind /dev "$0/dev" && exec chroot "$0" "$@"' \
    "$root" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 "$@"
}

make_system() {
  local suite=$1 architecture=$2 root=$3
  [ ! -e "$root/made" ] || return 0
  rm -rf "$root"
  debootstrap --variant=minbase --include=ca-certificates,git --arch="$architecture" "$suite" "$root" "$mirror"
  apt-config dump | grep -E '^Acquire::https?::Proxy' >"$root/etc/apt/apt.conf.d/proxy" || true
  # What is tested there may be older than its lists are meant to get.
  [ "$suite" != sid ] || echo 'Acquire::Check-Valid-Until "false";' >"$root/etc/apt/apt.conf.d/old-lists"
  touch "$root/made"
}

# Keeps what is built there, so that only what has changed is built again.
copy_repository() {
  local there=$1/$copy
  [ -e "$there" ] || git clone --quiet --no-hardlinks "$source" "$there"
  git -C "$there" fetch --quiet "$source" HEAD
  git -C "$there" reset --quiet --hard FETCH_HEAD
  rm -f "$there/build/report.xml"
}

# A count of the report, such as "failures"; - when there is none.
count() { grep -o " $1=\"[0-9]*\"" "$2" 2>/dev/null | head -n 1 | grep -o '[0-9]*' || echo -; }

print_row() { printf '%-16s %-34s %-9s %7s %7s %8s %8s  %s\n' "$@"; }

# Tests one system and prints its row; what is said on the way is in its log.
test_system() {
  local name=$1 suite=$2 architecture=$3 test=$4
  local root=$home/$name log=$home/$name.log begin=$SECONDS outcome=ok
  set +e
  (
    set -e
    make_system "$suite" "$architecture" "$root"
    copy_repository "$root"
    inside "$root" bash -c "set -euo pipefail; cd /$copy; $(declare -f test_all "$test"); $test"
  ) >"$log" 2>&1 </dev/null
  [ $? -eq 0 ] || outcome="FAILED, see $log"
  set -e

  local report=$root/$copy/build/report.xml all failed skipped passed=- compiler libxml2
  all=$(count tests "$report")
  failed=$(count failures "$report")
  skipped=$(count skipped "$report")
  [ "$all" = - ] || passed=$((all - failed - skipped))
  compiler=$(sed -n 's/^CMAKE_CXX_COMPILER:[A-Z]*=//p' "$root/$copy"/build/*/CMakeCache.txt 2>/dev/null | head -n 1)
  [ -z "$compiler" ] || compiler=$(inside "$root" "$compiler" --version | head -n 1)
  libxml2=$(sed -n 's/^#define LIBXML_DOTTED_VERSION "\(.*\)"/\1/p' "$root/usr/include/libxml2/libxml/xmlversion.h" || true)
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
