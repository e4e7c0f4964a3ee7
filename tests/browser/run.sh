#!/usr/bin/env bash
# Runs the tests for ctest, or says why they cannot run. scripts/setup.sh browser installs what they need.
set -euo pipefail
cd "$(dirname "$0")"

skip() { echo "SKIPPED: $*"; exit; }
command -v node >/dev/null || skip 'Node.js is not installed'
[ -d node_modules/puppeteer-core ] && [ -d node_modules/axe-core ] || skip 'the npm packages of tests/browser are not installed'
node --input-type=module --eval '
  import { findBrowser } from "./support/browser.js";
  process.exit(findBrowser() ? 0 : 1);' || skip 'there is no Chromium'
exec node --test --test-reporter=spec ./*.test.js
