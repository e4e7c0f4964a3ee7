#!/usr/bin/env bash
# Builds a wheel of the Python package, with a software bill of materials, from the library in build/release, which must
# be built.
#
#   scripts/wheel.sh DIRECTORY     where the wheel goes; PYTHON names the interpreter
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD

into=$(realpath -m "${1:?usage: scripts/wheel.sh DIRECTORY}")
SOURCE_DATE_EPOCH=$(scripts/source-date.sh)
export SOURCE_DATE_EPOCH PYTHONDONTWRITEBYTECODE=1
umask 022
# From a copy of the sources, so that nothing is left beside them.
sources=$(mktemp -d)
trap 'rm -rf "$sources"' EXIT
mkdir "$sources/python" "$sources/scripts"
cp -r CMakeLists.txt LICENSE c "$sources"
cp scripts/sbom.py "$sources/scripts"
cp -r python/{generate.py,pyproject.toml,setup.py,src} "$sources/python"
chmod -R u=rwX,go=rX "$sources"
cd "$sources/python"
VENDORINFOFILE_BUILD=$root/build/release VENDORINFOFILE_SBOM=1 "${PYTHON:-/usr/bin/python3}" -m pip wheel --quiet \
  --no-deps --no-build-isolation --no-index --wheel-dir "$into" .
