"""Loading."""

import errno
import gc
import mmap
import os
import pathlib
import pickle
import subprocess
import sys

import pytest

import vendorinfofile as vif
from conftest import EXAMPLES, SOURCES, TEXT

DOCK = EXAMPLES / "usb4-dock.xml"


@pytest.mark.parametrize("convert", [pathlib.Path, str, os.fsencode])
def test_paths_of_all_kinds(convert):
    assert len(vif.load(convert(DOCK))) == 378
    assert vif.check(convert(DOCK)) == []


def test_several_files_are_one_product():
    tablet, charger = EXAMPLES / "dual-role-tablet.txt", EXAMPLES / "gan-charger-65w.txt"
    product = vif.load([tablet, charger])
    assert product.component_count == 2
    assert product.name == str(tablet)
    assert len(product) == len(vif.load(tablet)) + len(vif.load(charger))
    assert product.component(2).src_pdo(2)["Src_PDO_Voltage"].quantity == (9.0, "V")


def test_no_file_is_an_empty_product():
    product = vif.load([])
    assert (len(product), product.name, product.component_count) == (0, "", 0)


@pytest.mark.parametrize("convert", [bytes, bytearray, memoryview])
def test_anything_with_bytes(convert):
    product = vif.loads(convert(TEXT), "a.txt")
    assert product.name == "a.txt"
    assert len(product) == 19


def test_a_mapped_file():
    with open(DOCK, "rb") as file, mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ) as data:
        assert vif.loads(data, "dock.xml").fields == vif.load(DOCK).fields


def test_text_is_not_bytes():
    with pytest.raises(TypeError):
        vif.loads("VID: 1", "a.txt")


def test_no_bytes_at_all():
    assert len(vif.loads(b"", "a.txt")) == 0


def test_a_missing_file_is_a_file_not_found_error(tmp_path):
    missing = tmp_path / "missing.xml"
    for function in (vif.load, vif.check, vif.report):
        with pytest.raises(FileNotFoundError) as caught:
            function(missing)
        assert isinstance(caught.value, vif.VifError)
        assert caught.value.errno == errno.ENOENT
        assert caught.value.filename == str(missing)
        assert caught.value.reasons == ()
        assert str(pickle.loads(pickle.dumps(caught.value))) == str(caught.value)


def test_a_directory_is_an_os_error(tmp_path):
    folder = tmp_path / "folder.txt"
    folder.mkdir()
    with pytest.raises(OSError) as caught:
        vif.load(folder)
    assert isinstance(caught.value, vif.UnreadableFile)
    assert str(folder) in str(caught.value)


def test_another_extension_is_refused(tmp_path):
    path = tmp_path / "a.pdf"
    path.write_bytes(TEXT)
    with pytest.raises(vif.UnknownForm, match="a.pdf: .*text .*or XML"):
        vif.load(path)
    with pytest.raises(vif.UnknownForm):
        vif.loads(TEXT, "a.pdf")
    with pytest.raises(vif.UnknownForm):
        vif.check(path)


def test_a_file_that_is_not_valid_has_reasons():
    xml = b"<VIF xmlns='http://usb.org/VendorInfoFile.xsd'>\n  <Product><USB4_Dock value='2'/></Product>\n</VIF>"
    with pytest.raises(vif.InvalidVif) as caught:
        vif.loads(xml, "a.xml")
    reasons = caught.value.reasons
    assert reasons
    assert (reasons[0].line, reasons[0].element) == (2, "USB4_Dock")
    assert reasons[0].text in str(caught.value)
    assert str(reasons[0]).startswith("line 2")
    again = pickle.loads(pickle.dumps(caught.value))
    assert (str(again), again.reasons) == (str(caught.value), reasons)


def test_a_later_file_that_fails_raises(tmp_path):
    with pytest.raises(FileNotFoundError):
        vif.load([DOCK, tmp_path / "missing.txt"])


def test_a_nul_in_a_path_is_refused():
    for function in (vif.load, vif.check):
        with pytest.raises(ValueError, match="null"):
            function("a\0.txt")


@pytest.mark.skipif(sys.platform == "win32", reason="names of files are Unicode there")
def test_a_name_that_is_not_utf8(tmp_path):
    path = os.fsencode(tmp_path) + b"/\xff.txt"
    with open(path, "wb") as file:
        file.write(TEXT)
    assert len(vif.load(path)) == len(vif.load(os.fsdecode(path))) == 19
    assert vif.check(os.fsdecode(path)) == vif.check(path)


def test_schemas_are_taken_from_the_directory_set(tmp_path):
    try:
        for name in ("VendorInfoFile.xsd", "VendorInfoFileOptionalContent.xsd"):
            (tmp_path / name).write_text("not a schema")
        vif.set_schema_directory(tmp_path)
        with pytest.raises(vif.SchemaError):
            vif.load(DOCK)
    finally:
        vif.set_schema_directory(None)
    assert len(vif.load(DOCK)) == 378


def test_the_version_is_that_of_the_project():
    assert f"project(VendorInfoFile VERSION {vif.__version__} " in (SOURCES / "CMakeLists.txt").read_text()


@pytest.mark.skipif("asan" in os.environ.get("LD_PRELOAD", ""), reason="AddressSanitizer keeps what is freed")
def test_what_is_no_longer_referred_to_is_freed():
    resource = pytest.importorskip("resource")

    def peak_after(rounds):
        for _ in range(rounds):
            product = vif.load(DOCK)
            vif.check_bytes(TEXT, "a.txt")
            vif.diff(product, product)
            with pytest.raises(vif.FieldNotFound):
                product["Nothing"]
            product = None
            gc.collect()
        return resource.getrusage(resource.RUSAGE_SELF).ru_maxrss

    before = peak_after(20)
    # The fields of one product take more than 100 kB.
    assert peak_after(200) - before < 10000


def test_nothing_is_left_for_the_end_of_the_process_to_trip_over():
    # Handles that are still alive when the interpreter takes modules apart.
    program = "import vendorinfofile as v, sys; sys.keep = v.loads(b'VID: 1', 'a.txt'); keep = v.check(sys.argv[1])"
    done = subprocess.run([sys.executable, "-c", program, str(DOCK)], stderr=subprocess.PIPE)
    assert (done.returncode, done.stderr) == (0, b"")
