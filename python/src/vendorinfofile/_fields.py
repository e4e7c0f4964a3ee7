"""Fields."""

from __future__ import annotations

from typing import Any, Callable, NamedTuple

from ._library import py_number, py_text
from ._places import Index, indexes_of, words_for


class Quantity(NamedTuple):
    """An amount with its unit: ``(9.0, "V")``."""

    amount: float
    """How many of the unit."""
    unit: str
    """"V", "A", "W", "ms", "%", "mOhm" or "°C"."""

    def __str__(self) -> str:
        return f"{self.amount:.15g} {self.unit}"


class Meaning(NamedTuple):
    """What a field's number means by the vocabulary of the format."""

    text: str
    quantity: Quantity | None
    is_uncertain: bool


NO_MEANING = Meaning("", None, False)


class Field:
    """A field of a VIF. It never changes, and may outlive the product that it comes from.

    Fields are equal if their names, values, descriptions and groups are equal, whichever file they come from. They can
    be hashed, pickled, copied, and read from several threads.
    """

    __slots__ = ("_description", "_find_meaning", "_indexes", "_is_numeric", "_meaning", "_name", "_number", "_value")

    _meaning: Meaning | None
    _find_meaning: Callable[[], Meaning] | None

    def __init__(
        self,
        name: str,
        value: str = "",
        description: str = "",
        number: int | None = None,
        is_numeric: bool = False,
        indexes: tuple[Index, ...] = (),
        meaning: Meaning | None = NO_MEANING,
        find_meaning: Callable[[], Meaning] | None = None,
    ) -> None:
        self._name = name
        self._value = value
        self._description = description
        self._number = number
        self._is_numeric = is_numeric
        self._indexes = indexes
        self._meaning = meaning
        self._find_meaning = find_meaning

    @property
    def name(self) -> str:
        """The name, without the digits of indexes: "Src_PDO_Voltage"."""
        return self._name

    @property
    def value(self) -> str:
        """The value as declared; empty for a text of an XML file, which is its description."""
        return self._value

    @property
    def description(self) -> str:
        """The text of an XML element, or the comment of a line."""
        return self._description

    @property
    def text(self) -> str:
        """The value, or, where an XML element has none, its text: what a text field says in either form of file."""
        return self._value or self._description

    @property
    def number(self) -> int | None:
        """What the value stands for, as declared: 1 for "YES", 180 for a voltage of 9 V in units of 50 mV.

        None if the field is a text, or the value is not a number of up to 64 bits.
        """
        return self._number

    @property
    def is_numeric(self) -> bool:
        """Whether the value is read as a number."""
        return self._is_numeric

    @property
    def indexes(self) -> tuple[Index, ...]:
        """The groups that the field is in, outermost first."""
        return self._indexes

    @property
    def place(self) -> dict[str, int | None]:
        """The numbers of the groups that the field is in: ``{"component": 1, "src_pdo": 2}``."""
        return dict(self._indexes)

    @property
    def quantity(self) -> Quantity | None:
        """The number with its unit, exactly as declared: ``(9.0, "V")``, ``(2.25, "A")``, ``(27.0, "W")``.

        The unit is one of "V", "A", "W", "ms", "%", "mOhm" and "°C". None if the number is not an amount of any of
        these, or if what the unit depends on, such as the kind of supply, is missing.
        """
        return self._known_meaning().quantity

    @property
    def meaning(self) -> str:
        """What the number stands for by the vocabulary of the format, whatever the file says: "Provider Only", "9 V".

        Empty if there is nothing to say.
        """
        return self._known_meaning().text

    @property
    def meaning_is_uncertain(self) -> bool:
        """Whether :attr:`meaning` and :attr:`quantity` have low confidence."""
        return self._known_meaning().is_uncertain

    def _known_meaning(self) -> Meaning:
        if self._meaning is None:
            # Threads that come at once find the same.
            find = self._find_meaning
            self._meaning = NO_MEANING if find is None else find()
        return self._meaning

    def _content(self) -> tuple[Any, ...]:
        return (self._name, self._value, self._description, self._is_numeric, self._indexes)

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, Field):
            return NotImplemented
        return self._content() == other._content()

    def __hash__(self) -> int:
        return hash(self._content())

    def __reduce__(self) -> tuple[Any, ...]:
        content = (self._name, self._value, self._description, self._number, self._is_numeric, self._indexes)
        return Field, (*content, self._known_meaning())

    def __repr__(self) -> str:
        meaning = self.meaning
        shown = f" ({meaning})" if meaning and meaning != self._value else ""
        value = self._value if self._is_numeric else repr(self.text)
        place = f", {words_for(self._indexes)}" if self._indexes else ""
        return f"<Field {self._name}: {value}{shown}{place}>"


def field_of(filled: Any, find_meaning: Callable[[], Meaning]) -> Field:
    """The field that the library has put into a structure."""
    return Field(
        py_text(filled.name),
        py_text(filled.value),
        py_text(filled.description),
        py_number(filled.number),
        bool(filled.is_numeric),
        indexes_of(filled.indexes, filled.index_count),
        None,
        find_meaning,
    )


def quantity_of(amount: int, unit: str) -> Quantity | None:
    """An amount of the library in the unit that Python gives it in; None for a plain number."""
    if unit in ("mV", "mA", "mW"):
        return Quantity(amount / 1000, unit[1:])
    return Quantity(float(amount), unit) if unit else None
