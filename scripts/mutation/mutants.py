"""Finds all places in the product where one small change makes a mutant."""

import re
from collections.abc import Iterator
from dataclasses import dataclass
from pathlib import Path

from conditions import condition_edits
from cpptokens import Token, tokenize
from edits import Edit

LAYERS = ("field", "readers", "vif", "testsuite")
# A table of names and places, which tests/field/KnownFieldsReference.h repeats, with its compile-time check.
DATA_FILES = ("field/KnownFields.cpp",)

_SWAPS = {
    "==": ["!="],
    "!=": ["=="],
    "<": ["<=", ">="],
    "<=": ["<", ">"],
    ">": [">=", "<="],
    ">=": [">", "<"],
    "&&": ["||"],
    "||": ["&&"],
    "+": ["-"],
    "-": ["+"],
    "*": ["/"],
    "/": ["*"],
    "%": ["*"],
    "&": ["|"],
    "|": ["&"],
    "^": ["|"],
    "+=": ["-="],
    "-=": ["+="],
    "*=": ["/="],
    "/=": ["*="],
}
_STEPS = {"++": "--", "--": "++"}
_TRUTHS = {"true": "false", "false": "true"}
_INTEGER = re.compile(r"(0[xX][\da-fA-F']+|\d[\d']*)([uUlLzZ]*)")


@dataclass(frozen=True)
class Mutant:
    """One change to one file; `before` and `after` are the lines that it touches, each joined into one line."""

    file: str
    line: int
    edit: Edit
    before: str
    after: str

    @property
    def change(self) -> str:
        """The change in a few words."""
        return f"{self.edit.before} -> {self.edit.after or 'nothing'}"


def find_mutants(root: Path) -> list[Mutant]:
    """All mutants of the product, in the order of files and lines."""
    sources = [path for layer in LAYERS for path in (root / layer).iterdir() if path.suffix in (".cpp", ".h")]
    names = sorted(str(path.relative_to(root)) for path in sources if not path.name.endswith("Windows.cpp"))
    return [mutant for name in names if name not in DATA_FILES for mutant in _mutants_of(root, name)]


def _mutants_of(root: Path, name: str) -> Iterator[Mutant]:
    text = (root / name).read_text(encoding="utf-8")
    tokens = list(_without_fixed_parts(tokenize(text)))
    edits = {edit for index in range(len(tokens)) for edit in _token_edits(tokens, index)}
    edits.update(condition_edits(text, tokens))
    for edit in sorted(edits):
        yield Mutant(name, text.count("\n", 0, edit.start) + 1, edit, edit.lines_before(text), edit.lines_after(text))


def _without_fixed_parts(tokens: list[Token]) -> Iterator[Token]:
    """Leaves out what has no effect at run time or does not compile when changed: template arguments, attributes,
    static assertions and the names of operators."""
    index = 0
    while index < len(tokens):
        if tokens[index].text == "<" and not tokens[index].blank_after:
            index = _after_closing(tokens, index, "<", ">")
        elif tokens[index].text == "[" and _is(tokens, index + 1, "["):
            index = _after_closing(tokens, index, "[", "]")
        elif tokens[index].text == "static_assert":
            index = _after_closing(tokens, index + 1, "(", ")")
        elif tokens[index].text == "operator":
            index += 2
        else:
            yield tokens[index]
            index += 1


def _is(tokens: list[Token], index: int, text: str) -> bool:
    return index < len(tokens) and tokens[index].text == text


def _after_closing(tokens: list[Token], index: int, opening: str, closing: str) -> int:
    depth = 0
    while index < len(tokens):
        depth += (tokens[index].text == opening) - (tokens[index].text == closing)
        index += 1
        if depth == 0:
            break
    return index


def _token_edits(tokens: list[Token], index: int) -> Iterator[Edit]:
    token = tokens[index]
    for text in _replacements(token):
        if not _joins_text(tokens, index):
            yield Edit(token.start, token.text, text)


def _replacements(token: Token) -> list[str]:
    """What may replace one token."""
    if token.kind == "sign" and token.is_binary:
        return _SWAPS.get(token.text, [])
    if token.text in _STEPS:
        return [_STEPS[token.text]]
    if token.text in _TRUTHS:
        return [_TRUTHS[token.text]]
    if token.text == "!":
        return [""]
    if token.kind == "number":
        return _other_number(token.text)
    if token.kind == "character":
        return [_other_character(token.text)]
    return []


def _joins_text(tokens: list[Token], index: int) -> bool:
    """Whether a + concatenates a string literal, for which no other operator compiles."""
    return tokens[index].text == "+" and any(token.kind == "string" for token in tokens[index - 1 : index + 2])


def _other_number(text: str) -> list[str]:
    integer = _INTEGER.fullmatch(text)
    if integer is None:
        return []
    digits, suffix = integer.groups()
    number = int(digits.replace("'", ""), 0 if digits[:2] in ("0x", "0X") else 10) + 1
    return [(f"0x{number:X}" if digits[:2] in ("0x", "0X") else str(number)) + suffix]


def _other_character(text: str) -> str:
    """The next character for a letter or a digit, which may end a range; a tilde for any other."""
    prefix, content = text[: text.index("'")], text[text.index("'") + 1 : -1]
    other = chr(ord(content) + 1) if len(content) == 1 and content.isalnum() else "~"
    return f"{prefix}'{other}'"
