#!/usr/bin/env bash
# Builds Debian's libxml2 for WebAssembly, with only what the library needs of it, into build/web-libxml2/prefix, unless
# it is there, of the newest version and by the installed emscripten. Prepares emscripten's cache, too.
# `scripts/setup.sh web` installs what this needs.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
work=$root/build/web-libxml2
toolchain=$root/cmake/toolchains/emscripten.cmake

# Debian's cache of compiled system libraries belongs to root. Links to it make one that can be added to, until another
# version of emscripten replaces their targets.
emscripten=$(dpkg-query --show --showformat '${Version}' emscripten)
if ! cmp -s <(echo "$emscripten") build/web-emscripten/made-for; then
  rm -rf build/web-emscripten
  mkdir -p build/web-emscripten
  cp -rs /usr/share/emscripten/cache/sysroot build/web-emscripten
  touch build/web-emscripten/sysroot_install.stamp
  echo "$emscripten" >build/web-emscripten/made-for
fi
export EM_CACHE=$root/build/web-emscripten EM_FROZEN_CACHE=0 NODE_PATH=/usr/share/nodejs

libxml2=$(LC_ALL=C apt-cache policy libxml2-dev | sed -n 's/^  Candidate: //p')
recipe=$(cat scripts/web-libxml2.sh "$toolchain" - <<<"$emscripten $libxml2" | sha256sum)
! cmp -s <(echo "$recipe") "$work/recipe" || exit 0
rm -rf "$work"
mkdir -p "$work/apt/lists/partial" "$work/apt/archives/partial" "$work/apt/parts"
cd "$work"

echo "==> Fetching the source of libxml2"
# The system need not have sources of source packages: those of its binary packages name the same archives. All of apt's
# state is in this folder, so the system's own stays as it is.
apt-get indextargets --format 'deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Identifier: Packages' 'Origin: Debian' |
  sort -u >apt/sources.list
[ -s apt/sources.list ] || { echo "apt has no package lists of Debian; run apt-get update" >&2; exit 1; }
apt=(apt-get -qq -o "Dir::Etc::SourceList=$work/apt/sources.list" -o "Dir::Etc::SourceParts=$work/apt/parts"
  -o "Dir::State::Lists=$work/apt/lists" -o "Dir::Cache=$work/apt" -o APT::Sandbox::User=root)
"${apt[@]}" update
"${apt[@]}" source libxml2 >/dev/null
source=$(echo libxml2-*/)
rm -rf apt

echo "==> Building it for WebAssembly"
features=()
for feature in C14N CATALOG DEBUG DOCB FTP HTML HTTP ICU ISO8859X LEGACY LZMA MEM_DEBUG MODULES PROGRAMS PUSH PYTHON \
  READER RUN_DEBUG SAX1 SCHEMATRON TESTS THREADS THREAD_ALLOC VALID WRITER XINCLUDE XPTR ZLIB; do
  features+=("-DLIBXML2_WITH_$feature=OFF")
done
# iconv reads encodings such as windows-1252.
for feature in ICONV OUTPUT PATTERN REGEXPS SCHEMAS TREE XPATH; do features+=("-DLIBXML2_WITH_$feature=ON"); done
# A page has no threads, although emscripten has their header.
cmake -G Ninja -S "$source" -B build --toolchain "$toolchain" -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF \
  "${features[@]}" -DHAVE_PTHREAD_H= -DCMAKE_INSTALL_PREFIX="$work/prefix" >configure.log 2>&1 ||
  { cat configure.log >&2; exit 1; }
cmake --build build --target install >build.log 2>&1 || { cat build.log >&2; exit 1; }
rm -rf build "$source"
echo "$recipe" >recipe
