"""Every example of the documentation runs, and prints what it says it prints."""

import contextlib
import io
import re
import shutil

import pytest

from conftest import EXAMPLES, SOURCES


def changed(text, pattern, replacement):
    text, count = re.subn(pattern, replacement, text, flags=re.MULTILINE)
    assert count > 0
    return text


def prepare(folder):
    """Puts the files that the examples name into a folder: those of the project, and some that are made of them."""
    for path in EXAMPLES.iterdir():
        shutil.copy(path, folder)
    charger = (EXAMPLES / "gan-charger-65w.txt").read_text(encoding="utf-8")
    draft = changed(charger, r"^(Src_PDO_Max_Current4): .*", r"\1: 400")
    (folder / "gan-charger-draft.txt").write_text(draft, encoding="utf-8")
    tablet = (EXAMPLES / "dual-role-tablet.txt").read_text(encoding="utf-8")
    revised = changed(tablet, r"^(Src_PDO_Max_Current1): .*", r"\1: 150")
    revised = changed(revised, r"^Snk_PDO_.*2: .*\n", "")
    revised = changed(revised, r"^(Num_Snk_PDOs): .*", r"\1: 4")
    for number in (3, 4, 5):
        revised = changed(revised, rf"^(Snk_PDO_\w+){number}: ", rf"\g<1>{number - 1}: ")
    (folder / "dual-role-tablet-2.txt").write_text(revised, encoding="utf-8")


def examples(path):
    """The Python of a page, and what it prints, which stands after it; None if that does not."""
    page = path.read_text(encoding="utf-8")
    return [
        (code, expected)
        for code, _, expected in re.findall(r"```python\n(.*?)```\n(\n```output\n(.*?)```)?", page, flags=re.DOTALL)
    ]


@pytest.mark.parametrize("page", ["docs/python.md", "docs/tutorial.md", "README.md"])
def test_examples_print_what_they_say(page, tmp_path, monkeypatch):
    prepare(tmp_path)
    for linked in re.findall(r"\]\(([\w-]+\.(?:txt|xml))\)", (SOURCES / page).read_text(encoding="utf-8")):
        shutil.copy((SOURCES / page).parent / linked, tmp_path)
    monkeypatch.chdir(tmp_path)
    names = {}
    found = examples(SOURCES / page)
    assert found
    for code, expected in found:
        out = io.StringIO()
        with contextlib.redirect_stdout(out):
            exec(compile(code, page, "exec"), names)
        assert out.getvalue() == expected


def test_tasks_take_less_than_ten_lines():
    page = (SOURCES / "docs" / "python.md").read_text(encoding="utf-8")
    tasks = re.findall(r"### .*?```python\n(.*?)```", page, flags=re.DOTALL)
    assert len(tasks) == 5
    assert all(len(task.strip().splitlines()) < 10 for task in tasks)
