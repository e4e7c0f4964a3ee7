#!/usr/bin/env bash
# Builds the site of the documentation, build/docs/index.html or DIRECTORY/index.html: the documents, the interface from
# the public headers and the Python package, the rules and the fields. It can be read from disk, and makes no request
# to other hosts. Fails if Doxygen warns, which it does for every name without a comment, or if a link leads nowhere.
#
#   scripts/docs.sh [DIRECTORY]
#   scripts/docs.sh --headers      prints the public headers
#
# VIF names the command that says what rules and fields are, by default that of the release build, which is built if it
# is not there.
set -euo pipefail
cd "$(dirname "$0")/.."

# The installed ones; package.SiteHasEveryHeader compares.
headers=(
  include/*.h analysis/*.h c/vif.h host/BaseUtilities/*.h
  host/TestUtilities/{AppState,DOMDoc,DOMDocProblem,TULog,TUUserInput}.h host/ZorvenLog/TestSuiteLog.h
  host/msxml/{Com,ComApartment,ComError,ComPointer,MsXml}.h
)
if [ "${1:-}" = --headers ]; then
  printf '%s\n' "${headers[@]}"
  exit
fi

output=$(realpath -m "${1:-build/docs}")
scripts/setup.sh docs
vif=${VIF:-build/release/cli/vif}
if [ ! -x "$vif" ]; then
  scripts/setup.sh build
  scripts/build.sh release --target vif
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/pages"

echo "==> Building the site"
python3 -B scripts/site/documents.py "$work/pages" "${headers[@]}" >"$work/pictures"
python3 -B scripts/site/tables.py "$vif" "$work/pages"
python3 -B scripts/site/interface.py "${headers[@]}" >"$work/pages/interface.md"
python3 -B scripts/site/python_interface.py python/src/vendorinfofile "$work/pages"

if [ -e "$output" ] && [ ! -f "$output/doxygen.css" ] && [ -n "$(ls -A "$output")" ]; then
  echo "$output is not a site that could be replaced" >&2
  exit 2
fi
rm -rf "$output"
mkdir -p "$output"
version=$(scripts/version.sh)
LC_ALL=C SITE_VERSION=$version SITE_WORK=$work SITE_OUTPUT=$output SITE_PAGES=$work/pages SITE_HEADERS="${headers[*]}" \
  SITE_PICTURES=$(sed "s|^|$work/pages/|" "$work/pictures" | tr '\n' ' ') doxygen scripts/site/Doxyfile
python3 -B scripts/site/directory_pages.py "$output"
python3 -B scripts/site/check_links.py "$output"
echo "==> The site is $output/index.html"
