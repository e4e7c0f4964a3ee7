#!/usr/bin/env python3
"""Writes the pages about the rules and the fields, from what the command says, into a directory.

    tables.py VIF DIRECTORY

VIF is the command.
"""
import json
import pathlib
import subprocess
import sys

from markup import escape, link, slug

GROUPS = {
    "VIF": "The file",
    "AppVersion": "The application",
    "Product": "Product",
    "Component": "Component",
    "Router": "USB4 router",
    "RouterPcie": "PCIe endpoint",
    "SrcPdo": "Source PDO",
    "SnkPdo": "Sink PDO",
    "SopSvid": "SOP SVID",
    "SopSvidMode": "SOP SVID mode",
    "CableSvid": "Cable SVID",
    "CableSvidMode": "Cable SVID mode",
    None: "In no group",
}


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True, encoding="utf-8").stdout


def explain(vif, names):
    rows = [json.loads(line) for line in output(vif, "explain", "--format", "json", *names).splitlines()]
    if len(rows) != len(names):
        sys.exit(f"{len(rows)} explanations of {len(names)} names")
    return rows


def all_rules(vif, empty_file):
    report = json.loads(output(vif, "check", "--format", "sarif", "--fail-on", "never", empty_file))
    return explain(vif, [rule["id"] for rule in report["runs"][0]["tool"]["driver"]["rules"]])


def uncertain(row):
    return " <em>(uncertain)</em>" if row["confidence"] == "low" else ""


def editions(row):
    first, last = row["editions"]["first"], row["editions"]["last"]
    if first is None:
        return None
    if last is None:
        return f"{first} and later"
    return first if first == last else f"{first} to {last}"


def page_of(kind, name):
    """The name of the page about a rule or a field. Each has one, because the search finds pages and not their parts."""
    return f"{kind}-{slug(name)}"


def link_to(kind, name):
    return link(page_of(kind, name) + ".html", name)


def rules_page(rules):
    text = [
        "# The rules {#rules}\n",
        "What `vif check` and `CheckFile` look for. `vif explain CODE` prints the same, with the sources. An error means",
        "that something is lost or cannot be intended; a warning is worth a look; a note is often correct as it is.\n",
        "| rule | finds |\n|---|---|",
    ]
    for rule in rules:
        text.append(f"| {link_to('rule', rule['code'])} | <em>{rule['severity']}</em>: {escape(rule['what'])} |")
    return "\n".join(text) + "\n"


def rule_page(rule, fields):
    text = [
        f"# {rule['code']} {{#{page_of('rule', rule['code'])}}}\n",
        f"**{rule['severity'].capitalize()}**: {escape(rule['what'])}.{uncertain(rule)}\n",
        with_field_links(rule["why"], fields) + "\n",
    ]
    if editions(rule):
        text.append(f"Only in files of edition {editions(rule)}.\n")
    return "\n".join([*text, link("rules.html", "All rules")]) + "\n"


def with_field_links(text, fields):
    """The text, in which names of fields are links."""
    words = []
    for word in text.split(" "):
        name = word.strip(".,;:()'")
        if name in fields:
            before, after = word.split(name, 1)
            word = escape(before) + link_to("field", name) + escape(after)
        else:
            word = escape(word)
        words.append(word)
    return " ".join(words)


def values_of(field):
    rows = []
    for value in field["values"]:
        notes = [note for note, holds in (("not seen", not value["seen"]), ("uncertain", value["confidence"] == "low")) if holds]
        rows.append(f"| {value['value']} | {escape(value['text'])}{' <em>(' + ', '.join(notes) + ')</em>' if notes else ''} |")
    return "\n".join(["| value | means |", "|---|---|", *rows]) + "\n" if rows else ""


def spelling_text(spelling):
    seen = [edition for edition in (spelling["first"], spelling["last"]) if edition]
    seen = ", " + " to ".join(dict.fromkeys(seen)) if seen else ""
    return f"- `{spelling['name']}`: {escape(spelling['kind'])}{seen}{uncertain(spelling)}\n"


def field_page(field):
    group = GROUPS[field["group"]]
    text = [f"# {field['name']} {{#{page_of('field', field['name'])}}}\n"]
    text.append(escape(field["declares"] or "What it declares is not known.") + uncertain(field) + "\n")
    if field.get("note"):
        text.append(escape(field["note"]) + "\n")
    text.append(f"- group: {link('fields.html#fields--' + slug(group), group)}")
    facts = [("type", field["type"]), ("unit", field["unit"]), ("editions", editions(field) or "not seen in a file")]
    text.append("".join(f"- {name}: {escape(value)}\n" for name, value in facts if value))
    text.append(values_of(field))
    if field["spellings"]:
        text.append("Other names:\n\n" + "".join(spelling_text(spelling) for spelling in field["spellings"]))
    if field["rules"]:
        text.append(f"Rules that name it: {', '.join(link_to('rule', rule) for rule in field['rules'])}\n")
    return "\n".join(text)


def main():
    vif, directory = sys.argv[1], pathlib.Path(sys.argv[2])

    def write(name, text):
        (directory / f"{name}.md").write_text(text, encoding="utf-8")

    groups = json.loads(output(vif, "explain", "--format", "json"))["groups"]
    index = ["# The fields {#fields}\n\n[TOC]\n", "The fields of the format by group, as `vif explain NAME` "
             "describes them. What is known was gathered from public documents and real files: *uncertain* marks what only "
             "a few of them confirm, *not seen* what none of the files has.\n"]
    for group in groups:
        title = GROUPS[group["group"]]
        index.append(f"\n## {title} {{#fields--{slug(title)}}}\n\n| field | declares |\n|---|---|")
        for field in explain(vif, group["fields"]):
            write(page_of("field", field["name"]), field_page(field))
            index.append(f"| {link_to('field', field['name'])} | {escape(field['declares'])} |")
    write("fields", "\n".join(index) + "\n")

    empty_file = directory / "empty.txt"
    empty_file.write_text("")
    rules = all_rules(vif, str(empty_file))
    empty_file.unlink()
    fields = {field for group in groups for field in group["fields"]}
    write("rules", rules_page(rules))
    for rule in rules:
        write(page_of("rule", rule["code"]), rule_page(rule, fields))


if __name__ == "__main__":
    main()
