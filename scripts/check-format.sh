#!/usr/bin/env bash
# Fails when clang-format would change a file.
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files '*.h' '*.cpp' | xargs clang-format --dry-run --Werror
