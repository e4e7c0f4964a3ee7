#!/usr/bin/env bash
# Builds packages in build/packages, each with a software bill of materials:
#
#   ./package.sh [KIND]...     all kinds by default
#
#   tar      the library and the command for Linux
#   zip      the library and the command for 64-bit Windows
#   static   the command for every Linux system of this architecture, which needs no library
#   wheel    the Python package with the library
#   site     the documentation as a site
#   debian   the packages for this Debian release, of what is committed
#
# The same sources give the same bytes, whoever builds them, where and when. SOURCE_DATE_EPOCH is the time of the files in
# the packages, by default that of the last commit.
set -euo pipefail
cd "$(dirname "$0")"

[ $# -gt 0 ] || set -- tar zip static wheel site debian
for kind; do
  [[ $kind =~ ^(tar|zip|static|wheel|site|debian)$ ]] || { sed -n '2,/^set/s/^# \{0,1\}//p' package.sh >&2; exit 2; }
done
root=$PWD
packages=$root/build/packages
version=$(scripts/version.sh)
machine=$(uname -m)
SOURCE_DATE_EPOCH=$(scripts/source-date.sh)
export SOURCE_DATE_EPOCH LC_ALL=C.UTF-8 TZ=UTC
umask 022

# An empty directory for the files of a package.
stage() { rm -rf "$packages/staged/$1" && mkdir -p "$packages/staged/$1"; }

# Adds the bill of materials to a staged package.
#   add_bill NAME BUILD_DIRECTORY FILE [OPTION]...
add_bill() {
  local name=$1 build=$2 file=$3
  shift 3
  python3 -B scripts/sbom.py --name "$name" --version "$version" --build "$root/build/$build" "$@" \
    "$packages/staged/$name" "$packages/staged/$name/$file"
}

# Packs a staged package with fixed times, owners, modes and order.
#   make_tar NAME
make_tar() {
  tar --create --directory "$packages/staged" --sort=name --mtime="@$SOURCE_DATE_EPOCH" --owner=0 --group=0 \
    --numeric-owner --mode=u=rwX,go=rX --format=gnu "$1" | gzip -9n >"$packages/$1.tar.gz"
}

# The same as a zip.
#   make_zip NAME
make_zip() {
  cd "$packages/staged"
  chmod -R u=rwX,go=rX "$1"
  find "$1" -exec touch --no-dereference --date "@$SOURCE_DATE_EPOCH" {} +
  rm -f "$packages/$1.zip"
  find "$1" -type f | LC_ALL=C sort | zip --quiet -X -9 -@ "$packages/$1.zip"
  cd "$root"
}

# Stages what a build installs.
#   stage_installed NAME PRESET
stage_installed() {
  scripts/build.sh "$2"
  stage "$1"
  cmake --install "build/$2" --prefix "$packages/staged/$1" --strip >/dev/null
  add_bill "$1" "$2" share/doc/VendorInfoFile/sbom.cdx.json
}

package_tar() {
  local name=VendorInfoFile-$version-linux-$machine
  stage_installed "$name" release
  make_tar "$name"
}

package_zip() {
  local name=VendorInfoFile-$version-win64
  stage_installed "$name" windows
  make_zip "$name"
}

package_static() {
  local name=vif-$version-linux-$machine-static library licence
  scripts/build.sh static --target VifManual --target vif
  stage "$name"
  local staged=$packages/staged/$name
  strip -o "$staged/vif" build/static/cli/vif
  cp LICENSE "$staged"
  mkdir "$staged"/{man,completion}
  cp build/static/manual/made/*.[17] "$staged/man"
  cp build/static/manual/made/{vif.bash,_vif,vif.fish} "$staged/completion"
  local bill=(add_bill "$name" static sbom.cdx.json --archives build/static/vif.map)
  "${bill[@]}"
  # The licences of what the bill names, which then names their files too.
  mkdir "$staged/licences"
  sed -n 's|.*"purl": "pkg:deb/debian/\(.*\)@.*|\1|p' "$staged/sbom.cdx.json" | sed 's/%2B/+/g' | while read -r library; do
    licence=/usr/share/doc/$library/copyright
    cp "$licence" "$staged/licences/$library"
  done
  "${bill[@]}"
  make_tar "$name"
}

package_wheel() {
  scripts/setup.sh python
  scripts/build.sh release --target VendorInfoFileC
  scripts/wheel.sh "$packages"
}

package_site() {
  local name=VendorInfoFile-$version-site
  scripts/setup.sh docs
  stage "$name"
  scripts/docs.sh "$packages/staged/$name"
  cp LICENSE "$packages/staged/$name"
  # Doxygen's own scripts and styles, and the theme.
  add_bill "$name" release sbom.cdx.json --included /usr/bin/doxygen \
    --included /usr/share/doxygen-awesome-css/doxygen-awesome.css
  make_tar "$name"
}

package_debian() {
  local work=$packages/staged/debian unpacked
  rm -rf "$work"
  unpacked=$(scripts/debian-source.sh "$work")
  (cd "$unpacked" &&
    DEB_BUILD_OPTIONS="nocheck parallel=$(nproc) ${DEB_BUILD_OPTIONS:-}" dpkg-buildpackage -us -uc) >"$packages/debian.log" 2>&1 ||
    { tail -n 30 "$packages/debian.log" >&2; return 1; }
  mv "$work"/*.deb "$work"/*.dsc "$work"/*.tar.* "$packages"
}

scripts/setup.sh package
rm -rf "$packages"
mkdir -p "$packages"
for kind; do "package_$kind"; done
rm -rf "$packages/staged"
echo "==> Packages"
cd "$packages"
ls -l
