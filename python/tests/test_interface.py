"""What Python knows of the C interface is what the header says."""

import pathlib
import re
import shutil
import subprocess
import sys

import pytest

from conftest import SOURCES
from vendorinfofile._library import ANY, NO_NUMBER, NO_POSITION, ffi, lib

HEADER = (SOURCES / "c" / "vif.h").read_text(encoding="utf-8")
EXPORTS = (SOURCES / "tests" / "package" / "exports" / "vif.txt").read_text().split()


def test_every_exported_function_is_declared_and_there():
    declared = {name for name in dir(lib) if name.startswith("vif_")}
    assert declared == set(EXPORTS)
    assert all(getattr(lib, name) for name in EXPORTS)


def test_constants_are_those_of_the_header():
    for name, number in re.findall(r"\b(VIF_[A-Z_]+) = (\d+)", HEADER):
        assert getattr(lib, name) == int(number)
    assert "#define VIF_NO_POSITION VIF_ALL_BITS(size_t)" in HEADER
    assert NO_POSITION == sys.maxsize * 2 + 1
    assert ANY == NO_NUMBER == 2**64 - 1


def test_structures_are_laid_out_as_the_compiler_does(tmp_path):
    compiler = shutil.which("cc") or shutil.which("gcc") or shutil.which("clang")
    if compiler is None:
        pytest.skip("there is no C compiler")
    kinds = re.findall(r"^typedef struct (vif_\w+) \{", HEADER, flags=re.MULTILINE)
    members = [(kind, name) for kind in kinds for name, _ in ffi.typeof(kind).fields]
    assert len(kinds) > 10
    lines = [f'printf("%zu\\n", sizeof({kind}));' for kind in kinds]
    lines += [f'printf("%zu\\n", offsetof({kind}, {name}));' for kind, name in members]
    source = tmp_path / "layout.c"
    source.write_text("#include <stdio.h>\n#include <vif.h>\nint main(void) {\n" + "\n".join(lines) + "\nreturn 0; }\n")
    program = tmp_path / "layout"
    subprocess.run([compiler, f"-I{SOURCES / 'c'}", "-o", str(program), str(source)], check=True)
    expected = [ffi.sizeof(kind) for kind in kinds] + [ffi.offsetof(kind, name) for kind, name in members]
    printed = subprocess.run([str(program)], stdout=subprocess.PIPE, check=True).stdout.split()
    assert [int(number) for number in printed] == expected


def test_everything_public_is_documented():
    import vendorinfofile

    sources = pathlib.Path(vendorinfofile.__file__).parent
    for name in vendorinfofile.__all__:
        thing = getattr(vendorinfofile, name)
        if callable(thing):
            assert thing.__doc__, name
            for member, value in vars(thing).items() if isinstance(thing, type) else ():
                if not member.startswith("_") and (callable(value) or isinstance(value, property)):
                    assert value.__doc__, f"{name}.{member}"
    assert (sources / "py.typed").exists()
