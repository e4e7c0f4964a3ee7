"""Checks, comparisons, explanations and reports."""

import gc
import json
import shutil
import subprocess

import pytest

import vendorinfofile as vif
from conftest import EXAMPLES

CHARGER = EXAMPLES / "gan-charger-65w.txt"
LAPTOP = EXAMPLES / "two-port-laptop.xml"

BROKEN = b"""\
PID: 1
PID: 2
no declaration
Src_PDO_Voltage1: <select>
"""


def test_a_sound_file_has_no_findings():
    assert vif.check(CHARGER) == []
    assert not vif.check(CHARGER)


def test_findings_say_what_where_and_how_bad():
    findings = vif.check_bytes(BROKEN, "a.txt")
    duplicate = next(finding for finding in findings if finding.line == 2)
    assert duplicate.severity in ("error", "warning")
    assert duplicate.position == 1
    assert str(duplicate) == f"a.txt:2: {duplicate.severity}: {duplicate.message} [{duplicate.code}]"
    assert vif.rule(duplicate.code).severity == duplicate.severity
    assert findings[0] == list(findings)[0]
    assert findings[1:] == list(findings)[1:]
    assert all(finding.severity == "error" for finding in findings.errors)


def test_findings_can_be_chosen():
    findings = vif.check_bytes(BROKEN, "a.txt")
    codes = {finding.code for finding in findings}
    assert len(codes) > 1
    chosen = min(codes)
    assert {finding.code for finding in vif.check_bytes(BROKEN, "a.txt", only=[chosen])} == {chosen}
    assert {finding.code for finding in vif.check_bytes(BROKEN, "a.txt", only=chosen)} == {chosen}
    assert {finding.code for finding in vif.check_bytes(BROKEN, "a.txt", without=[chosen])} == codes - {chosen}


def test_notes_are_reported_on_request():
    text = b"$VIF_Specification: \"3.26\"\nRp_Value: 1\n"
    assert "note" not in {finding.severity for finding in vif.check_bytes(text, "a.txt")}
    assert "note" in {finding.severity for finding in vif.check_bytes(text, "a.txt", notes=True)}


def test_a_file_that_is_not_valid_has_findings():
    findings = vif.check_bytes(b"<a>", "a.xml")
    assert findings.errors
    assert findings.errors[0].line == 1


def test_findings_are_those_of_the_command(command, tmp_path):
    path = tmp_path / "a.txt"
    path.write_bytes(BROKEN)
    done = subprocess.run([command, "check", "--notes", str(path)], stdout=subprocess.PIPE, encoding="utf-8")
    lines = [line for line in done.stdout.splitlines() if line.startswith(str(path))]
    assert [str(finding) for finding in vif.check(path, notes=True)] == lines != []


def test_findings_can_be_compared():
    before = vif.check_bytes(BROKEN, "a.txt")
    after = vif.check_bytes(BROKEN.replace(b"no declaration\n", b""), "b.txt")
    fixed, added = vif.compare_findings(before, after)
    assert [finding.line for finding in fixed] == [3]
    assert added == []


def test_files_of_both_forms_may_declare_the_same():
    differences = vif.diff(CHARGER, EXAMPLES / "gan-charger-65w.xml")
    assert not differences
    assert (len(differences), differences.groups) == (0, [])


def test_differences_say_what_was_before_and_after():
    before = vif.loads(b"Src_PDO_Supply_Type1: 0\nSrc_PDO_Voltage1: 100\nVID: 1\n", "a.txt")
    after = vif.loads(b"Src_PDO_Supply_Type1: 0\nSrc_PDO_Voltage1: 180\nPID: 1\n", "b.txt")
    differences = vif.diff(before, after)
    texts = [str(difference) for difference in differences]
    assert "component=1, src_pdo=1: Src_PDO_Voltage: 5 V -> 9 V" in texts
    kinds = {difference.name: difference.kind for difference in differences}
    assert kinds == {"Src_PDO_Voltage": "changed", "VID": "removed", "PID": "added"}
    voltage = next(difference for difference in differences if difference.name == "Src_PDO_Voltage")
    assert (voltage.before.number, voltage.after.number, voltage.before.meaning) == (100, 180, "5 V")
    assert next(d for d in differences if d.name == "VID").after is None


def test_differences_have_groups():
    pdo = b"Src_PDO_Supply_Type%d: 0\nSrc_PDO_Voltage%d: %d\n"
    one, two = pdo % (1, 1, 100), pdo % (2, 2, 180)
    (change,) = vif.diff(vif.loads(one, "a.txt"), vif.loads(one + two, "b.txt")).groups
    assert (change.kind, change.field_count, change.after) == ("added", 2, (("component", 1), ("src_pdo", 2)))
    assert str(change) == f"component=1, src_pdo=2 added: {change.summary}"


def test_differences_are_those_of_the_command(command):
    done = subprocess.run(
        [command, "diff", "--format", "json", str(CHARGER), str(LAPTOP)], stdout=subprocess.PIPE, encoding="utf-8"
    )
    listed = json.loads(done.stdout)
    differences = vif.diff(CHARGER, LAPTOP)
    for ours, theirs in zip(differences, listed["differences"]):
        assert (ours.kind, ours.name) == (theirs["kind"], theirs["name"])
        for declared, side in ((ours.before, theirs["old"]), (ours.after, theirs["new"])):
            assert (declared is None) == (side is None)
            if declared is not None:
                assert (declared.name, declared.value, declared.number) == (side["name"], side["value"], side["number"])
                assert declared.meaning == (side["meaning"] or "")
    assert len(differences) == len(listed["differences"]) > 100
    assert [group.kind for group in differences.groups] == [group["kind"] for group in listed["groups"]] != []


def test_descriptions_differ_on_request():
    before, after = vif.loads(b"VID: 1 ; a\n", "a.txt"), vif.loads(b"VID: 1 ; b\n", "a.txt")
    assert not vif.diff(before, after)
    assert len(vif.diff(before, after, descriptions=True)) == 1


def test_ports_can_be_compared():
    (comparison,) = vif.diff_ports(LAPTOP)
    assert (comparison.other, comparison.component) == (1, 2)
    gc.collect()
    assert all(difference.name for difference in comparison.differences)


def test_a_field_is_explained_by_any_of_its_names():
    explanation = vif.explain("rp_value")
    assert explanation.name == "RP_Value"
    assert [(value.value, value.text) for value in explanation.values][1] == ("1", "1.5A")
    assert "Rp_Value" in [spelling.name for spelling in explanation.spellings]
    assert explanation.sources


def test_an_unknown_name_is_a_key_error_with_advice():
    with pytest.raises(vif.FieldNotFound, match="did you mean 'RP_Value'"):
        vif.explain("RP_Valu")
    with pytest.raises(KeyError):
        vif.rule("no-such-rule")


def test_rules_have_a_code_and_a_reason():
    rules = vif.rules()
    assert len({rule.code for rule in rules}) == len(rules) > 50
    assert all(rule.what and rule.severity in ("error", "warning", "note") for rule in rules)
    assert vif.rule("PDO-Above-Rating") in rules


def test_a_report_is_that_of_the_command(command, tmp_path):
    copy = tmp_path / LAPTOP.name
    shutil.copy(LAPTOP, copy)
    for files in ([CHARGER], [CHARGER, LAPTOP], [LAPTOP, copy]):
        page = subprocess.run([command, "report", *map(str, files)], stdout=subprocess.PIPE).stdout.decode("utf-8")
        assert vif.report(*files) == page


def test_a_report_of_a_product_shows_the_findings_given():
    product = vif.loads(BROKEN, "a.txt")
    findings = vif.check_bytes(BROKEN, "a.txt")
    assert findings[0].message in vif.report(product, findings=findings).replace("&lt;", "<").replace("&quot;", '"')
    assert "a.txt" in vif.report(product)


@pytest.mark.parametrize("function", [vif.explain, vif.rule])
def test_a_nul_does_not_end_a_name_early(function):
    with pytest.raises(ValueError, match="null character"):
        function("RP_Value\0x")
