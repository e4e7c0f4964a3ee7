#!/usr/bin/env bash
# Builds packages of what is committed twice: in folders of different names and lengths, with different clocks, homes,
# names of the user, umasks, locales and time zones. Fails when the packages differ, names those that do, and lets
# diffoscope say how.
#
#   scripts/check-reproducible.sh [KIND]...     the kinds of package.sh; all of them by default
#
# The two builds share nothing but the sources and the packages that scripts/setup.sh installs. faketime sets the clock of
# the second; without it, both have the same. Both run as the same user on the same machine.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD

[ $# -gt 0 ] || set -- tar zip static wheel site debian
SOURCE_DATE_EPOCH=$(scripts/source-date.sh)
export SOURCE_DATE_EPOCH
unset CMAKE_CXX_COMPILER_LAUNCHER  # each build compiles for itself
scripts/setup.sh package
scripts/setup.sh reproducible
work=$root/build/reproducible
rm -rf "$work"
first=$work/a second=$work/another-folder/with-a-longer-name
for copy in "$first" "$second"; do
  mkdir -p "$copy" "$work/home-of-$(basename "$copy")"
  git archive HEAD | tar -x -C "$copy"
  # Debian's sources are made from what is committed.
  git -C "$copy" init --quiet
  git -C "$copy" fetch --quiet "$root" HEAD
  git -C "$copy" reset --quiet FETCH_HEAD
  [ ! -d tests/sbom/node_modules ] || cp -r tests/sbom/node_modules "$copy/tests/sbom/"
done

echo "==> The first build"
(umask 022 && HOME=$work/home-of-a USER=first LC_ALL=C.UTF-8 TZ=UTC "$first/package.sh" "$@")
echo "==> The second build"
later=()
if command -v faketime >/dev/null; then
  later=(faketime -f +400d)
else
  echo "faketime is missing, so both builds have the same clock" >&2
fi
(umask 077 && HOME=$work/home-of-with-a-longer-name USER=second LC_ALL=C LANGUAGE=de TZ=Asia/Tokyo \
  "${later[@]}" "$second/package.sh" "$@")

status=0
compared=0
for package in "$first"/build/packages/*; do
  name=${package##*/}
  [ -f "$package" ] && [[ $name != *.log ]] || continue
  compared=$((compared + 1))
  if cmp -s "$package" "$second/build/packages/$name"; then
    echo "$name: the same, $(sha256sum "$package" | cut -c 1-16)"
    continue
  fi
  status=1
  echo "$name differs" >&2
  ! command -v diffoscope >/dev/null || diffoscope "$package" "$second/build/packages/$name" >&2 || true
done
[ $compared -gt 0 ] || { echo "There are no packages to compare" >&2; exit 1; }
exit $status
