# Sourced by the scripts that run Windows programs under Wine: what they run in.
#
# Wine keeps its files in WINEPREFIX; when that is not set, in a directory of this project's own, made on first use.

export WINEPREFIX=${WINEPREFIX:-$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/build/wine}
export WINEDEBUG=${WINEDEBUG:--all}
# No offers to install what no test needs.
export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml=}

# Makes the prefix unless it is there.
make_wine_prefix() {
  [ ! -e "$WINEPREFIX/made" ] || return 0
  mkdir -p "$WINEPREFIX"
  (
    flock 9
    [ ! -e "$WINEPREFIX/made" ] || exit 0
    wine wineboot --init </dev/null >/dev/null 2>&1 9>&- || { echo "Wine cannot make $WINEPREFIX" >&2; exit 1; }
    wineserver -w
    touch "$WINEPREFIX/made"
  ) 9>"$WINEPREFIX.lock"
}

# Keeps Wine's server until the script ends. Otherwise each program that comes when the last one has gone starts it anew,
# which takes longer and sometimes fails. A server that somebody else keeps serves, too.
keep_wine_server() {
  make_wine_prefix
  if wineserver -p </dev/null >/dev/null 2>&1; then
    trap 'wineserver -k || true' EXIT
  fi
}
