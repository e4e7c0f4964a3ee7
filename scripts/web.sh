#!/usr/bin/env bash
# Makes build/web/vif.html, the page that reads VIFs in a browser, and tests it. Installs what is missing.
#
#   scripts/web.sh                 builds and tests
#   scripts/web.sh build           only builds
#   scripts/web.sh serve [PORT]    builds, and serves the page on this machine until it is interrupted
#   scripts/web.sh screenshot      builds, and makes docs/images/page-dock.png, to be looked at
#   scripts/web.sh bench           measures the time to the first report, in Chromium and by the command
#
# VIF names the native command to compare with, by default that of the release build. VIF_WEB_COUNT says how many files
# to generate for the comparison.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
task=${1:-test}
count=${VIF_WEB_COUNT:-1000}

build_page() {
  scripts/setup.sh web
  scripts/web-libxml2.sh
  scripts/build.sh web --target vif_page
}

setup_tests() {
  scripts/setup.sh browser
  export VIF=${VIF:-$root/build/release/cli/vif}
  if [ ! -x "$VIF" ]; then
    scripts/setup.sh build
    scripts/build.sh release --target vif
  fi
}

case $task in
  build) build_page ;;
  serve)
    build_page
    exec node tests/web/serve.js "${2:-8000}"
    ;;
  screenshot)
    build_page
    setup_tests
    exec node tests/web/screenshot.js docs/images/page-dock.png
    ;;
  bench)
    build_page
    setup_tests
    exec node bench/web.js
    ;;
  test)
    build_page
    setup_tests
    scripts/setup.sh test
    scripts/build.sh release -DVENDORINFOFILE_BUILD_TESTS=ON --target generate_vifs
    export VIF_WEB_FILES=$root/build/web/generated
    rm -rf "$VIF_WEB_FILES"
    build/release/tests/platforms/generate_vifs "$VIF_WEB_FILES" $((count / 2))
    echo "==> Testing the page's module, and comparing it with the command"
    node --test --test-reporter=spec tests/web/reader.test.js tests/web/equality.test.js
    echo "==> Testing the page in a browser"
    node --test --test-reporter=spec tests/web/{page,order,failures,dragging,controls}.test.js
    ;;
  *)
    sed -n '4,8s/^# *//p' scripts/web.sh >&2
    exit 2
    ;;
esac
