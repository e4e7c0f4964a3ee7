#!/usr/bin/env python3
"""Writes the pages about the Python package, one for each name that it exports, from its sources. Fails for a name
without a docstring.

    python_interface.py PACKAGE DIRECTORY
"""
import ast
import inspect
import pathlib
import re
import sys
import textwrap

from markup import escape, link

INDEX = "python-interface"
FIELDS = {"param": "", "raises": "raises ", "return": "returns ", "returns": "returns "}


def escape_code(text):
    return text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")


def page_of(name):
    """The page of an exported name. Case alone does not tell pages apart: there are `rule` and `Rule`."""
    return f"python-{'class-' if name[0].isupper() else ''}{name.lower()}"


class Package:
    """The sources of the package."""

    def __init__(self, folder):
        self.folder = folder
        self.init = self.parse("__init__")
        self.origins = {
            alias.name: statement.module
            for statement in self.init.body
            if isinstance(statement, ast.ImportFrom) and statement.level == 1
            for alias in statement.names
            if not (alias.asname or "").startswith("__")
        }
        self.names = sorted(self.origins, key=lambda name: (name[0].isupper(), name))

    def parse(self, module):
        return ast.parse((self.folder / f"{module}.py").read_text(encoding="utf-8"))

    def definition(self, name):
        """The statement that defines an exported name, and the string after it, if there is one."""
        for statement, following in strings_after(self.parse(self.origins[name]).body):
            if isinstance(statement, (ast.ClassDef, ast.FunctionDef)) and statement.name == name:
                if not is_decorated(statement, "overload"):
                    return statement, following
            elif isinstance(statement, ast.AnnAssign) and statement.target.id == name:
                return statement, following
        sys.exit(f"{name} is defined nowhere")


def strings_after(body):
    """Each statement with the string that follows it, if one does."""
    for statement, following in zip(body, [*body[1:], None]):
        is_text = isinstance(following, ast.Expr) and isinstance(following.value, ast.Constant)
        yield statement, inspect.cleandoc(following.value.value) if is_text else None


def is_decorated(function, name):
    return isinstance(function, ast.FunctionDef) and any(
        ast.unparse(decorator).split(".")[-1] == name for decorator in function.decorator_list
    )


def signature(function):
    arguments = re.sub(r"^(self|cls)(, )?", "", ast.unparse(function.args))
    returns = f" -> {ast.unparse(function.returns)}" if function.returns else ""
    return f"{function.name}({arguments}){returns}"


class Writer:
    """Turns docstrings into Markdown."""

    def __init__(self, exported):
        self.exported = exported
        self.missing = []

    def documented(self, name, docstring):
        if not docstring:
            self.missing.append(name)
        return docstring or ""

    def code(self, text):
        name = text.split(".")[0].removesuffix("()")
        return link(page_of(name) + ".html", f"`{text}`") if name in self.exported else f"<code>{escape_code(text)}</code>"

    def inline(self, text):
        """A paragraph, with links to what the package exports."""
        parts = re.split(r"(:\w+:`[^`]+`|``[^`]+``)", " ".join(text.split()))
        return "".join(self.code(re.sub(r"^:\w+:|`", "", part)) if "`" in part else escape(part) for part in parts)

    def field(self, line):
        """A line such as ``:raises KeyError, ValueError: there is no such field``."""
        kind, names, text = re.fullmatch(r":(\w+)(?: ([\w., ]+))?: *(.*)", line).groups()
        subject = ", ".join(self.code(name) for name in names.split(", ")) + ": " if names else ""
        return f"- {FIELDS[kind]}{subject}{self.inline(text)}"

    def block(self, block):
        """A paragraph, fields, or a paragraph with the code after it."""
        if block.startswith(":"):
            return "\n".join(self.field(line) for line in block.splitlines())
        text, *code = block.split("\n\n    ", 1)
        blocks = [f"~~~{{.py}}\n{textwrap.dedent('    ' + lines)}\n~~~" for lines in code]
        return "\n\n".join([self.inline(text.removesuffix("::")), *blocks])

    def prose(self, docstring):
        lines = re.sub(r"^:[^\n]*(?:\n {4}\S[^\n]*)+", lambda field: " ".join(field[0].split()), docstring, flags=re.M)
        return "\n\n".join(self.block(block) for block in re.split(r"\n{2,}(?! )", lines)) + "\n"

    def entry(self, name, code, docstring):
        return f"~~~{{.py}}\n{code}\n~~~\n\n{self.prose(self.documented(name, docstring))}"

    def attributes(self, definition):
        """The fields and properties of a class, as a list: types have characters that would part the cells of a table."""
        rows = []
        for statement, following in strings_after(definition.body):
            if isinstance(statement, ast.AnnAssign):
                name, kind, docstring = statement.target.id, statement.annotation, following
            elif is_decorated(statement, "property"):
                name, kind, docstring = statement.name, statement.returns, ast.get_docstring(statement)
            else:
                continue
            if not name.startswith("_"):
                text = self.inline(self.documented(f"{definition.name}.{name}", docstring))
                rows.append(f"- <code>{escape_code(f'{name}: {ast.unparse(kind)}')}</code>  \n  {text}\n")
        return "\n" + "".join(rows)

    def methods(self, definition):
        text = ""
        for statement in definition.body:
            if not isinstance(statement, ast.FunctionDef) or statement.name.startswith("_"):
                continue
            if not is_decorated(statement, "property") and not is_decorated(statement, "overload"):
                entry = self.entry(f"{definition.name}.{statement.name}", signature(statement), ast.get_docstring(statement))
                text += f"\n## {statement.name} {{#{page_of(definition.name)}--{statement.name}}}\n\n{entry}"
        return text

    def page(self, name, statement, following):
        if isinstance(statement, ast.FunctionDef):
            return self.entry(name, signature(statement), ast.get_docstring(statement))
        if isinstance(statement, ast.AnnAssign):
            return self.entry(name, f"{name}: {ast.unparse(statement.annotation)}", following)
        bases = f"({', '.join(ast.unparse(base) for base in statement.bases)})" if statement.bases else ""
        text = self.entry(name, f"class {name}{bases}", ast.get_docstring(statement))
        return text + self.attributes(statement) + self.methods(statement)


def first_sentence(statement, following):
    docstring = following if isinstance(statement, ast.AnnAssign) else ast.get_docstring(statement)
    return re.match(r".*?(?:[.:](?=\s|$)|$)", " ".join((docstring or "").split()))[0].removesuffix(":")


def main():
    package, directory = Package(pathlib.Path(sys.argv[1])), pathlib.Path(sys.argv[2])
    writer = Writer(set(package.names))
    index = [f"# The Python interface {{#{INDEX}}}\n", writer.prose(ast.get_docstring(package.init)),
             "| name | is |\n|---|---|"]
    for name in package.names:
        definition = package.definition(name)
        text = f"# {name} in Python {{#{page_of(name)}}}\n\n[TOC]\n\n{writer.page(name, *definition)}"
        (directory / f"{page_of(name)}.md").write_text(text, encoding="utf-8")
        index.append(f"| {writer.code(name)} | {writer.inline(first_sentence(*definition))} |")
    if writer.missing:
        sys.exit(f"no docstring: {', '.join(writer.missing)}")
    (directory / f"{INDEX}.md").write_text("\n".join(index) + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
