#!/usr/bin/env bash
# Fails when clang-format would change a file, or when a \param, \return or \throws is in the middle of a line, where no
# reader expects it.
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files '*.h' '*.cpp' | xargs clang-format --dry-run --Werror
! git grep -nE '//.*[^ /].*\\(param|return|throws)( |$)' -- '*.h' '*.cpp'
