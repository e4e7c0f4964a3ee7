"""Cuts C++ source text into the tokens that a mutant may change.

clang-format formats the sources, so the blanks around an operator say what it is: a comparison has one on either side,
the bracket of a template argument does not.
"""

import re
from dataclasses import dataclass

_TOKEN = re.compile(
    r"""
      (?P<blank>   \s+ )
    | (?P<comment> //[^\n]* | /\*.*?\*/ )
    | (?P<string>  (?:u8|[uUL])?R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)" | (?:u8|[uUL])?"(?:\\.|[^"\\\n])*" )
    | (?P<character> (?:u8|[uUL])?'(?:\\.[^'\n]*|[^'\\\n])' )
    | (?P<number>  \.?\d(?:[eEpP][+-]|'?[\w.])* )
    | (?P<name>    [A-Za-z_]\w* )
    | (?P<sign>    <=> | ->\*? | \+\+ | -- | && | \|\| | <<=? | [-+*/%&|^=!<>]= | :: | \.\.\. | [^\w\s] )
    """,
    re.VERBOSE | re.DOTALL,
)
_DIRECTIVE = re.compile(r"^[ \t]*#(?:[^\n]*\\\n)*[^\n]*", re.MULTILINE)
_CONDITIONAL = re.compile(r"\s*#\s*(if|ifdef|ifndef|elif|else|endif)\b[ \t]*(.*)", re.DOTALL)


@dataclass(frozen=True)
class Token:
    """One token: `kind` is "string", "character", "number", "name" or "sign"."""

    kind: str
    text: str
    start: int
    blank_before: bool
    blank_after: bool

    @property
    def end(self) -> int:
        """Where the token ends."""
        return self.start + len(self.text)

    @property
    def is_binary(self) -> bool:
        """Whether an operator stands between two operands: then blanks surround it."""
        return self.blank_before and self.blank_after


def tokenize(text: str) -> list[Token]:
    """The tokens of a source without its comments, preprocessor directives and Windows-only code."""
    text = _blank_out(text)
    tokens: list[Token] = []
    position = 0
    while position < len(text):
        match = _TOKEN.match(text, position)
        if match is None:
            raise ValueError(f"no token at {text[position:position + 20]!r}")
        kind = match.lastgroup if match.lastgroup != "mark" else "string"
        position = match.end()
        if kind is not None and kind not in ("blank", "comment"):
            tokens.append(_token(text, kind, match.start(), position))
    return tokens


def _token(text: str, kind: str, start: int, end: int) -> Token:
    return Token(
        kind=kind,
        text=text[start:end],
        start=start,
        blank_before=start == 0 or text[start - 1].isspace(),
        blank_after=end == len(text) or text[end].isspace(),
    )


def _blank_out(text: str) -> str:
    """The text with directives and Windows-only lines replaced by as many blanks."""
    result = text
    groups: list[bool] = []  # for each open #if: whether its lines are for Windows only
    hidden_from = 0
    for directive in _DIRECTIVE.finditer(text):
        if any(groups):
            result = _blank(result, hidden_from, directive.start())
        result = _blank(result, directive.start(), directive.end())
        hidden_from = directive.end()
        _follow(directive.group(), groups)
    return result


def _follow(directive: str, groups: list[bool]) -> None:
    """Opens, switches or closes a group of lines."""
    conditional = _CONDITIONAL.match(directive)
    if conditional is None:
        return
    word, condition = conditional.groups()
    if word.startswith("if"):
        groups.append(word == "ifdef" and condition.strip() == "_WIN32")
    elif word == "endif":
        groups.pop()
    else:
        groups[-1] = False


def _blank(text: str, start: int, end: int) -> str:
    return text[:start] + re.sub(r"[^\n]", " ", text[start:end]) + text[end:]
