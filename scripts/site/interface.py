#!/usr/bin/env python3
"""Prints the page that leads to the headers.

    interface.py HEADER...
"""
import pathlib
import re
import sys

from markup import escape, header_page, link

SECTIONS = [
    ("The library", r"include/", "Loads VIFs and finds fields in them. Begin with the first two."),
    ("The analysis", r"analysis/", "What a VIF means: findings, differences, the vocabulary of the format, reports."),
    ("C", r"c/", "All of that for other compilers and languages, as [its guide](@ref c) explains."),
    ("The host", r"host/", "What the library uses of a test-suite host, and its stand-ins where there is no host."),
]
FIRST = ["include/VendorInfoFile.h", "include/VIFField.h"]


def subject(header):
    """The first sentence of the header."""
    text = pathlib.Path(header).read_text(encoding="utf-8")
    comment = re.match(r"(?:// ?(?!#)[^\n]*\n)+|/\*.*?\*/", text, re.DOTALL)[0]
    words = " ".join(re.sub(r"^(//|/\*\*|\*/| \*/| \*)|\\file", " ", comment, flags=re.MULTILINE).split())
    return re.match(r".*?[.:](?= |$)", words)[0].removesuffix(":").removesuffix(".")


def main():
    headers = sorted(sys.argv[1:], key=lambda header: (header not in FIRST, FIRST.index(header) if header in FIRST else 0, header))
    print("# The interface {#interface}\n")
    for title, folder, text in SECTIONS:
        print(f"## {title} {{#interface--{title.split()[-1].lower()}}}\n\n{text}\n\n| header | holds |\n|---|---|")
        for header in headers:
            if header.startswith(folder):
                name = re.sub(r"^(include|c|host)/", "", header)
                print(f"| {link(header_page(header), name)} | {escape(subject(header))} |")
        print()
    print("## Python {#interface--python}\n\n[The guide](@ref python) shows the package at work; "
          "[its interface](@ref python-interface) has every name.")


if __name__ == "__main__":
    main()
