#!/usr/bin/env python3
"""Generates the modules of the package that depend on the build.

    generate.py HEADER LIBRARY VERSION DIRECTORY

_interface.py declares to cffi what HEADER (c/vif.h) declares. _build.py says where the library is, relative to the
package, or by a name that the system's loader finds, and which version it has.
"""

import os
import re
import sys

import cffi

# Limits that the header defines its constants by. size_t is known only when the library is loaded.
LIMITS = {"VIF_ALL_BITS(uint64_t)": str(2**64 - 1), "VIF_ALL_BITS(size_t)": None}


def constant(name, value):
    """What cffi is told of a macro. Stops for one that it could not be told of, so that none is lost."""
    if name == "VIF_H" and not value:
        return ""
    if value in LIMITS:
        value = LIMITS[value]
        return f"#define {name} {value}" if value else ""
    if re.fullmatch(r"\d+", value):
        return f"#define {name} {value}"
    raise SystemExit(f"generate.py: the macro {name} is not a number")


def declarations(header):
    """The declarations of the header, in the part of C that cffi reads."""
    lines = []
    depth = 0  # the include guard is the first level; what is in further ones is for C++ and for compilers
    for line in re.sub(r"/\*.*?\*/", "", header, flags=re.DOTALL).splitlines():
        directive = re.match(r"\s*#\s*(\w+)\s*(\w*)\s*(.*?)\s*$", line)
        if directive and directive[1] in ("if", "ifdef", "ifndef"):
            depth += 1
        elif directive and directive[1] == "endif":
            depth -= 1
        elif depth == 1 and directive and directive[1] == "define":
            lines.append(constant(directive[2], directive[3]))
        elif depth == 1 and not directive:
            lines.append(re.sub(r"\bVIF_C_API\b", "", line))
    return "\n".join(lines)


def main():
    header, library, version, directory = sys.argv[1:]
    os.makedirs(directory, exist_ok=True)
    ffi = cffi.FFI()
    with open(header, encoding="utf-8") as file:
        ffi.cdef(declarations(file.read()))
    ffi.set_source("vendorinfofile._interface", None)
    ffi.emit_python_code(os.path.join(directory, "_interface.py"))
    with open(os.path.join(directory, "_build.py"), "w", encoding="utf-8") as file:
        file.write(f"LIBRARY = {library!r}\nVERSION = {version!r}\n")


if __name__ == "__main__":
    main()
