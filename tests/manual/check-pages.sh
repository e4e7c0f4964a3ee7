#!/usr/bin/env bash
# Runs one check on the manual pages installed below $PREFIX. CMakeLists.txt sets the environment.
#
# Each check that a program makes is first tried on a page with one mistake, which it must report.
set -euo pipefail

pages=$PREFIX/$MANDIR
work=$WORK/$1
rm -rf "$work"
mkdir -p "$work"

fail() { echo "FAILED: $*" >&2; exit 1; }
need() { command -v "$1" >/dev/null || { echo "SKIPPED: $1 is not installed"; exit; }; }

all_pages() { find "$pages" -type f | LC_ALL=C sort; }

# What mandoc says about a page, except that it knows nothing of pages that are not installed on this system.
lint() {
  { mandoc -T lint -W style "$1" || true; } | while IFS= read -r line; do
    name=$(sed -n 's/.*referenced manual not found: Xr \([^ ]*\) \([0-9]\).*/man\2\/\1.\2/p' <<<"$line")
    [ -n "$name" ] && [ -f "$pages/$name" ] || printf '%s\n' "$line"
  done
}

# What groff says about a page.
warnings() { LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings=w -E UTF-8 -l -Tutf8 -Z "$1" 2>&1 >/dev/null; }

# The page as text, without emphasis.
shown() { LC_ALL=C.UTF-8 MANWIDTH=80 man -E UTF-8 -l "$1" 2>/dev/null | col -bx; }

expect_shown() {
  shown "$pages/$1" >"$work/text"
  grep -q -F -e "$2" "$work/text" || fail "$1 does not show: $2"
}

# Expects a command to say nothing of any page, but something of one with a mistake.
#   check_all COMMAND MISTAKE
check_all() {
  local page said
  sed "$2" "$pages/man1/vif-check.1" >"$work/vif-check.1"
  [ -n "$("$1" "$work/vif-check.1")" ] || fail "$1 does not notice a mistake"
  for page in $(all_pages); do
    said=$("$1" "$page")
    [ -z "$said" ] || fail "$(basename "$page"): $said"
  done
}

case $1 in
  AllAreInstalled)
    for command in $("$PREFIX/bin/vif" --help | sed -n '/^Commands:/,/^$/s/^  \([a-z]*\) .*/\1/p'); do
      [ -f "$pages/man1/vif-$command.1" ] || fail "vif $command has no page"
    done
    [ "$(all_pages | wc -l)" -eq 11 ] || fail "there are other pages than the known 11: $(all_pages)"
    for page in $(all_pages); do
      grep -q "^\.Os \"vif $VERSION\"\$" "$page" || fail "$page is of another version"
    done
    ;;
  MandocHasNothingToSay)
    need mandoc
    check_all lint 's/^\.Sh OPTIONS$/.Sh OPTIONS\n.Xx/'
    ;;
  GroffHasNothingToSay)
    need man
    need groff
    check_all warnings 's/^\.Sh OPTIONS$/.Sh OPTIONS\n\\[nosuchglyph]\n.xyz/'
    ;;
  ShownTextFitsAndIsWhole)
    need man
    need col
    count=0
    for page in $(all_pages); do
      shown "$page" >"$work/text"
      grep -n '^.\{81,\}' "$work/text" >&2 && fail "$(basename "$page") has the lines above, wider than 80 columns"
      grep -n -F -e '<?>' -e '\[u' -e '\(' "$work/text" >&2 && fail "$(basename "$page") shows escapes"
      count=$((count + $(wc -l <"$work/text")))
    done
    [ "$count" -gt 2000 ] || fail "only $count lines are shown"
    expect_shown man1/vif-diff.1 'PD_Power_As_Source 60 W → 65 W'
    expect_shown man1/vif-check.1 '--fail-on SEVERITY'
    expect_shown man1/vif-explain.1 "no field or finding 'RP_Valu'"
    expect_shown man7/vif-fields.7 'In no group'
    ;;
  AllTablesAreComplete)
    "$PREFIX/bin/vif" explain --format json | grep -o '"[A-Za-z0-9_]*"' | tr -d '"' |
      grep -v -x -e groups -e group -e fields | LC_ALL=C sort -u >"$work/names"
    count=0
    while IFS= read -r name; do
      grep -q -x -F -e ".Ss $name" -e ".Ss \\&$name" -e ".It Sy $name" -e ".It Sy \\&$name" "$pages/man7/vif-fields.7" ||
        fail "vif-fields(7) lacks $name"
      count=$((count + 1))
    done <"$work/names"
    [ "$count" -gt 271 ] || fail "only $count fields are known"
    count=0
    while IFS= read -r code; do
      grep -q -F ".It Sy ${code//-/\\-} " "$pages/man7/vif-rules.7" || fail "vif-rules(7) lacks $code"
      count=$((count + 1))
    done < <("$PREFIX/bin/vif" check --help | sed -n 's/^  \(error\|warning\|note\) *\([a-z0-9-]*\).*/\2/p')
    [ "$count" -gt 45 ] || fail "only $count rules are known"
    count=0
    for name in $(grep -o 'vif_[a-z_0-9]*(' "$PREFIX/include/vif.h" | tr -d '(' | LC_ALL=C sort -u); do
      grep -q "^\.Fn $name " "$pages/man3/vif.3" && grep -q "^\.It Fn $name\$" "$pages/man3/vif.3" ||
        fail "vif(3) lacks $name"
      count=$((count + 1))
    done
    [ "$count" -gt 40 ] || fail "only $count functions are known"
    for name in $(grep -o 'VIF_ERROR_[A-Z_]*' "$PREFIX/include/vif.h" | LC_ALL=C sort -u); do
      grep -q "^\.It Dv \"$name = " "$pages/man3/vif.3" || fail "vif(3) lacks $name"
    done
    ;;
  OptionsAreThoseOfTheHelp)
    need man
    need col
    for page in "$pages"/man1/vif-*.1; do
      command=$(basename "$page" .1)
      "$PREFIX/bin/vif" "${command#vif-}" --help | sed '/^Exit status/,$d' | grep -o '^  -[^ ]*' | tr ',' '\n' |
        tr -d ' ' | LC_ALL=C sort >"$work/help"
      shown "$page" | sed -n '/^OPTIONS$/,/^EXIT STATUS$/p' | grep -E '^ {5}-' | grep -o -E -e '(^ *|, )--?[a-z-]+' |
        tr -d ' ,' | LC_ALL=C sort >"$work/page"
      [ -s "$work/help" ] || fail "the help of $command has no options"
      diff "$work/help" "$work/page" || fail "$command has other options than the help"
    done
    ;;
  *) fail "no check $1" ;;
esac
