#!/usr/bin/env bash
# Builds a wheel of the Python package, installs it into a fresh virtual environment without the network, and tests it
# there: with Debian's Python, with PyPy, and with a library under AddressSanitizer, which scripts/build.sh builds.
# Then checks its types, and an installation as for a distribution.
#
#   scripts/test-python.sh [--no-asan] [ARGUMENT...]     further arguments go to pytest
#   scripts/test-python.sh --bench                       only measures the installed wheel; see bench/README.md
#
# PYTHON names the interpreter, which must have cffi and what else `scripts/setup.sh python` installs.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
python=${PYTHON:-/usr/bin/python3}
asan=yes
bench=no
case ${1:-} in
  --no-asan) asan=no; shift ;;
  --bench) bench=yes; shift ;;
esac

scripts/setup.sh python
scripts/build.sh release -DVENDORINFOFILE_BUILD_TESTS=ON --target vif --target VendorInfoFileC --target generate_vifs

work=$root/build/python
rm -rf "$work"
mkdir -p "$work"
export PYTHONDONTWRITEBYTECODE=1
# Nothing from outside this script may decide which package or library is tested.
unset PYTHONPATH VENDORINFOFILE_LIBRARY

echo "==> Building the wheel"
PYTHON=$python scripts/wheel.sh "$work/wheels"
wheels=("$work"/wheels/vendorinfofile-*-py3-none-*.whl)
[ -f "${wheels[0]}" ] || { echo "The wheel is not for every Python 3: $(ls "$work/wheels")" >&2; exit 1; }

echo "==> Installing it into a fresh environment"
"$python" -m venv --system-site-packages "$work/env"
"$work/env/bin/python" -m pip install --quiet --no-index "${wheels[0]}"

if [ $bench = yes ]; then
  scripts/setup.sh bench
  scripts/build.sh release -DVENDORINFOFILE_BUILD_BENCHMARKS=ON --target ask_vif
  "$work/env/bin/python" python/bench/compare.py build/release/bench/ask_vif "$root"
  exit
fi

export VENDORINFOFILE_SOURCES=$root VENDORINFOFILE_COMMAND=$root/build/release/cli/vif
export VENDORINFOFILE_GENERATED=$work/generated
build/release/tests/platforms/generate_vifs "$VENDORINFOFILE_GENERATED" 200
cp -r python/tests "$work/tests"
cp python/pyproject.toml "$work"
cd "$work"

echo "==> Testing it"
env/bin/python -m pytest -q "$@" tests

echo "==> Checking its types"
env/bin/python -m mypy --cache-dir "$work/mypy" --strict -p vendorinfofile

if command -v pypy3 >/dev/null; then
  echo "==> Testing the same files with PyPy"
  "$python" -m zipfile -e "${wheels[0]}" unpacked
  PYTHONPATH=$work/unpacked:/usr/lib/python3/dist-packages pypy3 -m pytest -q "$@" tests
fi

if [ $asan = yes ]; then
  echo "==> Testing it with AddressSanitizer"
  (cd "$root" && scripts/setup.sh check && scripts/build.sh asan --target VendorInfoFileC)
  runtime=$(clang++ -print-file-name="libclang_rt.asan-$(uname -m).so")
  # Python does not free everything at its end. The coverage of these runs is not that of the unit tests.
  with_asan() {
    VENDORINFOFILE_LIBRARY=$root/build/asan/c/libvif.so ASAN_OPTIONS=detect_leaks=0 LLVM_PROFILE_FILE=/dev/null \
      PYTHONMALLOC=malloc LD_PRELOAD="$runtime $(g++ -print-file-name=libstdc++.so.6)" env/bin/python "$@"
  }
  # It must notice a text that is read after it was freed.
  ! with_asan -c '
from vendorinfofile import _source, _library
source = _source.Source()
source.load_bytes(b"VID: 1", "a.txt")
field = _library.Structure("vif_field")()
_library.lib.vif_file_field(source.handle, 0, field)
_library.ffi.gc(source.handle, None)
_library.lib.vif_file_free(source._raw)
_library.py_text(field.description)
' 2>asan.log || { echo "AddressSanitizer is not at work" >&2; exit 1; }
  grep -q heap-use-after-free asan.log || { cat asan.log >&2; exit 1; }
  with_asan -m pytest -q "$@" tests
fi

echo "==> Installing it as for a distribution"
cmake -G Ninja -S "$root" -B distribution -DVENDORINFOFILE_BUILD_PYTHON=ON -DPython3_EXECUTABLE="$python" \
  -DVENDORINFOFILE_BUILD_TOOLS=OFF -DVENDORINFOFILE_BUILD_EXAMPLES=OFF >distribution.log ||
  { cat distribution.log >&2; exit 1; }
cmake --build distribution --target VendorInfoFilePython >/dev/null
cmake --install distribution --component Python --prefix "$work/prefix" >/dev/null
cmake --install "$root/build/release" --component Library --prefix "$work/prefix" >/dev/null
mv prefix moved
cd /
PYTHONPATH=$work/moved/lib/python3/dist-packages "$python" -c '
import sys, vendorinfofile as vif
assert vif.__file__.startswith(sys.argv[1]), vif.__file__
assert len(vif.load(sys.argv[2])) == 378
' "$work/moved" "$root/examples/vif/usb4-dock.xml"
echo "The Python package works."
