"""What Python gives for every example and generated file is what the command lists."""

import json
import os
import subprocess

import pytest

import vendorinfofile as vif
from conftest import EXAMPLES

LOCATIONS = {
    "vif": "VIF",
    "app_version": "AppVersion",
    "product": "Product",
    "router": "Router",
    "router_pcie": "RouterPcie",
    "component": "Component",
    "src_pdo": "SrcPdo",
    "snk_pdo": "SnkPdo",
    "sop_svid": "SopSvid",
    "sop_svid_mode": "SopSvidMode",
    "cable_svid": "CableSvid",
    "cable_svid_mode": "CableSvidMode",
}


def listed(command, path):
    """What the command lists; None if it refuses the file, with its message."""
    done = subprocess.run(
        [command, "list", "--format", "json", os.fspath(path)], stdout=subprocess.PIPE, stderr=subprocess.PIPE
    )
    if done.returncode != 0:
        return None, done.stderr.decode("utf-8")
    return json.loads(done.stdout.decode("utf-8", "replace")), ""


def as_listed(product):
    return [
        {
            "name": field.name,
            "value": field.value,
            "description": field.description,
            "numeric": field.is_numeric,
            "number": field.number,
            "indexes": [{"location": LOCATIONS[key], "index": number} for key, number in field.indexes],
        }
        for field in product
    ]


def compare(command, path):
    """Whether the file was loaded, by both."""
    expected, message = listed(command, path)
    if expected is None:
        # The schema lets groups nest deeper than the library reads them.
        with pytest.raises((vif.InvalidVif, vif.SchemaError)) as caught:
            vif.load(path)
        text = caught.value.reasons[0].text if caught.value.reasons else str(caught.value)
        assert text in message, path
        return False
    product = vif.load(path)
    assert as_listed(product) == expected["fields"], path
    assert product.component_count == expected["componentCount"], path
    assert as_listed(vif.loads(path.read_bytes(), path.name)) == expected["fields"], path
    return True


@pytest.mark.parametrize("path", sorted(EXAMPLES.glob("*.[tx]*")), ids=lambda path: path.name)
def test_examples(command, path):
    assert compare(command, path)


def test_generated_files(command, generated):
    outcomes = [compare(command, path) for path in generated]
    assert outcomes.count(True) > len(outcomes) / 2
    assert outcomes.count(False) > 0


def test_quantities_are_what_a_comparison_with_nothing_says():
    nothing = vif.loads(b"", "a.txt")
    for path in EXAMPLES.glob("*.[tx]*"):
        product = vif.load(path)
        fields = product.fields
        declared = [difference.after for difference in vif.diff(nothing, product)]
        amounts = [one for one in declared if fields[one.position].quantity is not None]
        assert all(one.meaning == str(fields[one.position].quantity) for one in amounts)
        assert len(amounts) >= len(product.find(".*PDO_Voltage"))
