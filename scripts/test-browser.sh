#!/usr/bin/env bash
# Installs what is missing, builds the command unless it is there, and tests its HTML reports in a browser. Arguments
# name the tests to run, such as tests/browser/filter.test.js; by default all run.
#
# VIF names the command to test, by default that of the release build. PUPPETEER_EXECUTABLE_PATH chooses another
# Chromium than the first in PATH.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh browser
export VIF=${VIF:-$PWD/build/release/cli/vif}
if [ ! -x "$VIF" ]; then
  scripts/setup.sh build
  scripts/build.sh release --target vif
fi
[ $# -gt 0 ] || set -- tests/browser/*.test.js
echo "==> Testing reports in a browser"
# Two files at a time, because the tests mostly wait.
node --test --test-reporter=spec --test-concurrency=2 "$@"
