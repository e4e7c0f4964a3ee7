"""What the package raises."""

from __future__ import annotations

import errno
import os
from typing import Any, NamedTuple

from ._library import Path, Structure, ffi, lib, py_path, py_text

_REASON = Structure("vif_reason")
_ERROR_OUTPUT = ffi.typeof("vif_error**")


class Reason(NamedTuple):
    """A reason why an XML file is not a valid VIF."""

    line: int | None
    """The line, from 1; None if the reason has no place."""
    column: int | None
    """The character in the line, from 1; None if it is not known."""
    element: str
    """The name of the element concerned; empty if there is none."""
    text: str
    """A sentence for people, on one line."""

    def __str__(self) -> str:
        place = ", ".join(
            f"{kind} {number}" for kind, number in (("line", self.line), ("column", self.column)) if number
        )
        return f"{place}: {self.text}" if place else self.text


class VifError(Exception):
    """The base of all exceptions of this package.

    Beside them it raises ``MemoryError``, and ``TypeError`` and ``ValueError`` for arguments that make no sense.
    """

    reasons: tuple[Reason, ...] = ()
    """Why an XML file is not valid, in the order of the file; empty in all exceptions but :class:`InvalidVif`."""


class MissingFile(FileNotFoundError, VifError):
    """There is no such file. It is a ``FileNotFoundError`` with ``errno`` and ``filename``."""


class UnreadableFile(OSError, VifError):
    """A file cannot be examined or read, or is not a regular one."""


class UnknownForm(VifError, ValueError):
    """The name of a file ends neither in .txt nor in .xml."""


class InvalidVif(VifError, ValueError):
    """An XML file is not a valid VIF; :attr:`reasons` has every reason with its line, column and element."""

    def __init__(self, message: str, reasons: tuple[Reason, ...] = ()) -> None:
        super().__init__(message, reasons)
        self.message = message
        self.reasons = reasons

    def __str__(self) -> str:
        if not self.reasons:
            return self.message
        more = f" (and {len(self.reasons) - 1} more)" if len(self.reasons) > 1 else ""
        return f"{self.message} {self.reasons[0]}{more}"


class SchemaError(VifError):
    """A schema is missing or broken, or admits what the library cannot read."""


class InvalidPattern(VifError, ValueError):
    """A pattern is not a regular expression, or is too complex."""


class FieldNotFound(VifError, KeyError):
    """There is no such field, or, for :func:`rule`, no such rule. It is a ``KeyError``."""

    def __str__(self) -> str:  # KeyError would show the message in quotes
        return str(self.args[0]) if self.args else ""


class AmbiguousField(VifError, LookupError):
    """Several fields match where one is asked for."""


def call(function: Any, *arguments: Any, path: Path | None = None) -> None:
    """Calls a function of the library whose last argument receives the error.

    :param path: of the file that the call is about
    :raises VifError: or what else stands for the status
    """
    error = ffi.new(_ERROR_OUTPUT)
    status = function(*arguments, error)
    if status != lib.VIF_OK:
        _fail(status, ffi.gc(error[0], lib.vif_error_free), path)


def require(status: int) -> None:
    """:raises VifError: if the status of a call without an error output is not VIF_OK"""
    if status != lib.VIF_OK:
        _fail(status, ffi.NULL, None)


def _fail(status: int, error: Any, path: Path | None) -> None:
    message = py_text(lib.vif_error_message(error)) or py_text(lib.vif_status_text(status))
    if status == lib.VIF_ERROR_MEMORY:
        raise MemoryError(message)
    if status == lib.VIF_ERROR_ARGUMENT:
        raise ValueError(message)
    if status == lib.VIF_ERROR_NO_FILE and path is not None:
        raise MissingFile(errno.ENOENT, os.strerror(errno.ENOENT), os.fspath(path))
    if path is not None and py_path(path) not in message:
        message = f"{py_path(path)}: {message}"
    if status == lib.VIF_ERROR_INVALID:
        raise InvalidVif(message, _reasons_of(error))
    raise _KINDS.get(status, VifError)(message)


def _reasons_of(error: Any) -> tuple[Reason, ...]:
    reasons = []
    reason = _REASON()
    for position in range(lib.vif_error_reason_count(error)):
        require(lib.vif_error_reason(error, position, reason))
        reasons.append(
            Reason(reason.line or None, reason.column or None, py_text(reason.element), py_text(reason.text))
        )
    return tuple(reasons)


_KINDS: dict[int, type[VifError]] = {
    lib.VIF_ERROR_FILE: UnreadableFile,
    lib.VIF_ERROR_FORM: UnknownForm,
    lib.VIF_ERROR_SCHEMA: SchemaError,
    lib.VIF_ERROR_PATTERN: InvalidPattern,
    lib.VIF_ERROR_NOT_FOUND: FieldNotFound,
    lib.VIF_ERROR_AMBIGUOUS: AmbiguousField,
}
