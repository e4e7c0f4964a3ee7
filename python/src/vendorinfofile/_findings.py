"""Checks."""

from __future__ import annotations

from typing import Any, Iterable, Iterator, NamedTuple, Sequence, overload

from ._errors import call, require
from ._library import Path, Structure, c_path, c_text, ffi, lib, owned, py_path, py_position, py_text

_CHECK_OPTIONS = Structure("vif_check_options")
_FINDING = Structure("vif_finding")

SEVERITIES: dict[int, str] = {
    lib.VIF_SEVERITY_NOTE: "note",
    lib.VIF_SEVERITY_WARNING: "warning",
    lib.VIF_SEVERITY_ERROR: "error",
}


class Finding(NamedTuple):
    """What a check has found. As a text it is a line as ``vif check`` prints it."""

    file: str
    """The file's name, as it was given."""
    severity: str
    """"error", "warning" or "note"."""
    code: str
    """The code of the rule, such as "pdo-above-rating"; :func:`rule` says more about it."""
    message: str
    """What is wrong, as a sentence without a full stop."""
    line: int | None
    """The line, from 1; None if it is not known."""
    column: int | None
    """The column, from 1; None if it is not known, as in text files."""
    element: str
    """The field in a text file, the element's path in an XML file; empty if there is none."""
    position: int | None
    """The position, from 0, of the field that it is about in a product of this file alone; None if there is none."""

    def __str__(self) -> str:
        line = f":{self.line}" if self.line else ""
        column = f":{self.column}" if self.column else ""
        return f"{self.file}{line}{column}: {self.severity}: {self.message} [{self.code}]"


class Findings(Sequence[Finding]):
    """What checking a file has found, in the order of the file; findings without a place come last."""

    def __init__(self, handle: Any, file: str) -> None:
        self._handle = handle
        self._list = [_finding(handle, position, file) for position in range(lib.vif_findings_count(handle))]

    @property
    def errors(self) -> list[Finding]:
        """The findings of severity "error". Without any, the file is sound."""
        return [finding for finding in self._list if finding.severity == "error"]

    @overload
    def __getitem__(self, position: int) -> Finding: ...
    @overload
    def __getitem__(self, position: slice) -> list[Finding]: ...
    def __getitem__(self, position: int | slice) -> Finding | list[Finding]:
        return self._list[position]

    def __len__(self) -> int:
        return len(self._list)

    def __iter__(self) -> Iterator[Finding]:
        return iter(self._list)

    def __eq__(self, other: object) -> bool:
        return self._list == (other._list if isinstance(other, Findings) else other)

    __hash__ = None  # type: ignore[assignment]

    def __repr__(self) -> str:
        return f"<Findings: {len(self)}, {len(self.errors)} of them errors>"


def check(path: Path, *, notes: bool = False, only: Iterable[str] = (), without: Iterable[str] = ()) -> Findings:
    """Checks whether a file is well-formed, and whether what it declares is consistent.

    A file that is not a valid VIF has findings, too. Other Python threads run meanwhile.

    :param notes: whether to report notes, too
    :param only: unless empty, the codes of the findings to report
    :param without: codes of findings not to report
    :raises MissingFile, UnreadableFile, UnknownForm, SchemaError: as for :func:`load`
    """
    made = ffi.new("vif_findings**")
    with_options = _Options(notes, only, without)
    call(lib.vif_check_file, c_path(path), with_options.filled, ffi.NULL, made, path=path)
    return Findings(owned(made[0], lib.vif_findings_free), py_path(path))


def check_bytes(
    data: Any, name: Path, *, notes: bool = False, only: Iterable[str] = (), without: Iterable[str] = ()
) -> Findings:
    """The same for a file in memory; see :func:`loads`."""
    made = ffi.new("vif_findings**")
    content = ffi.from_buffer(data)
    with_options = _Options(notes, only, without)
    call(lib.vif_check_bytes, content, len(content), c_path(name), with_options.filled, ffi.NULL, made, path=name)
    return Findings(owned(made[0], lib.vif_findings_free), py_path(name))


def compare_findings(before: Findings, after: Findings) -> tuple[Findings, Findings]:
    """What was fixed, and what was added, from one file to another: findings that only the first, or only the second,
    has. Groups of one number correspond to each other."""
    fixed = ffi.new("vif_findings**")
    added = ffi.new("vif_findings**")
    call(lib.vif_compare_findings, before._handle, after._handle, ffi.NULL, fixed, added)
    return (
        Findings(owned(fixed[0], lib.vif_findings_free), before[0].file if before else ""),
        Findings(owned(added[0], lib.vif_findings_free), after[0].file if after else ""),
    )


class _Options:
    """The options of a check, with the memory that they refer to."""

    def __init__(self, notes: bool, only: Iterable[str], without: Iterable[str]) -> None:
        self._only = _codes(only)
        self._except = _codes(without)
        self.filled = _CHECK_OPTIONS()
        self.filled.notes = int(notes)
        self.filled.only, self.filled.only_count = self._only[0], len(self._only[1])
        setattr(self.filled, "except", self._except[0])
        self.filled.except_count = len(self._except[1])


def _codes(codes: Iterable[str]) -> tuple[Any, list[Any]]:
    if isinstance(codes, str):
        codes = [codes]
    texts = [ffi.new("char[]", c_text(code)) for code in codes]
    return ffi.new("char*[]", texts), texts


def _finding(handle: Any, position: int, file: str) -> Finding:
    filled = _FINDING()
    require(lib.vif_findings_get(handle, position, filled))
    return Finding(
        file,
        SEVERITIES.get(filled.severity, str(filled.severity)),
        py_text(filled.code),
        py_text(filled.message),
        filled.line or None,
        filled.column or None,
        py_text(filled.element),
        py_position(filled.position),
    )
