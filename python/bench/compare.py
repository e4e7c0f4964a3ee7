#!/usr/bin/env python3
"""Loads the VIF of the USB4 dock (34 kB of XML) and asks it ten questions: with the package, with C++ and with lxml.

    compare.py ASK_VIF SOURCES

ASK_VIF is the benchmark's program of that name. lxml validates against the same schema. The three run alternately, nine
times 200 rounds each; the medians of processor time count. Prints rows of a Markdown table.
"""

import os
import statistics
import subprocess
import sys
import time

from lxml import etree

import vendorinfofile as vif

ROUNDS = 200
REPETITIONS = 9
ask_vif, sources = sys.argv[1:]
DOCK = os.path.join(sources, "examples", "vif", "usb4-dock.xml")
SPACE = "{http://usb.org/VendorInfoFile.xsd}"


def ask(product):
    """What bench/AskVif.cpp asks, in the same order."""
    component = product.component(1)
    one, two = component.src_pdo(1), component.src_pdo(2)
    total = len(product["Vendor_Name"].text)
    total += component["PD_Port_Type"].number
    total += component["Num_Src_PDOs"].number
    total += component["PD_Power_As_Source"].number
    total += one["Src_PDO_Voltage"].number
    total += one["Src_PDO_Max_Current"].number
    total += two["Src_PDO_Voltage"].number
    total += two["Src_PDO_Max_Current"].number
    total += len(component.find("Src_PDO_Voltage"))
    total += component.count("SVID_SOP")
    return total


def value(group, name):
    return int(group.find(SPACE + name).get("value"))


def ask_lxml(root):
    component = root.find(SPACE + "Component")
    pdos = component.find(SPACE + "SrcPdoList")
    total = len(root.find(SPACE + "Vendor_Name").text)
    total += value(component, "PD_Port_Type")
    total += value(component, "Num_Src_PDOs")
    total += value(component, "PD_Power_As_Source")
    total += value(pdos[0], "Src_PDO_Voltage")
    total += value(pdos[0], "Src_PDO_Max_Current")
    total += value(pdos[1], "Src_PDO_Voltage")
    total += value(pdos[1], "Src_PDO_Max_Current")
    total += len(list(component.iter(SPACE + "Src_PDO_Voltage")))
    total += len(list(component.iter(SPACE + "SVID_SOP")))
    return total


def with_package():
    return ask(vif.load(DOCK))


# Documents may refer to nothing outside, as for the library, and the schemas are compiled once, as in the library.
parser = etree.XMLParser(no_network=True, resolve_entities=False, load_dtd=False, remove_comments=True)
schema_folder = os.path.join(sources, "schemas")
schema = etree.XMLSchema(file=os.path.join(schema_folder, "VendorInfoFile.xsd"))


def with_lxml():
    document = etree.parse(DOCK, parser)
    schema.assertValid(document)
    return ask_lxml(document.getroot())


def measure(work):
    """The processor time of one round in microseconds."""
    begin = time.process_time()
    for _ in range(ROUNDS):
        work()
    return (time.process_time() - begin) * 1e6 / ROUNDS


def measure_cpp():
    printed = subprocess.run([ask_vif, DOCK, str(ROUNDS)], stdout=subprocess.PIPE, check=True).stdout.split()
    return float(printed[0]), int(printed[1])


def main():
    answers = {"C++": measure_cpp()[1], "Python": with_package(), "lxml": with_lxml()}
    if len(set(answers.values())) != 1:
        raise SystemExit(f"the answers differ: {answers}")
    cpp, package, lxml = [], [], []
    for _ in range(REPETITIONS):
        cpp.append(measure_cpp()[0])
        package.append(measure(with_package))
        lxml.append(measure(with_lxml))
    ours = statistics.median(package)
    for name, other, goal in (("C++", statistics.median(cpp), 1.3), ("lxml", statistics.median(lxml), None)):
        ratio = ours / other
        met = "–" if goal is None else "yes" if ratio <= goal else "no"
        print(
            f"| load the XML VIF of the USB4 dock in Python, and ask ten questions | the same with {name} "
            f"| {ours:.0f} µs | {other:.0f} µs | {ratio:.2f} | {f'≤ {goal:.2f}' if goal else '–'} | {met} |"
        )


main()
