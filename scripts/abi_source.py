#!/usr/bin/env python3
"""Prints a source that describes an interface to abidw: one function for each function or type that a program can use.

    abi_source.py c HEADER           the functions of a C header, without their code
    abi_source.py c++ DIRECTORY      for each class, structure and enumeration of the headers there, a function that takes it

Symbols of the C++ libraries are compared elsewhere, so only layouts, virtual functions and values matter here.
"""

import glob
import os
import re
import sys

TYPE = re.compile(r"^(?:class|struct|enum class|enum)\s+(?:\w+_API\s+)?(\w+)(?:\s+final)?\s*(?::[^;{]*)?\{", re.M)
# A template, and a member of another class.
NOT_COMPLETE = {"CComPointer", "CThreadBuffers"}


def c_functions(header):
    with open(header, encoding="utf-8") as file:
        text = re.sub(r"/\*.*?\*/", "", file.read(), flags=re.DOTALL)
    yield f'#include "{os.path.basename(header)}"'
    for declaration in re.findall(r"^VIF_C_API ([^;]*);", text, flags=re.M):
        yield f"{declaration} {{ __builtin_unreachable(); }}"


def cpp_types(root):
    headers = sorted(glob.glob(f"{root}/**/*.h", recursive=True))
    yield from (f"#include <{os.path.relpath(header, root)}>" for header in headers)
    for header in headers:
        with open(header, encoding="utf-8") as file:
            text = file.read()
        for match in TYPE.finditer(text):
            spaces = re.findall(r"^(?:namespace (\w+) \{$|(\})  // namespace)", text[: match.start()], re.M)
            inside = spaces and spaces[-1][0]
            if match[1] not in NOT_COMPLETE:
                yield f'extern "C" void Takes_{match[1]}(const {inside + "::" if inside else ""}{match[1]}&) {{}}'


if __name__ == "__main__":
    language, place = sys.argv[1:]
    print("\n".join((c_functions if language == "c" else cpp_types)(place)))
