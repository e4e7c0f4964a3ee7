#!/usr/bin/env python3
"""Fails unless a software bill of materials is valid CycloneDX 1.5 and fits the files of its package.

    check_sbom.py BILL ROOT

ROOT holds the package's files. The schemas are those of an npm package, which scripts/setup.sh installs.
"""

import hashlib
import json
import os
import sys

import jsonschema

SCHEMAS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../tests/sbom/node_modules/@cyclonedx",
                       "cyclonedx-library/res/schema")


def load(path):
    with open(path, encoding="utf-8") as file:
        return json.load(file)


def schema_problems(bill):
    schema = load(os.path.join(SCHEMAS, "bom-1.5.SNAPSHOT.schema.json"))
    others = [load(os.path.join(SCHEMAS, f"{name}.SNAPSHOT.schema.json")) for name in ("spdx", "jsf-0.82")]
    resolver = jsonschema.RefResolver.from_schema(schema, store={other["$id"]: other for other in others})
    validator = jsonschema.Draft7Validator(schema, resolver=resolver)
    for error in validator.iter_errors(bill):
        yield f"{'/'.join(map(str, error.absolute_path)) or 'the bill'}: {error.message[:200]}"


def file_problems(bill, path, root):
    listed = {part["name"]: part["hashes"][0]["content"] for part in bill["components"] if part["type"] == "file"}
    there = set()
    for folder, _, names in os.walk(root):
        there |= {os.path.relpath(os.path.join(folder, name), root) for name in names
                  if not os.path.islink(os.path.join(folder, name))}
    there.discard(os.path.relpath(path, root))
    for name in sorted(there ^ set(listed)):
        yield f"{name}: {'not in the bill' if name in there else 'not in the package'}"
    for name in sorted(there & set(listed)):
        with open(os.path.join(root, name), "rb") as file:
            if hashlib.sha256(file.read()).hexdigest() != listed[name]:
                yield f"{name}: another hash"


def library_problems(bill, root):
    def is_program(name):
        with open(os.path.join(root, name), "rb") as file:
            return file.read(4).startswith((b"\x7fELF", b"MZ"))

    parts = bill["components"]
    has_library = any(part["type"] == "library" for part in parts)
    if not has_library and any(is_program(part["name"]) for part in parts if part["type"] == "file"):
        yield "names no library, but the package has programs"


def main():
    path, root = sys.argv[1:]
    bill = load(path)
    # Each check relies on the one before it.
    problems = list(schema_problems(bill))
    problems = problems or list(file_problems(bill, path, root)) or list(library_problems(bill, root))
    for problem in problems:
        print(f"{path}: {problem}", file=sys.stderr)
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
