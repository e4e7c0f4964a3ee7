"""Queries."""

import pytest

import vendorinfofile as vif
from vendorinfofile import ANY


def names(fields):
    return [field.name for field in fields]


def test_unique_finds_the_only_field(product):
    assert product.unique("Src_PDO_Voltage", component=1, src_pdo=2).number == 180


def test_unique_refuses_none_and_several(product):
    with pytest.raises(vif.FieldNotFound):
        product.unique("Src_PDO_Voltage", src_pdo=3)
    with pytest.raises(vif.AmbiguousField):
        product.unique("Src_PDO_Voltage")


def test_single_finds_one_or_none(product):
    assert product.single("VID").value == "0x18D1"
    assert product.single("PID") is None
    with pytest.raises(vif.AmbiguousField):
        product.single("Src_PDO_.*")


def test_find_takes_a_regular_expression_for_the_whole_name(product):
    assert names(product.find("src_pdo_m(in|ax)_voltage")) == ["Src_PDO_Min_Voltage", "Src_PDO_Max_Voltage"]
    assert product.find("Src_PDO") == []


def test_find_without_a_pattern_finds_all(product):
    assert product.find() == product.fields == list(product)
    assert len(product.find(src_pdo=1)) == 3


def test_any_stands_for_any_number(product):
    assert len(product.find("Src_PDO_Supply_Type", src_pdo=ANY)) == 3
    assert all("src_pdo" in field.place for field in product.find(None, src_pdo=ANY))


def test_count_counts(product):
    assert product.count("Src_PDO_.*") == 11
    assert product.count("Src_PDO_.*", src_pdo=2) == 3
    assert product.count() == len(product) == 19


def test_a_group_limits_a_query(product):
    assert names(product.src_pdo(3).find(".*Current")) == ["Src_PDO_Max_Current"]


def test_first_looks_in_the_first_component_that_has_any(dock):
    found = dock.first("PD_Port_Type")
    assert [field.place["component"] for field in found] == [1]
    assert vif.loads(b"VID: 1\n", "a.txt").first("VID") == []


@pytest.mark.parametrize("pattern", ["(", "[", "a{2,1}", "*"])
def test_what_is_not_a_regular_expression_is_refused(product, pattern):
    for query in (product.unique, product.single, product.find, product.count):
        with pytest.raises(vif.InvalidPattern):
            query(pattern)
    assert product.find(pattern, component=2) == []  # there is nothing to match


def test_an_unknown_kind_of_group_is_refused(product):
    with pytest.raises(TypeError, match="no kind of group 'pdo'; there are vif, .*src_pdo"):
        product.find(pdo=2)


def test_a_number_must_be_an_integer_in_range(product):
    with pytest.raises(TypeError, match="src_pdo must be an integer, not str"):
        product.find(src_pdo="2")
    for number in (-1, 2**64):
        with pytest.raises(ValueError, match="out of range"):
            product.src_pdo(number)


def test_there_are_at_most_three_places(product):
    with pytest.raises(ValueError, match="at most 3 places"):
        product.find(component=1, src_pdo=1, snk_pdo=1, router=0)


def test_a_pattern_must_be_a_text(product):
    with pytest.raises(TypeError, match="expected str, not int"):
        product.find(3)
    with pytest.raises(TypeError, match="expected str, not bytes"):
        vif.explain(b"VID")
    with pytest.raises(ValueError, match="surrogates"):
        product.find("\ud800")


def test_a_nul_does_not_end_a_text_early(product):
    with pytest.raises(ValueError, match="null character"):
        product.find("VID\0x")
    with pytest.raises(ValueError, match="null character"):
        product["VID\0x"]
