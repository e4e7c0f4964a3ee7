#!/usr/bin/env python3
"""Renames the pages that Doxygen writes about directories. It names them for the absolute paths, so that the site would
differ from folder to folder.

    directory_pages.py DIRECTORY
"""
import pathlib
import re
import sys


def main():
    site = pathlib.Path(sys.argv[1])
    names = {}
    for page in sorted(site.glob("dir_*.html")):
        shown = re.search(r"<title>\w+: (.*) Directory Reference</title>", page.read_text(encoding="utf-8"))[1]
        names[page.stem] = "folder_" + re.sub(r"\W+", "_", shown)
    if len(set(names.values())) != len(names):
        sys.exit(f"two directories have one name: {sorted(names.values())}")
    for file in [*site.rglob("*.html"), *site.rglob("*.js")]:
        text = file.read_text(encoding="utf-8")
        renamed = re.sub(r"dir_[0-9a-f]{32}", lambda name: names[name[0]], text)
        if renamed != text:
            file.write_text(renamed, encoding="utf-8")
    for old, new in names.items():
        (site / f"{old}.html").rename(site / f"{new}.html")


if __name__ == "__main__":
    main()
