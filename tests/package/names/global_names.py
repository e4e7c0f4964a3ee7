#!/usr/bin/env python3
"""Lists what headers declare in the global namespace, and their macros.

Reads the output of `c++ -E -dD` for a source that includes them, and looks only at what comes from files under
DIRECTORY. Prints one name a line, sorted: "macro NAME" or "NAME".

    global_names.py DIRECTORY <preprocessed
"""
import re
import sys

TOKEN = re.compile(r'"(?:\\.|[^"\\])*"|[A-Za-z_]\w*|::|\S')
BRACKETS = {"(": ")", "{": "}", "[": "]"}


def lines_of(directory, preprocessed):
    """The lines that come from files under the directory."""
    is_wanted = False
    for line in preprocessed:
        marker = re.match(r'# \d+ "([^"]*)"', line)
        if marker:
            is_wanted = marker.group(1).startswith(directory)
        elif is_wanted:
            yield line


def flattened(tokens):
    """The tokens outside all brackets; a pair of brackets and what is in it is one token, such as "()"."""
    closing = []
    for token in tokens:
        if closing and token == closing[-1]:
            closing.pop()
            if not closing:
                yield opened + token
        elif token in BRACKETS:
            if not closing:
                opened = token
            closing.append(BRACKETS[token])
        elif not closing:
            yield token


def declarations(tokens):
    """The tokens of each declaration, without the `;`."""
    declaration = []
    for token in tokens:
        if token == ";":
            if declaration:
                yield declaration
            declaration = []
            continue
        declaration.append(token)
        # A namespace and a function's body have no semicolon after them.
        if token == "{}" and (declaration[0] == "namespace" or ("()" in declaration and "=" not in declaration)):
            yield declaration
            declaration = []


def without_template_head(declaration):
    """The declaration after `template <...>`."""
    if declaration[0] != "template":
        return declaration
    depth = 0
    for position, token in enumerate(declaration):
        depth += (token == "<") - (token == ">")
        if token == ">" and depth == 0:
            return declaration[position + 1 :]
    raise ValueError(" ".join(declaration))


def declared_name(declaration):
    """The name that a declaration introduces."""
    words = without_template_head(declaration)
    if words[0] in ("namespace", "class", "struct", "union", "enum"):
        words = [word for position, word in enumerate(words) if word != "()" and words[position - 1] != "__attribute__"]
        return next(word for word in words[1:] if word.isidentifier() and word not in ("class", "__attribute__"))
    if words[0] == "using":
        return words[1]
    if "()" in words and "=" not in words:
        callables = (words[position - 1] for position, word in enumerate(words) if word == "()")
        return next(word for word in callables if word.isidentifier() and word != "__attribute__")
    return next(words[position - 1] for position, word in enumerate(words) if word in ("=", "{}", "[]"))


def enumerators(code):
    """The names of the values of unscoped enumerations."""
    for body in re.findall(r"\benum\s+(?!class\b)\w*[^{};]*\{([^}]*)\}", code):
        yield from re.findall(r"(?:^|,)\s*(\w+)", body)


def main():
    lines = list(lines_of(sys.argv[1], sys.stdin))
    names = {"macro " + line.split()[1].split("(")[0] for line in lines if line.startswith("#define ")}
    code = "".join(line for line in lines if not line.startswith("#"))
    code = re.sub(r'extern "C"\s*\{([^{}]*)\}', r"\1", code).replace('extern "C"', "")
    names |= {declared_name(declaration) for declaration in declarations(flattened(TOKEN.findall(code)))}
    names |= set(enumerators(code))
    print("\n".join(sorted(names)))


if __name__ == "__main__":
    main()
