#!/usr/bin/env bash
# Tests the site of the documentation: that it builds; that an undocumented name and a broken link fail the build; that
# two builds in other folders, locales and time zones are equal; and, in Chromium without a network, that it can be read
# on a telephone and searched.
#
# VIF names the command, as for scripts/docs.sh.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh browser
scripts/docs.sh
VIF=$(realpath "${VIF:-build/release/cli/vif}")
export VIF

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# The sources as they are here, committed or not.
git ls-files -z --cached --others --exclude-standard | xargs -0 sh -c 'for f; do [ ! -e "$f" ] || printf "%s\0" "$f"; done' - |
  tar --null --create --files-from=- | tar --extract --directory "$work" --one-top-level=sources
copy=$work/sources

echo "==> Building it again, elsewhere"
(cd "$copy" && LC_ALL=C.UTF-8 TZ=Pacific/Chatham scripts/docs.sh "$work/again" >/dev/null)
if ! diff -rq build/docs "$work/again" >"$work/differences"; then
  echo "Two builds differ:" >&2
  head -n 20 "$work/differences" >&2
  exit 1
fi

# Expects the build to fail and to name a text, once a file of the copy has been changed by a sed script.
expect_failure() {
  local text=$1 file=$2 change=$3
  cp "$copy/$file" "$work/kept"
  sed -i "$change" "$copy/$file"
  ! cmp -s "$copy/$file" "$work/kept" || { echo "$file has nothing to change for '$change'" >&2; exit 1; }
  if (cd "$copy" && scripts/docs.sh "$work/broken") >"$work/said.txt" 2>&1; then
    echo "The site builds despite '$change' in $file" >&2
    exit 1
  fi
  grep -qF -- "$text" "$work/said.txt" || { echo "'$change' in $file is not reported: $(cat "$work/said.txt")" >&2; exit 1; }
  cp "$work/kept" "$copy/$file"
}
echo "==> Breaking it"
expect_failure 'NewFunction' include/VIFPositions.h '$aVIF_API void NewFunction();'
expect_failure "parameter 'second'" include/VIFPositions.h '$a/// New.\n/// \\param first one\nVIF_API void NewFunction(int first, int second);'
expect_failure 'vif_new_function' c/vif.h 's/^VIF_C_API const char\* vif_version(void);/&\nVIF_C_API int vif_new_function(void);/'
expect_failure 'newMember' analysis/Finding.h 's/^struct Finding {/&\n  int newMember;/'
expect_failure 'no docstring: ANY' python/src/vendorinfofile/_library.py '/^"""In a query, any number/d'
expect_failure 'docs/none.md does not exist' README.md '$a[none](docs/none.md)'
expect_failure 'command.html#command--none has no such anchor' README.md '$a[none](docs/command.md#none)'

echo "==> Reading it in a browser"
SITE=$PWD/build/docs node --test --test-reporter=spec tests/browser/site/*.test.js
