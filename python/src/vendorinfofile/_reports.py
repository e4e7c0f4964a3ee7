"""Reports."""

from __future__ import annotations

import os

from ._differences import Vif, product_of
from ._errors import call
from ._findings import Findings, check
from ._library import Structure, c_text, ffi, lib, owned
from ._product import Product

_REPORTED_FILE = Structure("vif_reported_file")


def report(
    vif: Vif,
    after: Vif | None = None,
    *,
    findings: Findings | None = None,
    after_findings: Findings | None = None,
) -> str:
    """An HTML page that shows what a VIF declares. It is complete in itself and makes no request.

    The page names files without their folders, unless two have the same name.

    :param vif: a path, which is checked, notes included, or a product of one file, which is not
    :param after: if not None, the page shows how this VIF differs from the first
    :param findings: what checking the first has found, to be shown
    :param after_findings: what checking the second has found
    :raises VifError: a file cannot be loaded, as for :func:`load`
    """
    first = _Reported(vif, findings)
    second = None if after is None else _Reported(after, after_findings)
    if second is None or first.base_name() != second.base_name():
        for reported in (first, second):
            if reported is not None:
                reported.call_it(reported.base_name())
    made = ffi.new("vif_text**")
    call(lib.vif_report, first.filled, ffi.NULL if second is None else second.filled, ffi.NULL, made)
    page = owned(made[0], lib.vif_text_free)
    text: str = ffi.unpack(lib.vif_text_data(page), lib.vif_text_size(page)).decode("utf-8")
    return text


class _Reported:
    """A file to report about, with the memory that the library's structure refers to."""

    def __init__(self, vif: Vif, findings: Findings | None) -> None:
        self._product = product_of(vif)
        self._findings = findings
        if findings is None and not isinstance(vif, Product):
            self._findings = check(vif, notes=True)
        self._name = self._product.name
        self.filled = _REPORTED_FILE()
        self.filled.file = self._product._source.handle
        if self._findings is not None:
            self.filled.findings = self._findings._handle
        self.call_it(self._name)

    def base_name(self) -> str:
        return os.path.basename(self._name)

    def call_it(self, name: str) -> None:
        self._c_name = ffi.new("char[]", c_text(name))
        self.filled.name = self._c_name
