"""Comparisons."""

from __future__ import annotations

import os
from typing import Any, Iterator, NamedTuple, Sequence, Union, overload

from ._errors import call, require
from ._library import NO_POSITION, Path, Structure, ffi, lib, owned, py_number, py_position, py_text
from ._places import Index, indexes_of, words_for
from ._product import Product, load

_COMPARE_OPTIONS = Structure("vif_compare_options")
_DIFFERENCE = Structure("vif_difference")
_GROUP_CHANGE = Structure("vif_group_change")
_PORT_COMPARISON = Structure("vif_port_comparison")

Vif = Union[Path, Product]
"""A file, or a product that was loaded from one."""

_KINDS: dict[int, str] = {
    lib.VIF_CHANGED: "changed",
    lib.VIF_ADDED: "added",
    lib.VIF_REMOVED: "removed",
    lib.VIF_MOVED: "moved",
    lib.VIF_RENUMBERED: "renumbered",
}


class DeclaredField(NamedTuple):
    """A field as one of two files has it."""

    name: str
    """The name, perhaps an older spelling."""
    value: str
    """The value as declared."""
    description: str
    """The text of an XML element, or the comment of a line."""
    text: str
    """What it says: its text, or its number in decimal."""
    meaning: str
    """What its number stands for, such as "9 V"; empty if that is not known."""
    meaning_is_uncertain: bool
    """Whether the meaning has low confidence."""
    number: int | None
    """The number, as :attr:`Field.number`; None if it has none."""
    position: int
    """The position, from 0, among the fields of that file."""
    indexes: tuple[Index, ...]
    """The groups that it is in there, outermost first."""

    def __str__(self) -> str:
        return self.meaning or self.text


class Difference(NamedTuple):
    """A field that two files declare differently."""

    kind: str
    """"changed", "added" or "removed"."""
    name: str
    """The field's canonical name."""
    place: tuple[Index, ...]
    """Its groups in the second file, or, if that lacks it, where the first has it."""
    before: DeclaredField | None
    """The field in the first file; None if it was added."""
    after: DeclaredField | None
    """The field in the second file; None if it was removed."""
    group: int | None
    """The position in :attr:`Differences.groups` of the group that it came or went with; None if it was alone."""

    def __str__(self) -> str:
        place = f"{words_for(self.place)}: " if self.place else ""
        if self.before is None or self.after is None:
            return f"{place}{self.name} {self.kind}: {self.before or self.after}"
        return f"{place}{self.name}: {self.before} -> {self.after}"


class GroupChange(NamedTuple):
    """A whole group that is not the same, or does not have the same number, in both files."""

    kind: str
    """"added", "removed", "moved" or "renumbered"."""
    summary: str
    """What it is, such as "Fixed, 9 V, 3 A, 27 W"; may be empty."""
    field_count: int
    """How many fields it has, with those of the groups in it."""
    before: tuple[Index, ...]
    """Its place in the first file; if it was added, where the group around it is there."""
    after: tuple[Index, ...]
    """Its place in the second file; if it was removed, where the group around it is there."""

    def __str__(self) -> str:
        places = [words_for(self.before), words_for(self.after)]
        place = {"added": places[1], "removed": places[0]}.get(self.kind, " -> ".join(places))
        return f"{place} {self.kind}" + (f": {self.summary}" if self.summary else "")


class Differences(Sequence[Difference]):
    """How a second file differs from a first: the fields, and in :attr:`groups` the groups. False if it does not."""

    def __init__(self, handle: Any) -> None:
        self.groups: list[GroupChange] = [
            _group(handle, position) for position in range(lib.vif_differences_group_count(handle))
        ]
        """The groups that were added, removed, moved or renumbered."""
        self._list = [_difference(handle, position) for position in range(lib.vif_differences_count(handle))]

    @overload
    def __getitem__(self, position: int) -> Difference: ...
    @overload
    def __getitem__(self, position: slice) -> list[Difference]: ...
    def __getitem__(self, position: int | slice) -> Difference | list[Difference]:
        return self._list[position]

    def __len__(self) -> int:
        return len(self._list)

    def __bool__(self) -> bool:
        return bool(self._list or self.groups)

    def __iter__(self) -> Iterator[Difference]:
        return iter(self._list)

    def __repr__(self) -> str:
        return f"<Differences: {len(self)} fields, {len(self.groups)} groups>"


class PortComparison(NamedTuple):
    """How one component differs from an earlier one of its kind."""

    component: int
    """The number of the one."""
    other: int
    """The number of the earlier one."""
    differences: Differences
    """What is different; the earlier component is the first side."""


def diff(before: Vif, after: Vif, *, descriptions: bool = False) -> Differences:
    """How two VIFs differ in what they declare, text and XML alike. PDOs, SVIDs and components that moved are found.

    :param before: the first, a path or a product of one file
    :param after: the second
    :param descriptions: whether fields with the same value but other descriptions differ, too
    :raises VifError: a file cannot be loaded, as for :func:`load`
    """
    first, second = product_of(before), product_of(after)
    made = ffi.new("vif_differences**")
    call(lib.vif_compare, first._source.handle, second._source.handle, _options(descriptions), ffi.NULL, made)
    return Differences(owned(made[0], lib.vif_differences_free))


def diff_ports(vif: Vif, *, descriptions: bool = False) -> list[PortComparison]:
    """Compares each component of a VIF with an earlier one of its kind, where there is one.

    :raises VifError: the file cannot be loaded, as for :func:`load`
    """
    product = product_of(vif)
    made = ffi.new("vif_ports**")
    call(lib.vif_compare_ports, product._source.handle, _options(descriptions), ffi.NULL, made)
    ports = owned(made[0], lib.vif_ports_free)
    comparisons = []
    filled = _PORT_COMPARISON()
    for position in range(lib.vif_ports_count(ports)):
        require(lib.vif_ports_get(ports, position, filled))
        comparisons.append(PortComparison(filled.component, filled.other, Differences(filled.differences)))
    return comparisons


def product_of(vif: Vif) -> Product:
    """The product itself, or that of the file."""
    return vif if isinstance(vif, Product) else load(os.fspath(vif))


def _options(descriptions: bool) -> Any:
    options = _COMPARE_OPTIONS()
    options.descriptions = int(descriptions)
    return options


def _declared(filled: Any) -> DeclaredField | None:
    if filled.position == NO_POSITION:
        return None
    return DeclaredField(
        py_text(filled.name),
        py_text(filled.value),
        py_text(filled.description),
        py_text(filled.text),
        py_text(filled.meaning),
        bool(filled.meaning_is_uncertain),
        py_number(filled.number),
        filled.position,
        indexes_of(filled.indexes, filled.index_count),
    )


def _difference(handle: Any, position: int) -> Difference:
    filled = _DIFFERENCE()
    require(lib.vif_differences_get(handle, position, filled))
    return Difference(
        _KINDS[filled.kind],
        py_text(filled.name),
        indexes_of(filled.place, filled.place_count),
        _declared(filled.before),
        _declared(filled.after),
        py_position(filled.group),
    )


def _group(handle: Any, position: int) -> GroupChange:
    filled = _GROUP_CHANGE()
    require(lib.vif_differences_group(handle, position, filled))
    return GroupChange(
        _KINDS[filled.kind],
        py_text(filled.summary),
        filled.field_count,
        indexes_of(filled.before, filled.before_count),
        indexes_of(filled.after, filled.after_count),
    )
