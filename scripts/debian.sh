#!/usr/bin/env bash
# Builds the Debian packages of what is committed here, in a bare system of each release, and checks them with lintian.
# In another bare system it installs them and runs each test of debian/tests, with only the packages that the test names
# and what they depend on. Prints the packages with their sizes. Fails when anything fails.
#
#   scripts/debian.sh [SUITE...]     bookworm and trixie by default; needs root and debootstrap
#
# The packages go to build/debian/SUITE. The systems stay where scripts/systems.sh says. DEB_BUILD_OPTIONS is passed on;
# by default the packages' tests of the sources do not run, because test.sh runs them.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/systems.sh
. scripts/systems.sh

suites=("$@")
[ $# -gt 0 ] || suites=(bookworm trixie)
options=${DEB_BUILD_OPTIONS:-nocheck parallel=$(nproc)}
output=$source/build/debian

# These run in a system.

# Builds the source package, from it the others, and an index by which apt can install them.
build_packages() {
  apt-get update -qq
  apt-get install -y -qq --no-install-recommends build-essential lintian >/dev/null
  cd /root/packages/vendorinfofile-*/
  apt-get build-dep -y -qq --no-install-recommends . >/dev/null
  dpkg-buildpackage -us -uc
  cd ..
  dpkg-scanpackages . >Packages
  echo "==> lintian"
  lintian --allow-root --display-info --pedantic --fail-on error,warning ./*.changes
}

remove_packages() {
  local names
  names=$(dpkg-query -W -f '${Package} ' '*vif*' '*vendorinfofile*' 2>/dev/null || true)
  # shellcheck disable=SC2086  # a list
  apt-get purge -y -qq $names >/dev/null
  apt-get autoremove --purge -y -qq >/dev/null
}

test_packages() {
  echo 'deb [trusted=yes] file:/root/packages ./' >/etc/apt/sources.list.d/packages.list
  apt-get update -qq
  local tests name='' wanted line changed
  tests=$(echo /root/packages/vendorinfofile-*/debian/tests)
  # Not by standard input, from which the tests could take the lines.
  while IFS= read -r -u 3 line; do
    case $line in
      Tests:*) name=${line#Tests: } ;;
      Depends:*)
        wanted=${line#Depends: }
        echo "==> Test \"$name\" with $wanted"
        # shellcheck disable=SC2086  # a list
        apt-get install -y -qq --no-install-recommends ${wanted//,/} >/dev/null
        # The next test must not find them.
        # shellcheck disable=SC2086  # a list
        apt-mark auto ${wanted//,/} >/dev/null
        "$tests/$name"
        remove_packages
        ;;
    esac
  done 3<"$tests/control"
  echo "==> All packages"
  apt-get install -y -qq --no-install-recommends /root/packages/*.deb >/dev/null
  # shellcheck disable=SC2046  # a list
  changed=$(dpkg --verify $(dpkg-query -W -f '${Package} ' '*vif*' '*vendorinfofile*'))
  [ -z "$changed" ] || { printf 'Installed files differ from those of the packages:\n%s\n' "$changed" >&2; return 1; }
  remove_packages
  [ ! -e /usr/share/vendorinfofile ] || { echo "The packages leave files behind" >&2; return 1; }
}

# Runs one of the above in a system.
call_inside() {
  inside "$1" env DEBIAN_FRONTEND=noninteractive DEB_BUILD_OPTIONS="$options" \
    bash -c "set -euo pipefail; $(declare -f build_packages remove_packages test_packages); $2"
}

for suite in "${suites[@]}"; do
  bare=$home/bare-$suite build=$home/debian-$suite test=$home/debian-test-$suite
  make_system "$suite" amd64 "$bare" ca-certificates
  if [ ! -d "$build" ]; then
    # Under another name until it is complete.
    rm -rf --one-file-system "$build.new"
    cp -a --reflink=auto "$bare" "$build.new"
    mv "$build.new" "$build"
  fi
  rm -rf "$build/root/packages"
  scripts/debian-source.sh "$build/root/packages" >/dev/null
  echo "==> Building the packages on $suite"
  call_inside "$build" build_packages

  rm -rf --one-file-system "$test"
  cp -a --reflink=auto "$bare" "$test"
  cp -a "$build/root/packages" "$test/root/"
  echo "==> Installing and testing the packages on $suite"
  call_inside "$test" test_packages
  rm -rf --one-file-system "$test"

  rm -rf "${output:?}/$suite"
  mkdir -p "$output/$suite"
  cp "$build"/root/packages/vendorinfofile_* "$build"/root/packages/*.deb "$output/$suite"
done
for suite in "${suites[@]}"; do
  echo "==> Packages for $suite"
  (cd "$output/$suite" && du -b -- *.deb *.dsc *.tar.* | sort -k 2)
done
