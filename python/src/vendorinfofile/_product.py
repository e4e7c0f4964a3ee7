"""Products and their groups."""

from __future__ import annotations

import os
import re
from typing import Any, Iterable, Iterator, overload

from ._fields import Field
from ._library import ANY, Path
from ._places import CODES, Places
from ._source import Source

_MODES = {"sop_svid": "sop_svid_mode", "cable_svid": "cable_svid_mode"}
_ROW_PLACES = [keyword for keyword in CODES if keyword not in ("vif", "app_version")]


def _plain(name: str) -> str:
    """The pattern that matches a name and nothing else."""
    if name.isidentifier():  # as nearly all are
        return name
    return re.sub(r"([\^$\\.*+?()\[\]{}|])", r"\\\1", name)


def _spellings(name: str) -> Iterator[str]:
    """Patterns for a name as XML VIFs have it, and as text VIFs have it if it is that of a text."""
    yield _plain(name)
    yield _plain("$" + name)


class Group:
    """The fields of a group of a product, such as a component or a PDO, and of the groups in it.

    A group is what the fields say: one that has no fields is empty, and false. It is a view: it holds the product's
    fields in memory, and finds its own among them when it is asked. Several threads may use it.

    Queries take a pattern and places. The pattern is a regular expression (ECMAScript) that must match a field's whole
    name, in any letter case; None matches every name. The places are keywords: ``src_pdo=2`` matches the fields of
    source PDO 2, ``src_pdo=ANY`` those of any source PDO. The keywords are vif, app_version, product, router,
    router_pcie, component, src_pdo, snk_pdo, sop_svid, sop_svid_mode, cable_svid and cable_svid_mode; a query has at
    most three, those of the group included. Every query raises :class:`InvalidPattern` for a pattern that is not a
    regular expression, but only if there are fields in the places, and ``TypeError`` or ``ValueError`` for places that
    make no sense.
    """

    def __init__(self, source: Source, places: Places) -> None:
        self._source = source
        self._places = places

    @property
    def place(self) -> dict[str, int]:
        """The numbers of the group and of those around it: ``{"component": 1, "src_pdo": 2}``."""
        return dict(self._places.numbers)

    # Groups within

    def component(self, number: int) -> Group:
        """A component, numbered from 1, across all files that were loaded."""
        return self._within("component", number)

    def src_pdo(self, number: int) -> Group:
        """A source PDO of the component, or of any component, numbered from 1."""
        return self._within("src_pdo", number)

    def snk_pdo(self, number: int) -> Group:
        """A sink PDO of the component, or of any component, numbered from 1."""
        return self._within("snk_pdo", number)

    def sop_svid(self, number: int) -> Group:
        """An SOP SVID of the component, or of any component, numbered from 1."""
        return self._within("sop_svid", number)

    def cable_svid(self, number: int) -> Group:
        """A cable SVID of the component, or of any component, numbered from 1."""
        return self._within("cable_svid", number)

    def mode(self, number: int) -> Group:
        """A mode of this SOP SVID or cable SVID, numbered from 1.

        :raises ValueError: the group is not in an SVID
        """
        for svid, mode in _MODES.items():
            if svid in self._places.numbers:
                return self._within(mode, number)
        raise ValueError("only SVIDs have modes")

    def router(self, number: int) -> Group:
        """A USB4 router, numbered from 0."""
        return self._within("router", number)

    def endpoint(self, number: int) -> Group:
        """A PCIe endpoint of this router, or of any router, numbered from 1."""
        return self._within("router_pcie", number)

    def components(self) -> list[Group]:
        """All components, by number."""
        return self._groups("component")

    def src_pdos(self) -> list[Group]:
        """The source PDOs of the component, by number. In a product of several components, ask those."""
        return self._groups("src_pdo")

    def snk_pdos(self) -> list[Group]:
        """The sink PDOs of the component, by number. In a product of several components, ask those."""
        return self._groups("snk_pdo")

    def sop_svids(self) -> list[Group]:
        """The SOP SVIDs of the component, by number. In a product of several components, ask those."""
        return self._groups("sop_svid")

    def cable_svids(self) -> list[Group]:
        """The cable SVIDs of the component, by number. In a product of several components, ask those."""
        return self._groups("cable_svid")

    def modes(self) -> list[Group]:
        """The modes of this SVID, by number; none if the group is not in an SVID."""
        for svid, mode in _MODES.items():
            if svid in self._places.numbers:
                return self._groups(mode)
        return []

    def routers(self) -> list[Group]:
        """The USB4 routers, by number."""
        return self._groups("router")

    def endpoints(self) -> list[Group]:
        """The PCIe endpoints of this router, by number. In a product of several routers, ask those."""
        return self._groups("router_pcie")

    def _within(self, keyword: str, number: int) -> Group:
        return Group(self._source, self._places.and_also({keyword: number}))

    def _groups(self, keyword: str) -> list[Group]:
        if keyword in self._places.numbers:
            return []
        numbers = {field.place[keyword] for field in self.find(None, **{keyword: ANY})}
        return [self._within(keyword, number) for number in sorted(n for n in numbers if n is not None)]

    # Queries

    def unique(self, pattern: str | None = None, **places: int) -> Field:
        """The only field that matches.

        :raises FieldNotFound: there is none
        :raises AmbiguousField: there are several
        """
        return self._source.field(self._source.find_unique(pattern, self._places.and_also(places)))

    def single(self, pattern: str | None = None, **places: int) -> Field | None:
        """The only field that matches; None if there is none.

        :raises AmbiguousField: there are several
        """
        position = self._source.find_single(pattern, self._places.and_also(places))
        return None if position is None else self._source.field(position)

    def find(self, pattern: str | None = None, **places: int) -> list[Field]:
        """The fields that match, in the order of the file."""
        positions = self._source.find(pattern, self._places.and_also(places))
        return [self._source.field(position) for position in positions]

    def count(self, pattern: str | None = None, **places: int) -> int:
        """How many fields match."""
        return self._source.count(pattern, self._places.and_also(places))

    # A mapping from names

    def __getitem__(self, name: str) -> Field:
        """The only field of that name, in any letter case.

        Text VIFs write a dollar sign before the names of text fields; here it may be left out.

        :raises FieldNotFound: there is none; it is a ``KeyError``
        :raises AmbiguousField: there are several, such as those of several PDOs
        """
        if not isinstance(name, str):
            raise TypeError(f"a field is found by its name, not by {type(name).__name__}")
        found = self.get(name)
        return self.unique(_plain(name)) if found is None else found

    @overload
    def get(self, name: str) -> Field | None: ...
    @overload
    def get(self, name: str, default: Field) -> Field: ...
    def get(self, name: str, default: Field | None = None) -> Field | None:
        """The only field of that name, or else the default.

        :raises AmbiguousField: there are several
        """
        for spelling in _spellings(name):
            found = self.single(spelling)
            if found is not None:
                return found
        return default

    def __contains__(self, item: object) -> bool:
        """Whether there is a field of that name, or a field that is equal."""
        if isinstance(item, Field):
            return any(field == item for field in self.find(_plain(item.name)))
        return isinstance(item, str) and any(self.count(spelling) for spelling in _spellings(item))

    def __iter__(self) -> Iterator[Field]:
        """The fields, in the order of the file."""
        return iter(self.find())

    def __len__(self) -> int:
        """How many fields there are."""
        return self.count()

    def rows(self) -> list[dict[str, Any]]:
        """The fields as rows of a table, for ``pandas.DataFrame(product.rows())`` or ``csv.DictWriter``.

        All rows have the same columns: name, value, description, number, amount and unit (of the quantity), meaning,
        and the number of each kind of group from product to cable_svid_mode. What a field does not have is None.
        """
        return [_row(field) for field in self]

    def __reduce__(self) -> tuple[Any, ...]:
        raise TypeError("groups and products can be neither pickled nor copied; their fields can")

    def __repr__(self) -> str:
        place = ", ".join(f"{keyword}={number}" for keyword, number in self._places.numbers.items())
        return f"<Group {place}: {len(self)} fields>"


def _row(field: Field) -> dict[str, Any]:
    quantity = field.quantity
    place = field.place
    return {
        "name": field.name,
        "value": field.value,
        "description": field.description,
        "number": field.number,
        "amount": None if quantity is None else quantity.amount,
        "unit": None if quantity is None else quantity.unit,
        "meaning": field.meaning or None,
        **{keyword: place.get(keyword) for keyword in _ROW_PLACES},
    }


class Product(Group):
    """What one or several VIFs declare, as a group of all their fields.

    Get one from :func:`load` or :func:`loads`. It never changes, and several threads may use it.
    """

    def __init__(self, source: Source) -> None:
        super().__init__(source, Places({}))

    @property
    def name(self) -> str:
        """The name of the first file; empty if none was loaded."""
        return self._source.name()

    @property
    def component_count(self) -> int:
        """How many components the files have. Each text file is one."""
        return self._source.component_count()

    @property
    def fields(self) -> list[Field]:
        """All fields, in the order of the files."""
        return [self._source.field(position) for position in range(self._source.field_count())]

    def first(self, pattern: str | None = None, **places: int) -> list[Field]:
        """The fields that match in the first component that has any; at most two places.

        The component with the highest number is never searched: in a product of one component nothing is found.
        """
        positions = self._source.find_first(pattern, self._places.and_also(places))
        return [self._source.field(position) for position in positions]

    def __repr__(self) -> str:
        return f"<Product {self.name}: {len(self)} fields, {self.component_count} components>"


def load(path: Path | Iterable[Path]) -> Product:
    """Loads a VIF, or several as one product, whose components are then numbered on from file to file.

    The extension, in any letter case, decides how a file is read: ".txt" as a text VIF, ".xml" as an XML VIF. Other
    Python threads run meanwhile.

    :raises MissingFile: there is no such file; it is a ``FileNotFoundError``
    :raises UnreadableFile: a file cannot be read, or is not a regular one; it is an ``OSError``
    :raises UnknownForm: a file has another extension
    :raises InvalidVif: an XML file is not a valid VIF, for all of its reasons
    :raises SchemaError: a schema is missing or broken
    """
    source = Source()
    for one in [path] if isinstance(path, (str, bytes, os.PathLike)) else path:
        source.load(one)
    source.end_loading()
    return Product(source)


def loads(data: Any, name: Path) -> Product:
    """Loads a VIF from memory: bytes, or anything with a buffer of them, such as ``bytearray`` or ``mmap``.

    :param name: stands for the file's name in messages, and its extension for the form; no such file is looked at
    :raises UnknownForm, InvalidVif, SchemaError: as for :func:`load`
    :raises TypeError: data is not bytes
    """
    source = Source()
    source.load_bytes(data, name)
    source.end_loading()
    return Product(source)
