#!/usr/bin/env python3
"""Checks the links of a site: each leads to a file of the site and, if it names one, to an anchor in it; nothing that a
browser loads by itself comes from elsewhere. Prints what is wrong and fails, or prints how many links there are.

    check_links.py DIRECTORY
"""
import html.parser
import pathlib
import re
import sys
import urllib.parse

# A browser follows these only when a reader asks.
FOLLOWED = {("a", "href")}
LOADED = {"img", "script", "link", "iframe", "source", "object", "embed", "audio", "video"}


class Page(html.parser.HTMLParser):
    def __init__(self, text):
        super().__init__()
        self.links = []  # with whether a browser loads them by itself
        self.anchors = set()
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        for name, value in attributes:
            if name in ("id", "name"):
                self.anchors.add(value)
            elif name in ("href", "src", "data", "srcset") and value and (tag in LOADED or (tag, name) in FOLLOWED):
                self.links.append((value, (tag, name) not in FOLLOWED))


def links_in_scripts(text):
    """What the menu and the search link to."""
    return re.findall(r"""["']((?:\.\./)?[\w.\-]+\.html(?:#[^"']*)?)["']""", text)


def main():
    root = pathlib.Path(sys.argv[1]).resolve()
    pages = {path: Page(path.read_text(encoding="utf-8")) for path in root.rglob("*.html")}
    links = [(path, *link) for path, page in pages.items() for link in page.links]
    for path in root.rglob("*.js"):
        links += [(path, link, False) for link in links_in_scripts(path.read_text(encoding="utf-8"))]
    wrong, outside = [], set()
    for path, link, is_loaded in links:
        where = f"{path.relative_to(root)}: {link}"
        if link == "javascript:void(0)":  # a button of the search
            continue
        parts = urllib.parse.urlsplit(link)
        if parts.scheme or parts.netloc:
            outside.add(link)
            if is_loaded or parts.scheme not in ("http", "https", "mailto"):
                wrong.append(f"{where} comes from elsewhere")
            continue
        target = (path.parent / urllib.parse.unquote(parts.path)).resolve() if parts.path else path
        anchor = urllib.parse.unquote(parts.fragment)
        if not target.is_file() or root not in target.parents:
            wrong.append(f"{where} is not there")
        elif anchor and target in pages and anchor not in pages[target].anchors:
            wrong.append(f"{where} has no such anchor")
    for css in root.rglob("*.css"):
        for link in re.findall(r"url\(([^)]*)\)|@import", css.read_text(encoding="utf-8")):
            if not link.strip("\"'").startswith("data:") and not (css.parent / link.strip("\"'")).is_file():
                wrong.append(f"{css.relative_to(root)}: {link} is not there")
    if wrong or len(links) < 1000:
        sys.exit("\n".join([*sorted(set(wrong)), f"{len(set(wrong))} of {len(links)} links are wrong"]))
    print(f"{len(links)} links on {len(pages)} pages lead somewhere; {len(outside)} other sites are linked to")


if __name__ == "__main__":
    main()
