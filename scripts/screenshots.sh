#!/usr/bin/env bash
# Makes the screenshots of reports and of the site in docs/images/, with the release build's command.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh browser
export VIF=${VIF:-$PWD/build/release/cli/vif}
if [ ! -x "$VIF" ]; then
  scripts/setup.sh build
  scripts/build.sh release --target vif
fi
mkdir -p docs/images
scripts/docs.sh
node tests/browser/screenshots.js docs/images build/docs
