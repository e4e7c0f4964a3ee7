"""What fields and findings mean."""

from __future__ import annotations

from typing import Any, NamedTuple

from ._errors import call, require
from ._findings import SEVERITIES
from ._library import Structure, c_text, ffi, lib, owned, py_text

_EXPLAINED_FIELD = Structure("vif_explained_field")
_EXPLAINED_SPELLING = Structure("vif_explained_spelling")
_EXPLAINED_VALUE = Structure("vif_explained_value")
_RULE = Structure("vif_rule")


class ExplainedValue(NamedTuple):
    """A value that a field can have."""

    value: str
    """The number in decimal."""
    text: str
    """What it stands for."""
    confidence: str
    """How certain that is: "high", "medium" or "low"."""
    seen: bool
    """Whether a real file is known that has it."""


class ExplainedSpelling(NamedTuple):
    """Another name of a field."""

    name: str
    """The name; "#" stands for the digits of an index."""
    kind: str
    """Why it means the field, such as "older field"."""
    first_edition: str
    """The first edition seen with it; may be empty."""
    last_edition: str
    """The last edition seen with it; may be empty."""
    why: str
    """How that is known; may be empty."""
    confidence: str
    """How certain that is: "high", "medium" or "low"."""


class Explanation(NamedTuple):
    """What is known about a field of the format. Texts are empty where there is nothing to say."""

    name: str
    """The canonical name."""
    asked: str
    """Why the name asked for means this field, such as "older field"; empty if it is its own."""
    also_means: str
    """The other field, where an older field was split in two."""
    group: str
    """The short name of the group that it is in."""
    declares: str
    """What it declares."""
    note: str
    """Further remarks."""
    type: str
    """"text", "number", "boolean", "enumeration", "group" or "unknown"."""
    unit: str
    """"50 mV", or "50 mV (fixed); 100 mV (augmented)"."""
    unit_is_uncertain: bool
    """Whether part of the unit is uncertain."""
    first_edition: str
    """The first edition seen with the name."""
    last_edition: str
    """The last edition seen with the name."""
    confidence: str
    """How certain :attr:`declares` is: "high", "medium" or "low"."""
    seen: bool
    """Whether a real file is known that has the field."""
    values: tuple[ExplainedValue, ...]
    """The values that it can have, in rising order."""
    spellings: tuple[ExplainedSpelling, ...]
    """Its other names."""
    sources: tuple[str, ...]
    """What the explanation was taken from."""


class Rule(NamedTuple):
    """A rule of the check."""

    code: str
    """The code of its findings."""
    severity: str
    """The severity of its findings: "error", "warning" or "note"."""
    what: str
    """What it finds, as a phrase."""
    why: str
    """Why that is wrong and what to do about it, in sentences."""
    confidence: str
    """How certain it is that what it finds is wrong: "high", "medium" or "low"."""
    since: tuple[int, int] | None
    """The first edition of the format that it is applied to: ``(3, 22)``; None for a rule that applies to all."""


def explain(name: str) -> Explanation:
    """What is known about the field that a name means: in any letter case and known spelling, indexes or not.

    :raises FieldNotFound: the name means no field; the message has the nearest name, if there is one
    """
    made = ffi.new("vif_explanation**")
    call(lib.vif_explain, c_text(name), made)
    handle = owned(made[0], lib.vif_explanation_free)
    field = _EXPLAINED_FIELD()
    require(lib.vif_explanation_get(handle, field))
    return Explanation(
        py_text(field.name),
        py_text(field.asked),
        py_text(field.also_means),
        py_text(field.group),
        py_text(field.declares),
        py_text(field.note),
        py_text(field.type),
        py_text(field.unit),
        bool(field.unit_is_weak),
        py_text(field.first_edition),
        py_text(field.last_edition),
        py_text(field.confidence),
        bool(field.seen),
        tuple(_value(handle, position) for position in range(field.value_count)),
        tuple(_spelling(handle, position) for position in range(field.spelling_count)),
        tuple(py_text(lib.vif_explanation_source(handle, position)) for position in range(field.source_count)),
    )


def rules() -> list[Rule]:
    """All rules of the check."""
    filled = _RULE()
    found = []
    for position in range(lib.vif_rule_count()):
        require(lib.vif_rule_get(position, filled))
        found.append(_rule(filled))
    return found


def rule(code: str) -> Rule:
    """The rule with a code, in any letter case.

    :raises FieldNotFound: there is none; the message has the nearest code, if there is one
    """
    filled = _RULE()
    call(lib.vif_find_rule, c_text(code), filled)
    return _rule(filled)


def _value(handle: Any, position: int) -> ExplainedValue:
    filled = _EXPLAINED_VALUE()
    require(lib.vif_explanation_value(handle, position, filled))
    return ExplainedValue(
        py_text(filled.value), py_text(filled.text), py_text(filled.confidence), bool(filled.seen)
    )


def _spelling(handle: Any, position: int) -> ExplainedSpelling:
    filled = _EXPLAINED_SPELLING()
    require(lib.vif_explanation_spelling(handle, position, filled))
    return ExplainedSpelling(
        py_text(filled.name),
        py_text(filled.kind),
        py_text(filled.first_edition),
        py_text(filled.last_edition),
        py_text(filled.why),
        py_text(filled.confidence),
    )


def _rule(filled: Any) -> Rule:
    since = (filled.first_major, filled.first_minor)
    return Rule(
        py_text(filled.code),
        SEVERITIES[filled.severity],
        py_text(filled.what),
        py_text(filled.why),
        py_text(filled.confidence),
        None if since == (0, 0) else since,
    )
