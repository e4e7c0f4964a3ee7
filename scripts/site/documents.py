#!/usr/bin/env python3
"""Writes the README and every document that it leads to, as Doxygen reads them, into a directory. Links between the
documents become links between the pages. Other files that they link to become pages, too, and pictures are copied.

    documents.py DIRECTORY HEADER...

A HEADER has a page of its own. Prints the names of the pictures. Fails for a link that leads nowhere.
"""
import html
import os
import pathlib
import re
import shutil
import sys

from markup import header_page, link, slug

# Doxygen has pages of these names.
RESERVED = {"annotated", "classes", "examples", "files", "functions", "globals", "index", "namespaces", "pages"}
# Doxygen highlights and links what is in these.
SOURCES = {".c", ".cpp", ".cs", ".h", ".py"}
FENCE = re.compile(r"^(?:```|~~~)")
PICTURE = re.compile(r'<img\s+src="([^"]+)"([^>]*)>', re.DOTALL)


def page_name(path):
    """The name of the page about a file of the repository."""
    if path == "README.md":
        return "index"
    if not path.endswith(".md"):
        return "file-" + re.sub(r"\W+", "-", path).strip("-").lower()
    name = re.sub(r"(/README)?\.md$", "", path).removeprefix("docs/").replace("/", "-").lower()
    return name + "-guide" if name in RESERVED else name


class Site:
    def __init__(self, directory, headers):
        self.directory = directory
        self.headers = set(headers)
        self.pending = ["README.md"]
        self.known = {"README.md"}
        self.pictures = set()

    def visit(self, path):
        if path not in self.known:
            self.known.add(path)
            self.pending.append(path)

    def target(self, document, target):
        """Where a link of a document leads on the site."""
        if re.match(r"[a-z]+:", target):
            return target
        name, _, anchor = target.partition("#")
        path = os.path.normpath(os.path.join(os.path.dirname(document), name)) if name else document
        if not os.path.exists(path) or path.startswith(".."):
            sys.exit(f"{document}: {target} does not exist")
        if path in self.headers:
            return header_page(path)
        self.visit(path)
        page = page_name(path)
        return f"{page}.html" + (f"#{page}--{anchor}" if anchor else "")

    def picture(self, document, source, attributes):
        path = os.path.normpath(os.path.join(os.path.dirname(document), source))
        shutil.copyfile(path, self.directory / os.path.basename(path))
        self.pictures.add(os.path.basename(path))
        return f'<img src="{os.path.basename(path)}"{" ".join(attributes.split(chr(10)))}>'

    def prose(self, document, text):
        """A part of a document without blocks of code."""
        text = PICTURE.sub(lambda found: self.picture(document, found[1], found[2]), text)
        text = re.sub(
            r"!\[([^\]]*)\]\(([^)\s]+)\)",
            lambda found: self.picture(document, found[2], f' alt="{html.escape(found[1])}"'),
            text,
        )
        return re.sub(
            r"(?<!!)\[((?:`[^`]*`|[^\]`])+)\]\(([^)\s]+)\)", lambda found: link(self.target(document, found[2]), found[1]), text
        )

    def heading(self, document, page, seen, line):
        level, title = re.fullmatch(r"(#+) (.*)", line.replace("`", "")).groups()  # Doxygen shows code as it is there
        if len(level) == 1:
            return f"# {title}" + ("" if page == "index" else f" {{#{page}}}\n\n[TOC]")
        anchor = slug(title)
        if anchor in seen:
            sys.exit(f"{document}: two headings are '{title}'")
        seen.add(anchor)
        return f"{level} {title} {{#{page}--{anchor}}}"

    def document(self, path):
        page = page_name(path)
        seen, parts, prose, in_code = set(), [], [], False

        def end_prose():
            parts.append(self.prose(path, "\n".join(prose)))
            prose.clear()

        for line in pathlib.Path(path).read_text(encoding="utf-8").splitlines():
            if FENCE.match(line):
                if not in_code:
                    end_prose()
                in_code = not in_code
                language = re.sub(r"^`+", "", line)
                parts.append(f"~~~{{.{language}}}" if language else "~~~")
            elif in_code:
                parts.append(line)
            elif re.match(r"#+ ", line):
                prose.append(self.heading(path, page, seen, line))
            else:
                prose.append(line)
        end_prose()
        return "\n".join(parts) + "\n"

    def directory_listing(self, path):
        files = sorted(str(file) for file in pathlib.Path(path).rglob("*") if file.is_file())
        rows = "".join(f"- {link(self.target('README.md', name), name)}\n" for name in files)
        return f"# {path}/ {{#{page_name(path)}}}\n\n{rows}"

    def source(self, path):
        command = "include" if pathlib.Path(path).suffix in SOURCES else "verbinclude"
        return f"# {path} {{#{page_name(path)}}}\n\n\\{command} {path}\n"

    def write(self):
        while self.pending:
            path = self.pending.pop()
            if path.endswith(".md"):
                text = self.document(path)
            elif os.path.isdir(path):
                text = self.directory_listing(path)
            else:
                text = self.source(path)
            (self.directory / f"{page_name(path)}.md").write_text(text, encoding="utf-8")


def main():
    directory = pathlib.Path(sys.argv[1])
    site = Site(directory, sys.argv[2:])
    site.write()
    print("\n".join(sorted(site.pictures)))


if __name__ == "__main__":
    main()
