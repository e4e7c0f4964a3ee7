"""Loaded files, as the library holds them."""

from __future__ import annotations

import functools
from typing import Any

from ._errors import call, require
from ._fields import Field, Meaning, Quantity, field_of, quantity_of
from ._library import NO_POSITION, Path, Structure, c_path, c_text, ffi, lib, owned, py_text
from ._places import Places

_BYTES_PER_FIELD = 300  # with its texts, roughly

_FIELD = Structure("vif_field")
_SIZE_OUTPUT = ffi.typeof("size_t*")
_QUANTITY = Structure("vif_quantity")


class Source:
    """The fields of the files that were loaded into it. After loading it never changes, so threads may share it."""

    def __init__(self) -> None:
        handle = ffi.new("vif_file**")
        call(lib.vif_file_make, handle)
        self._raw = handle[0]
        self.handle = owned(self._raw, lib.vif_file_free)

    def end_loading(self) -> None:
        """Tells the interpreter how much memory the fields take."""
        loading = self.handle
        self.handle = owned(self._raw, lib.vif_file_free, self.field_count() * _BYTES_PER_FIELD)
        ffi.gc(loading, None)  # from now on it does not own the handle

    def load(self, path: Path) -> None:
        call(lib.vif_file_load, self.handle, c_path(path), ffi.NULL, path=path)

    def load_bytes(self, data: Any, name: Path) -> None:
        content = ffi.from_buffer(data)
        call(lib.vif_file_load_bytes, self.handle, content, len(content), c_path(name), ffi.NULL, path=name)

    def name(self) -> str:
        return py_text(lib.vif_file_name(self.handle))

    def component_count(self) -> int:
        return int(lib.vif_file_component_count(self.handle))

    def field_count(self) -> int:
        return int(lib.vif_file_field_count(self.handle))

    def field(self, position: int) -> Field:
        filled = _FIELD()
        require(lib.vif_file_field(self.handle, position, filled))
        return field_of(filled, functools.partial(self.meaning, position))

    def meaning(self, position: int) -> Meaning:
        made = ffi.new("vif_text**")
        uncertain = ffi.new("int32_t*")
        call(lib.vif_file_meaning, self.handle, position, made, uncertain)
        text = owned(made[0], lib.vif_text_free)
        return Meaning(py_text(lib.vif_text_data(text)), self._quantity(position), bool(uncertain[0]))

    def _quantity(self, position: int) -> Quantity | None:
        filled = _QUANTITY()
        status = lib.vif_file_quantity(self.handle, position, filled, ffi.NULL)
        if status == lib.VIF_ERROR_NOT_FOUND:
            return None
        require(status)
        return quantity_of(filled.amount, py_text(filled.unit))

    def count(self, pattern: str | None, places: Places) -> int:
        count = ffi.new(_SIZE_OUTPUT)
        call(lib.vif_file_count, self.handle, _c_pattern(pattern), places.slots, places.count, count)
        return int(count[0])

    def find(self, pattern: str | None, places: Places) -> list[int]:
        return self._positions(lib.vif_file_find, pattern, places)

    def find_first(self, pattern: str | None, places: Places) -> list[int]:
        return self._positions(lib.vif_file_find_first, pattern, places)

    def find_unique(self, pattern: str | None, places: Places) -> int:
        position = ffi.new(_SIZE_OUTPUT)
        call(lib.vif_file_find_unique, self.handle, _c_pattern(pattern), places.slots, places.count, position)
        return int(position[0])

    def find_single(self, pattern: str | None, places: Places) -> int | None:
        position = ffi.new(_SIZE_OUTPUT)
        call(lib.vif_file_find_single, self.handle, _c_pattern(pattern), places.slots, places.count, position)
        return None if position[0] == NO_POSITION else int(position[0])

    def _positions(self, function: Any, pattern: str | None, places: Places) -> list[int]:
        made = ffi.new("vif_positions**")
        call(function, self.handle, _c_pattern(pattern), places.slots, places.count, made)
        positions = owned(made[0], lib.vif_positions_free)
        count = lib.vif_positions_count(positions)
        return list(ffi.unpack(lib.vif_positions_data(positions), count)) if count else []


def _c_pattern(pattern: str | None) -> Any:
    return ffi.NULL if pattern is None else c_text(pattern)
