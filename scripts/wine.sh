# shellcheck shell=bash
# The environment of Windows programs under Wine, sourced by the scripts that run them.
#
# Wine keeps its files in WINEPREFIX. By default that is a directory of this project, created on first use.

export WINEPREFIX=${WINEPREFIX:-$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/build/wine}
export WINEDEBUG=${WINEDEBUG:--all}
# Keeps Wine from offering to install components that no test needs.
export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml=}

# Creates the prefix unless it exists.
make_wine_prefix() {
  [ ! -e "$WINEPREFIX/made" ] || return 0
  mkdir -p "$WINEPREFIX"
  (
    flock 9
    [ ! -e "$WINEPREFIX/made" ] || exit 0
    wine wineboot --init </dev/null >/dev/null 2>&1 9>&- || { echo "Wine cannot create $WINEPREFIX" >&2; exit 1; }
    wineserver -w
    touch "$WINEPREFIX/made"
  ) 9>"$WINEPREFIX.lock"
}

# Keeps Wine's server running until the script ends. Otherwise a program that starts after the last one has ended
# restarts the server, which takes time and sometimes fails. A server that another script keeps running will do, too.
keep_wine_server() {
  make_wine_prefix
  if wineserver -p </dev/null >/dev/null 2>&1; then
    trap 'wineserver -k || true' EXIT
  fi
}
