"""The schemas of XML VIFs."""

from __future__ import annotations

from ._errors import call
from ._library import Path, c_path, ffi, lib


def set_schema_directory(path: Path | None) -> None:
    """Sets the directory to search first for schemas from now on, in the whole process; None for no such directory."""
    call(lib.vif_set_schema_directory, ffi.NULL if path is None else c_path(path))
