#!/usr/bin/env bash
# Puts what a Debian source package is made from into a directory: the upstream tar file and the unpacked sources, as
# they are committed.
#
#   scripts/debian-source.sh DIRECTORY
set -euo pipefail
cd "$(dirname "$0")/.."

into=${1:?usage: scripts/debian-source.sh DIRECTORY}
version=$(scripts/version.sh)
name=vendorinfofile-$version
rm -rf "${into:?}/$name"
mkdir -p "$into"
git archive --prefix="$name/" HEAD -- . ':!debian' | gzip -9n >"$into/vendorinfofile_$version.orig.tar.gz"
git archive --prefix="$name/" HEAD | tar -x -C "$into"
echo "$into/$name"
