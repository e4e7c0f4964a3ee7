"""Fields."""

import copy
import gc
import pickle

import pytest

import vendorinfofile as vif
from conftest import TEXT


def test_a_field_has_everything_that_it_was_declared_with(product):
    field = product.unique("Src_PDO_Voltage", src_pdo=1)
    assert (field.name, field.value, field.description) == ("Src_PDO_Voltage", "100", "5000 mV")
    assert (field.number, field.is_numeric) == (100, True)
    assert field.indexes == (("component", 1), ("src_pdo", 1))
    assert field.place == {"component": 1, "src_pdo": 1}


def test_a_text_has_no_number(product):
    field = product["Vendor_Name"]
    assert (field.number, field.is_numeric, field.text) == (None, False, "Quillmere")


def test_the_text_of_an_xml_element_is_its_description(dock):
    field = dock["Vendor_Name"]
    assert field.value == ""
    assert field.text == field.description != ""


def test_a_number_of_more_than_64_bits_is_not_given():
    (field,) = vif.loads(b"PID: 99999999999999999999\n", "a.txt")
    assert (field.number, field.is_numeric) == (None, True)


def test_a_group_may_have_no_number():
    (field,) = vif.loads(b"Src_PDO_Voltage: 1\n", "a.txt")
    assert field.indexes[1] == ("src_pdo", None)
    assert field.place == {"component": 1, "src_pdo": None}
    assert "src_pdo=?" in repr(field)


@pytest.mark.parametrize(
    "name, pdo, quantity",
    [
        ("Src_PDO_Voltage", 2, (9.0, "V")),
        ("Src_PDO_Max_Current", 2, (2.25, "A")),
        ("Src_PDO_Min_Voltage", 3, (3.3, "V")),
        ("Src_PDO_Max_Current", 3, (3.0, "A")),
    ],
)
def test_a_quantity_is_the_amount_with_its_unit(product, name, pdo, quantity):
    assert product.unique(name, src_pdo=pdo).quantity == quantity


def test_quantities_of_watts_milliseconds_and_percent():
    text = b"PD_Power_As_Source: 27000\nSnk_PDO_Supply_Type1: 1\nSnk_PDO_Op_Power1: 40\n"
    product = vif.loads(text, "a.txt")
    assert product["PD_Power_As_Source"].quantity == (27.0, "W")
    assert product["Snk_PDO_Op_Power"].quantity == (10.0, "W")


def test_codes_have_a_meaning_but_no_quantity(product):
    assert product["PD_Port_Type"].quantity is None
    assert product["PD_Port_Type"].meaning == "Provider Only"
    assert product["New_Field"].meaning == ""
    assert product["VID"].quantity is None


def test_a_unit_that_depends_on_a_missing_supply_type_is_not_guessed():
    product = vif.loads(b"Src_PDO_Max_Current1: 60\n", "a.txt")
    assert product["Src_PDO_Max_Current"].quantity is None


def test_equal_fields_of_two_files_are_equal(product):
    again = vif.loads(TEXT, "other.txt")
    assert product.fields == again.fields
    assert hash(product["PD_Port_Type"]) == hash(again["PD_Port_Type"])
    assert {*product.fields} == {*again.fields}


@pytest.mark.parametrize("line", [b"VID: 2", b"PID: 1", b"VID: 1 ; x"])
def test_fields_that_differ_are_not_equal(line):
    (field,) = vif.loads(b"VID: 1\n", "a.txt")
    (other,) = vif.loads(line + b"\n", "a.txt")
    assert field != other


def test_fields_in_other_groups_are_not_equal(product):
    one, two = product.src_pdo(1)["Src_PDO_Supply_Type"], product.src_pdo(2)["Src_PDO_Supply_Type"]
    assert (one.name, one.value) == (two.name, two.value)
    assert one != two


def test_a_field_is_not_equal_to_something_else(product):
    assert product["VID"] != "VID"


@pytest.mark.parametrize("protocol", range(pickle.HIGHEST_PROTOCOL + 1))
def test_a_pickled_field_keeps_everything(product, protocol):
    field = product.unique("Src_PDO_Voltage", src_pdo=2)
    again = pickle.loads(pickle.dumps(field, protocol))
    assert again == field
    assert (again.number, again.quantity, again.meaning) == (180, (9.0, "V"), "9 V")
    assert repr(again) == repr(field)


def test_a_field_can_be_copied(product):
    field = product["VID"]
    assert copy.copy(field) == copy.deepcopy(field) == field


def test_a_field_outlives_its_product():
    product = vif.loads(TEXT, "a.txt")
    field = product.unique("Src_PDO_Voltage", src_pdo=2)
    del product
    gc.collect()
    assert (field.name, field.value, field.quantity) == ("Src_PDO_Voltage", "180", (9.0, "V"))


def test_a_field_cannot_be_changed(product):
    field = product["VID"]
    with pytest.raises(AttributeError):
        field.value = "2"
    with pytest.raises(AttributeError):
        field.other = "2"


def test_repr_shows_value_meaning_and_place(product):
    field = product.unique("Src_PDO_Voltage", src_pdo=2)
    assert repr(field) == "<Field Src_PDO_Voltage: 180 (9 V), component=1, src_pdo=2>"
    assert repr(product["Vendor_Name"]) == "<Field $Vendor_Name: 'Quillmere'>"
    assert str(field.quantity) == "9 V"


def test_bytes_that_are_not_utf8_become_replacement_characters():
    (field,) = vif.loads(b'$Vendor_Name: "\xff"\n', "a.txt")
    assert field.value == "\ufffd"
