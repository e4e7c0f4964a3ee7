#!/usr/bin/env python3
"""Prints the page about the Python package: every name that it exports, from its sources. Fails for a name without a
docstring.

    python_interface.py PACKAGE
"""
import ast
import inspect
import pathlib
import re
import sys
import textwrap

from markup import escape, link

PAGE = "python-interface"


def anchor(*names):
    return f"{PAGE}--" + "-".join(names)


def inline(text, exported):
    """A paragraph of a docstring as Markdown, with links to what the package exports."""

    def code(name):
        base = name.split(".")[0].removesuffix("()")
        return link("#" + anchor(base), f"`{name}`") if base in exported else f"<code>{escape_code(name)}</code>"

    parts = re.split(r"(:\w+:`[^`]+`|``[^`]+``)", text)
    return "".join(code(re.sub(r"^:\w+:|`", "", part)) if "`" in part else escape(part) for part in parts)


def escape_code(text):
    return text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")


def prose(docstring, exported):
    """A docstring as Markdown."""
    text = re.sub(r"^:[^\n]*(?:\n {4}\S[^\n]*)+", lambda lines: " ".join(lines[0].split()), docstring, flags=re.MULTILINE)
    blocks = []
    for block in re.split(r"\n{2,}(?! )", text):
        if block.startswith("    "):
            blocks.append("~~~{.py}\n" + textwrap.dedent(block) + "\n~~~")
        elif block.startswith(":"):
            blocks.append("\n".join(field(line, exported) for line in block.splitlines()))
        else:
            first, *code = block.split("\n\n    ", 1)
            blocks.append(inline(" ".join(first.split()).removesuffix("::"), exported))
            blocks += ["~~~{.py}\n" + textwrap.dedent("    " + lines) + "\n~~~" for lines in code]
    return "\n\n".join(blocks) + "\n"


def field(line, exported):
    """A line such as ``:raises KeyError, ValueError: there is no such field``."""
    kind, names, text = re.fullmatch(r":(\w+)(?: ([\w., ]+))?: *(.*)", line).groups()
    subject = ", ".join(inline(f"``{name}``", exported) for name in names.split(", ")) + ": " if names else ""
    before = {"param": "", "raises": "raises ", "return": "returns ", "returns": "returns "}[kind]
    return f"- {before}{subject}{inline(text, exported)}"


def signature(function):
    arguments = ast.unparse(function.args)
    arguments = re.sub(r"^(self|cls)(, )?", "", arguments)
    returns = f" -> {ast.unparse(function.returns)}" if function.returns else ""
    return f"{function.name}({arguments}){returns}"


def is_decorated(function, name):
    return any(ast.unparse(decorator).split(".")[-1] == name for decorator in function.decorator_list)


def strings_after(body):
    """Each statement with the string that follows it, if one does."""
    for statement, following in zip(body, [*body[1:], None]):
        is_text = isinstance(following, ast.Expr) and isinstance(following.value, ast.Constant)
        yield statement, inspect.cleandoc(following.value.value) if is_text else None


class Page:
    def __init__(self, package):
        self.package = package
        self.lines = []
        self.missing = []

    def documented(self, name, docstring):
        if not docstring:
            self.missing.append(name)
        return docstring or ""

    def entry(self, level, names, code, docstring, exported):
        title = ".".join(names)
        self.lines.append(f"\n{level} {title} {{#{anchor(*names)}}}\n\n~~~{{.py}}\n{code}\n~~~\n")
        self.lines.append(prose(self.documented(title, docstring), exported))

    def function(self, function, exported):
        self.entry("##", [function.name], signature(function), ast.get_docstring(function), exported)

    def value(self, statement, docstring, exported):
        name = statement.target.id
        self.entry("##", [name], f"{name}: {ast.unparse(statement.annotation)}", docstring, exported)

    def of_class(self, definition, exported):
        bases = ", ".join(ast.unparse(base) for base in definition.bases)
        code = f"class {definition.name}" + (f"({bases})" if bases else "")
        self.entry("##", [definition.name], code, ast.get_docstring(definition), exported)
        fields = []
        for statement, docstring in strings_after(definition.body):
            if isinstance(statement, ast.AnnAssign) and not statement.target.id.startswith("_"):
                fields.append((statement.target.id, ast.unparse(statement.annotation), docstring))
            elif isinstance(statement, ast.FunctionDef) and is_decorated(statement, "property"):
                if not statement.name.startswith("_"):
                    fields.append((statement.name, ast.unparse(statement.returns), ast.get_docstring(statement)))
        if fields:
            self.lines.append("| member | type | |\n|---|---|---|")
        for name, kind, docstring in fields:
            text = inline(" ".join(self.documented(f"{definition.name}.{name}", docstring).split()), exported)
            self.lines.append(f"| <code>{name}</code> | <code>{escape_code(kind).replace('|', '&#124;')}</code> | {text} |")
        for statement in definition.body:
            if isinstance(statement, ast.FunctionDef) and not statement.name.startswith("_"):
                if not is_decorated(statement, "property") and not is_decorated(statement, "overload"):
                    self.entry("###", [definition.name, statement.name], signature(statement),
                               ast.get_docstring(statement), exported)


def main():
    package = pathlib.Path(sys.argv[1])
    init = ast.parse((package / "__init__.py").read_text(encoding="utf-8"))
    origins = {
        alias.asname or alias.name: statement.module
        for statement in init.body
        if isinstance(statement, ast.ImportFrom) and statement.level == 1
        for alias in statement.names
    }
    exported = {name for name in origins if not name.startswith("__")}
    modules = {origin: ast.parse((package / f"{origin}.py").read_text(encoding="utf-8"))
               for name, origin in origins.items() if name in exported}
    page = Page(package)
    for name in sorted(exported, key=lambda name: (name[0].isupper(), name)):
        found = False
        for statement, docstring in strings_after(modules[origins[name]].body):
            if isinstance(statement, ast.ClassDef) and statement.name == name:
                page.of_class(statement, exported)
            elif isinstance(statement, ast.FunctionDef) and statement.name == name and not is_decorated(statement, "overload"):
                page.function(statement, exported)
            elif isinstance(statement, ast.AnnAssign) and statement.target.id == name:
                page.value(statement, docstring, exported)
            else:
                continue
            found = True
        if not found:
            page.missing.append(name)
    if page.missing:
        sys.exit(f"no docstring: {', '.join(page.missing)}")
    print(f"# The Python interface {{#{PAGE}}}\n\n[TOC]\n")
    print(prose(ast.get_docstring(init), exported))
    print("\n".join(page.lines))


if __name__ == "__main__":
    main()
