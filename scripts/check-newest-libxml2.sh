#!/usr/bin/env bash
# Compiles what uses libxml2 against the newest one that Debian has, with deprecated names counting as errors. Nothing is
# installed: the headers are unpacked from their package into a directory of their own, and kept there for a day.
#
#   scripts/check-newest-libxml2.sh
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh build >&2
root=$PWD/build/newest-libxml2
headers=$root/unpacked/usr/include/libxml2

if [ ! -d "$headers" ] || [ -n "$(find "$headers" -maxdepth 0 -mtime +0)" ]; then
  echo "==> Fetching the headers of Debian sid" >&2
  rm -rf "$root"
  mkdir -p "$root/lists/partial" "$root/archives/partial"
  # The same mirror as this machine's.
  mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Origin: Debian' 'Component: main' | head -1)
  [ -n "$mirror" ] || { echo "This machine has no package lists of Debian's." >&2; exit 1; }
  echo "deb [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $mirror sid main" >"$root/sources.list"
  apt=(-qq -o "Dir::Etc::sourcelist=$root/sources.list" -o Dir::Etc::sourceparts=- -o "Dir::State::lists=$root/lists"
    -o "Dir::Cache=$root" -o Acquire::Check-Valid-Until=false -o APT::Sandbox::User=root)
  apt-get "${apt[@]}" update
  (cd "$root" && apt-get "${apt[@]}" download libxml2-dev)
  dpkg-deb -x "$root"/libxml2-dev_*.deb "$root/unpacked"
  touch "$headers"
fi

version=$(sed -n 's/^#define LIBXML_DOTTED_VERSION "\(.*\)"$/\1/p' "$headers/libxml/xmlversion.h")
echo "==> Compiling against libxml2 $version"
for source in host/libxml2/*.cpp; do
  "${CXX:-c++}" -std=c++20 -fsyntax-only -Wall -Wextra -Wdeprecated-declarations -Werror -Ihost -isystem "$headers" "$source"
done
