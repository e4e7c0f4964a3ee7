#!/usr/bin/env python3
"""Writes each block of code of Markdown files into a file of its own, such as 03.cpp, and prints the files' names.

The extension is the block's language, "text" when it names none. Transcripts of the command ("console") are left out:
the command's own tests run them.

    code_blocks.py DIRECTORY FILE...
"""
import pathlib
import re
import sys

BLOCK = re.compile(r"^```(\w*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)


def main():
    directory = pathlib.Path(sys.argv[1])
    directory.mkdir(parents=True, exist_ok=True)
    documents = [pathlib.Path(name).read_text(encoding="utf-8") for name in sys.argv[2:]]
    blocks = [block for document in documents for block in BLOCK.findall(document) if block[0] != "console"]
    for number, (language, code) in enumerate(blocks):
        file = directory / f"{number:02}.{language or 'text'}"
        file.write_text(code, encoding="utf-8")
        print(file)


if __name__ == "__main__":
    main()
