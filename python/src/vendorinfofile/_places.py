"""Groups of a VIF, and the keywords that name them."""

from __future__ import annotations

from typing import Any, Mapping, NamedTuple

from ._library import ANY, ffi, lib

_PREFIX = "VIF_LOCATION_"

KEYWORDS: dict[int, str] = {
    getattr(lib, name): name[len(_PREFIX) :].lower()
    for name in dir(lib)
    if name.startswith(_PREFIX) and name != "VIF_LOCATION_UNSET"
}
"""The keyword of each kind of group, by the library's number of it."""

CODES: dict[str, int] = {KEYWORDS[code]: code for code in sorted(KEYWORDS)}
"""The library's number of each kind of group, by its keyword."""

_SLOTS = ffi.typeof("vif_index[]")

DEPTH: int = lib.VIF_INDEX_COUNT
"""In how many groups, one inside the other, a field can be."""


class Index(NamedTuple):
    """A group and its number, such as source PDO 2."""

    location: str
    """The kind of group by its keyword in queries, such as "src_pdo"."""
    number: int | None
    """Its number, from 1, or from 0 for products and routers; None if the file does not give it."""

    def __str__(self) -> str:
        return f"{self.location}={'?' if self.number is None else self.number}"


def indexes_of(slots: Any, count: int) -> tuple[Index, ...]:
    """The groups that the library has given, outermost first."""
    return tuple([_index(slot.location, slot.number) for slot in slots[0:count]])


def _index(location: int, number: int) -> Index:
    return Index(KEYWORDS[location], None if number == ANY else number)


def words_for(indexes: tuple[Index, ...]) -> str:
    """The groups for people, such as "component=1, src_pdo=2"."""
    return ", ".join(str(index) for index in indexes)


class Places:
    """The places of a query."""

    def __init__(self, numbers: Mapping[str, int]) -> None:
        """
        :raises TypeError: a keyword is not the name of a kind of group, or a number is not an integer
        :raises ValueError: a number is negative or too large, or there are too many places
        """
        for keyword, number in numbers.items():
            if keyword not in CODES:
                raise TypeError(f"there is no kind of group {keyword!r}; there are {', '.join(CODES)}")
            if not isinstance(number, int):
                raise TypeError(f"{keyword} must be an integer, not {type(number).__name__}")
            if not 0 <= number <= ANY:
                raise ValueError(f"{keyword}={number} is out of range")
        if len(numbers) > DEPTH:
            raise ValueError(f"a query has at most {DEPTH} places")
        self.numbers = dict(numbers)
        self.count = len(numbers)
        """How many there are."""
        self.slots: Any = ffi.new(_SLOTS, [(CODES[keyword], number) for keyword, number in numbers.items()])
        """The places as the library takes them."""

    def and_also(self, numbers: Mapping[str, int]) -> Places:
        """These places and others.

        :raises TypeError: ValueError: as for the constructor, or the others have a keyword of these
        """
        if not numbers:
            return self
        for keyword in numbers:
            if keyword in self.numbers:
                raise ValueError(f"the group is in {keyword}={self.numbers[keyword]} already")
        return Places({**self.numbers, **numbers})
