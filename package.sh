#!/usr/bin/env bash
# Builds the packages of the library and the command in build/packages: a zip file for 64-bit Windows, and a Debian
# package and a tar file for Linux.
set -euo pipefail
cd "$(dirname "$0")"

scripts/setup.sh package
for preset in release windows; do
  scripts/build.sh "$preset" --target package
done

echo "==> Packages"
rm -rf build/packages
mkdir -p build/packages
mv build/release/*.deb build/release/*.tar.gz build/windows/*.zip build/packages
ls -l build/packages
