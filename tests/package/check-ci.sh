#!/usr/bin/env bash
# Runs what docs/ci.md and .pre-commit-hooks.yaml say, with the installed command, in a repository of its own.
set -euo pipefail

sources=$(cd "$(dirname "$0")/../.." && pwd)
fail() { echo "FAILED: $*" >&2; exit 1; }
[ -z "$EMULATOR" ] || { echo 'SKIPPED: the workflow is for Linux'; exit; }
command -v git >/dev/null || { echo 'SKIPPED: git is not installed'; exit; }

work=$WORK/ci
rm -rf "$work"
mkdir -p "$work/home" "$work/repository/vifs"
export HOME=$work/home PATH=$PREFIX/bin:$PATH
git config --global user.name Tester
git config --global user.email tester@example.invalid
git config --global init.defaultBranch main

# The script of the step with that name, without its indentation.
script_of() {
  awk -v step="- name: $1" '
    index($0, step) { inside = 1; next }
    inside && /^ *- / { exit }
    inside && script && /^          / { print substr($0, 11); next }
    inside && /^ *run: \|$/ { script = 1 }
  ' "$sources/docs/ci.md"
}
script_of 'Check the VIFs' >"$work/check.sh"
grep -q 'vif check' "$work/check.sh" || fail 'docs/ci.md has no such script'

cd "$work/repository"
git init -q
cp "$sources/docs/flawed-charger.txt" vifs/old.txt
printf 'not a VIF\n' >notes.txt
git add . && git commit -qm base
BASE=$(git rev-parse HEAD)
export BASE

# As the service runs it.
run_workflow() { bash --noprofile --norc -eo pipefail "$work/check.sh" >"$work/said.txt" 2>&1; }

printf 'changed\n' >>notes.txt
git add . && git commit -qm 'no VIF changes'
run_workflow || fail "without a changed VIF: $(<"$work/said.txt")"
[ ! -e vif.sarif ] || fail 'SARIF without a changed VIF'

cp "$sources/examples/vif/gan-charger-65w.txt" 'vifs/a charger.txt'
git add vifs && git commit -qm 'a clean VIF'
run_workflow || fail "with a clean VIF: $(<"$work/said.txt")"
[ "$(<"$work/said.txt")" = 'no findings' ] || fail "with a clean VIF: $(<"$work/said.txt")"

cp "$sources/docs/overrated-charger.txt" vifs/overrated.txt
git rm -q vifs/old.txt
git add vifs && git commit -qm 'a flawed VIF, and one fewer'
! run_workflow || fail 'a flawed VIF passes'
grep -q 'vifs/overrated.txt:9: error: .*\[pdo-above-rating\]' "$work/said.txt" || fail "$(<"$work/said.txt")"
grep -q '"uri":"vifs/overrated.txt"' vif.sarif || fail 'the finding is not in the SARIF file'

# The hook gets the names of the staged files that its pattern fits.
hooks=$sources/.pre-commit-hooks.yaml
entry=$(sed -n 's/^  entry: //p' "$hooks")
pattern=$(sed -n 's/^  files: //p' "$hooks")
[ "$entry" = 'vif check' ] || fail "the hook runs: $entry"
mapfile -t hooked < <(git ls-files | grep -P "$pattern")
[ "${hooked[*]}" = 'vifs/a charger.txt vifs/overrated.txt' ] || fail "the hook is for: ${hooked[*]}"
! $entry "${hooked[@]}" >/dev/null || fail 'the hook lets a flawed VIF pass'
