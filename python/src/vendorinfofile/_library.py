"""The shared library, and how Python's texts and its own become each other."""

from __future__ import annotations

import os
from typing import Any, Union

from ._build import LIBRARY
from ._interface import ffi as ffi

Path = Union[str, bytes, "os.PathLike[str]", "os.PathLike[bytes]"]
"""What names a file, as for open()."""


def _library_path() -> str:
    chosen = os.environ.get("VENDORINFOFILE_LIBRARY")
    if chosen:
        return chosen
    beside = os.path.join(os.path.dirname(os.path.abspath(__file__)), LIBRARY)
    return beside if os.path.exists(beside) else os.path.basename(LIBRARY)


lib: Any = ffi.dlopen(_library_path())

NO_NUMBER: int = lib.VIF_NO_NUMBER
ANY: int = lib.VIF_ANY_NUMBER
"""In a query, any number: ``product.find("SVID", cable_svid=ANY)``."""

NO_POSITION = int(ffi.cast("size_t", -1))


def c_text(text: str) -> bytes:
    """A text for the library.

    :raises TypeError: it is not a text
    :raises ValueError: it contains a NUL, which would end it, or a lone surrogate
    """
    if not isinstance(text, str):
        raise TypeError(f"expected str, not {type(text).__name__}")
    encoded = text.encode("utf-8")
    if b"\0" in encoded:
        raise ValueError("embedded null character")
    return encoded


def c_path(path: Path) -> bytes:
    """A file name for the library: UTF-8 on Windows, elsewhere the bytes that name the file.

    :raises ValueError: it contains a NUL, which would end it
    """
    name = os.fsencode(path)
    if b"\0" in name:
        raise ValueError("embedded null byte")
    return name


def py_path(path: Path) -> str:
    """A file name as a text."""
    return os.fsdecode(path)


def py_text(text: Any) -> str:
    """A text of the library, which is UTF-8."""
    decoded: str = ffi.string(text).decode("utf-8")
    return decoded


def py_number(number: int) -> int | None:
    """A number of the library, None for "no number"."""
    return None if number == NO_NUMBER else number


def py_position(position: int) -> int | None:
    """A position in the library's lists, None for "no position"."""
    return None if position == NO_POSITION else position


class Structure:
    """A kind of structure of the library. Calling it makes one with its size set."""

    def __init__(self, kind: str) -> None:
        self._pointer = ffi.typeof(kind + "*")
        self._size = [ffi.sizeof(kind)]

    def __call__(self) -> Any:
        return ffi.new(self._pointer, self._size)


def owned(handle: Any, free: Any, size: int = 0) -> Any:
    """A handle that is freed with the last reference to it.

    :param size: about how many bytes it holds, for PyPy, which frees the sooner the more there are
    """
    return ffi.gc(handle, free, size)
