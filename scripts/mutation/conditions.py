"""Mutants of whole conditions: the opposite, and an early exit that is never taken."""

from collections.abc import Iterator

from cpptokens import Token
from edits import Edit

_COMPARISONS = ("==", "!=", "<", "<=", ">", ">=")
_EXITS = ("return", "throw", "continue", "break")
_OPENING = ("(", "[", "{")
_CLOSING = (")", "]", "}")


def condition_edits(text: str, tokens: list[Token]) -> Iterator[Edit]:
    """The edits of the conditions of all `if` and `while` statements."""
    for index, token in enumerate(tokens):
        if token.text in ("if", "while") and tokens[index + 1].text == "(":
            yield from _edits_of(text, tokens, index + 1)


def _edits_of(text: str, tokens: list[Token], opening: int) -> Iterator[Edit]:
    """The edits of the condition after an opening bracket."""
    closing = _closing(tokens, opening)
    outer = _outer_tokens(tokens[opening + 1 : closing])
    for token in (token for token in outer if token.text == ";"):
        opening = tokens.index(token)  # before it stands a statement
    outer = [token for token in outer if token.start > tokens[opening].start]
    if any(token.text == "=" for token in outer):
        return  # a declaration
    start, end = tokens[opening].end, tokens[closing].start
    start += len(text[start:end]) - len(text[start:end].lstrip())
    condition = text[start:end]
    if not _has_opposite_by_token(outer):
        yield Edit(start, condition, f"!({condition})")
    if _is_exit(tokens[closing + 1 : closing + 4]):
        yield Edit(start, condition, "false")


def _is_exit(statement: list[Token]) -> bool:
    """Whether a statement, given by its first tokens, leaves the surrounding code: by a keyword or by a function such
    as vif::ThrowRunTimeError."""
    throwing = statement[2] if statement[1].text == "::" else statement[0]
    return statement[0].text in _EXITS or throwing.text.startswith("Throw")


def _closing(tokens: list[Token], opening: int) -> int:
    depth = 0
    for index in range(opening, len(tokens)):
        depth += (tokens[index].text in _OPENING) - (tokens[index].text in _CLOSING)
        if depth == 0:
            return index
    raise ValueError("an unclosed bracket")


def _outer_tokens(tokens: list[Token]) -> list[Token]:
    """The tokens outside all brackets."""
    outer: list[Token] = []
    depth = 0
    for token in tokens:
        depth -= token.text in _CLOSING
        if depth == 0:
            outer.append(token)
        depth += token.text in _OPENING
    return outer


def _has_opposite_by_token(outer: list[Token]) -> bool:
    """Whether a mutant of one token already negates the condition."""
    texts = [token.text for token in outer]
    if "&&" in texts or "||" in texts:
        return False
    return texts[0] == "!" or any(text in _COMPARISONS for text in texts)
