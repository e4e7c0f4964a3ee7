"""Products and groups."""

import copy
import csv
import gc
import io
import pickle

import pytest

import vendorinfofile as vif
from conftest import TEXT


def test_a_group_has_the_fields_in_it_at_any_depth(product):
    assert [field.name for field in product.component(1).src_pdo(2)] == [
        "Src_PDO_Supply_Type",
        "Src_PDO_Voltage",
        "Src_PDO_Max_Current",
    ]
    assert len(product.component(1).sop_svid(1)) == 3


def test_groups_lie_in_one_another(dock):
    modes = dock.component(1).sop_svid(1).mode(1)
    assert modes.place == {"component": 1, "sop_svid": 1, "sop_svid_mode": 1}
    assert all(field.place == modes.place for field in modes)
    endpoint = dock.router(0).endpoint(1)
    assert endpoint and all(field.place["router_pcie"] == 1 for field in endpoint)


def test_a_cable_has_modes_too():
    product = vif.loads(b"SVID1: 0xFF01\nSVID1_Mode1_Enter: YES\n", "cable.txt")
    assert product.cable_svid(1).mode(1)["SVID_Mode_Enter"].number == 1


def test_only_svids_have_modes(product):
    with pytest.raises(ValueError, match="only SVIDs have modes"):
        product.mode(1)
    assert product.modes() == []


def test_groups_can_be_listed(product, dock):
    assert [group.place for group in product.component(1).src_pdos()] == [
        {"component": 1, "src_pdo": number} for number in (1, 2, 3)
    ]
    assert product.snk_pdos() == product.cable_svids() == product.routers() == []
    assert [mode.place["sop_svid_mode"] for mode in product.sop_svid(1).modes()] == [1, 2]
    assert len(dock.components()) == dock.component_count == 3
    assert [router.place for router in dock.routers()] == [{"router": 0}, {"router": 1}]
    assert len(dock.router(0).endpoints()) >= 1


def test_a_group_without_fields_is_empty_and_false(product):
    assert not product.component(9)
    assert list(product.component(9)) == []


def test_a_group_is_not_in_two_of_a_kind(product):
    with pytest.raises(ValueError, match="in component=1 already"):
        product.component(1).component(2)
    with pytest.raises(ValueError, match="in component=1 already"):
        product.component(1).find(component=2)


def test_a_group_keeps_the_fields_alive():
    group = vif.loads(TEXT, "a.txt").component(1).src_pdo(2)
    gc.collect()
    assert group["Src_PDO_Voltage"].number == 180


def test_a_name_finds_its_field_in_any_letter_case(product):
    assert product["vid"].name == "VID"


def test_a_text_is_found_with_and_without_dollar_sign(product):
    assert product["Vendor_Name"] == product["$Vendor_Name"]
    assert "Vendor_Name" in product and "$Vendor_Name" in product


def test_a_name_is_not_a_pattern(product):
    with pytest.raises(vif.FieldNotFound):
        product["VI."]
    assert product.get("V*") is None
    assert ".*" not in product


def test_a_missing_name_is_a_key_error(product):
    with pytest.raises(KeyError) as caught:
        product["Nothing"]
    assert str(caught.value) == 'No field in "charger.txt" matched with "Nothing".'


def test_a_name_of_several_fields_is_ambiguous(product):
    with pytest.raises(vif.AmbiguousField, match='^2 fields in "charger.txt"'):
        product["Src_PDO_Voltage"]


def test_get_has_a_default(product):
    assert product.get("VID") == product["VID"]
    assert product.get("Nothing") is None
    assert product.get("Nothing", product["VID"]) == product["VID"]


def test_a_group_contains_names_and_fields(product):
    assert "VID" in product and "Nothing" not in product
    assert product["VID"] in product
    assert product["VID"] not in product.src_pdo(1)
    assert 3 not in product


def test_a_group_is_not_indexed_by_numbers(product):
    with pytest.raises(TypeError, match="found by its name, not by int"):
        product[0]


def test_rows_have_the_same_columns(product):
    rows = product.rows()
    assert len(rows) == len(product)
    assert len({tuple(row) for row in rows}) == 1
    row = next(row for row in rows if row["name"] == "Src_PDO_Voltage" and row["src_pdo"] == 2)
    assert (row["number"], row["amount"], row["unit"], row["meaning"]) == (180, 9.0, "V", "9 V")
    assert (row["component"], row["snk_pdo"], row["description"]) == (1, None, "")


def test_rows_can_be_written_as_csv(product):
    rows = product.src_pdo(2).rows()
    out = io.StringIO()
    writer = csv.DictWriter(out, rows[0])
    writer.writeheader()
    writer.writerows(rows)
    assert out.getvalue().count("\n") == 4


def test_only_fields_can_be_pickled(product):
    for group in (product, product.component(1)):
        with pytest.raises(TypeError, match="their fields can"):
            pickle.dumps(group)
        with pytest.raises(TypeError, match="their fields can"):
            copy.copy(group)
    assert pickle.loads(pickle.dumps(product.fields)) == product.fields


def test_repr_says_what_it_is(product):
    assert repr(product) == "<Product charger.txt: 19 fields, 1 components>"
    assert repr(product.component(1).src_pdo(2)) == "<Group component=1, src_pdo=2: 3 fields>"
