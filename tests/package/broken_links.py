#!/usr/bin/env python3
"""Prints the relative links of Markdown files that lead nowhere, and fails when there is any.

    broken_links.py FILE...
"""
import pathlib
import re
import sys


def links_of(document):
    """The targets of all links, without anchors and addresses of the Web."""
    text = re.sub(r"^```.*?^```", "", document.read_text(encoding="utf-8"), flags=re.MULTILINE | re.DOTALL)
    for target in re.findall(r"\]\(([^)\s]+)\)", text):
        if not re.match(r"[a-z]+:|#", target):
            yield target.split("#")[0]


def main():
    documents = [pathlib.Path(name) for name in sys.argv[1:]]
    links = [(document, link) for document in documents for link in links_of(document)]
    broken = [(document, link) for document, link in links if not (document.parent / link).exists()]
    for document, link in broken:
        print(f"{document}: {link}")
    if not links:
        print("no links at all")
    sys.exit(1 if broken or not links else 0)


if __name__ == "__main__":
    main()
