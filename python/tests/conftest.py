"""What the tests share. VENDORINFOFILE_SOURCES, VENDORINFOFILE_COMMAND and VENDORINFOFILE_GENERATED name the project's
sources, the command vif, and a folder of generated VIFs; scripts/test-python.sh sets them."""

import os
import pathlib

import pytest

import vendorinfofile as vif

SOURCES = pathlib.Path(os.environ.get("VENDORINFOFILE_SOURCES", pathlib.Path(__file__).parents[2]))
EXAMPLES = SOURCES / "examples" / "vif"

# Two ports; the first has PDOs of every kind of supply that the units depend on.
TEXT = b"""\
$VIF_Specification: "3.26"
$Vendor_Name: "Quillmere"
VID: 0x18D1
PD_Port_Type: 3 ; Provider Only
Src_PDO_Supply_Type1: 0
Src_PDO_Voltage1: 100 ; 5000 mV
Src_PDO_Max_Current1: 300
Src_PDO_Supply_Type2: 0
Src_PDO_Voltage2: 180
Src_PDO_Max_Current2: 225
Src_PDO_Supply_Type3: 3
Src_PDO_APDO_Type3: 0
Src_PDO_Min_Voltage3: 33
Src_PDO_Max_Voltage3: 110
Src_PDO_Max_Current3: 60
SVID1_SOP: 0xFF01
SVID1_Mode1_Enter_SOP: YES
SVID1_Mode2_Enter_SOP: NO
New_Field: 7
"""


@pytest.fixture
def product():
    return vif.loads(TEXT, "charger.txt")


@pytest.fixture
def dock():
    return vif.load(EXAMPLES / "usb4-dock.xml")


@pytest.fixture(scope="session")
def command():
    """The command vif."""
    path = os.environ.get("VENDORINFOFILE_COMMAND")
    if not path:
        pytest.skip("VENDORINFOFILE_COMMAND is not set")
    return path


@pytest.fixture(scope="session")
def generated():
    """Generated VIFs, text and XML, valid and broken."""
    folder = os.environ.get("VENDORINFOFILE_GENERATED")
    if not folder:
        pytest.skip("VENDORINFOFILE_GENERATED is not set")
    files = sorted(pathlib.Path(folder).iterdir())
    assert files
    return files
