"""Reads Vendor Info Files (VIFs) of USB Type-C, USB Power Delivery and USB4 products, text and XML.

    import vendorinfofile as vif

    product = vif.load("dock.xml")
    pdo = product.component(1).src_pdo(2)
    pdo["Src_PDO_Voltage"].number        # 180, as declared
    pdo["Src_PDO_Voltage"].quantity      # (9.0, "V")

    for finding in vif.check("dock.xml"):
        print(finding)

Names of fields are the format's. Whatever a function returns stays valid for as long as it is referred to. Functions
and objects may be used by several threads at once; while the library works, other Python threads run.
"""

from __future__ import annotations

from ._build import VERSION as __version__
from ._differences import DeclaredField, Difference, Differences, GroupChange, PortComparison, diff, diff_ports
from ._errors import (
    AmbiguousField,
    FieldNotFound,
    InvalidPattern,
    InvalidVif,
    MissingFile,
    Reason,
    SchemaError,
    UnknownForm,
    UnreadableFile,
    VifError,
)
from ._explanations import ExplainedSpelling, ExplainedValue, Explanation, Rule, explain, rule, rules
from ._fields import Field, Quantity
from ._findings import Finding, Findings, check, check_bytes, compare_findings
from ._library import ANY
from ._places import Index
from ._product import Group, Product, load, loads
from ._reports import report
from ._schemas import set_schema_directory

__all__ = [
    "ANY",
    "AmbiguousField",
    "DeclaredField",
    "Difference",
    "Differences",
    "ExplainedSpelling",
    "ExplainedValue",
    "Explanation",
    "Field",
    "FieldNotFound",
    "Finding",
    "Findings",
    "Group",
    "GroupChange",
    "Index",
    "InvalidPattern",
    "InvalidVif",
    "MissingFile",
    "PortComparison",
    "Product",
    "Quantity",
    "Reason",
    "Rule",
    "SchemaError",
    "UnknownForm",
    "UnreadableFile",
    "VifError",
    "__version__",
    "check",
    "check_bytes",
    "compare_findings",
    "diff",
    "diff_ports",
    "explain",
    "load",
    "loads",
    "report",
    "rule",
    "rules",
    "set_schema_directory",
]
