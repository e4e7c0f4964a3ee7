"""Checks what a shell completes after `vif`, and that the check notices a script that does not.

    check_completion.py bash|zsh|fish PREFIX WORK_DIRECTORY
"""

import re
import shutil
import subprocess
import sys
from pathlib import Path

import shells

FILES = ("Dock.XML", "charger.txt", "known.json", "my port.txt", "notes.md")
FOLDER = "folder"


def help_of(prefix, *arguments):
    command = [f"{prefix}/bin/vif", *arguments, "--help"]
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def expectations(prefix):
    """Lines, each with all that can stand in place of its last word."""
    commands = re.findall(r"^  (\w+)", help_of(prefix).split("Commands:")[1].split("\n\n")[0], re.MULTILINE)
    codes = re.findall(r"^  (?:error|warning|note) +([a-z0-9-]+)", help_of(prefix, "check"), re.MULTILINE)
    options = re.findall(r"^  (?:-\w,)?(--[a-z-]+)", help_of(prefix, "check").split("Findings:")[0], re.MULTILINE)
    assert len(commands) >= 7 and len(codes) > 45 and len(options) >= 7
    vifs = ["Dock.XML", "charger.txt", "folder", "my port.txt"]
    return {
        "vif ": commands,
        "vif ch": ["check"],
        "vif --v": ["--version"],
        "vif check --": options,
        "vif check --fa": ["--fail-on"],
        "vif check --format ": ["json", "sarif", "text"],
        "vif list --format=c": ["csv"],
        "vif check --fail-on n": ["never", "note"],
        "vif check --only ": codes,
        "vif check --only pdo-above-rating,pdo-or": ["pdo-order"],
        "vif check --baseline k": ["known.json"],
        "vif check --schemas f": [FOLDER],
        "vif check charger.txt D": ["Dock.XML"],
        "vif list ": vifs,
        "vif show my": ["my port.txt"],
        "vif diff --ports n": [],
        "vif explain Src_PDO_Vo": ["Src_PDO_Voltage"],
        "vif explain charger-": [],
        "vif explain pdo-ab": ["pdo-above-rating"],
        "vif get ch": ["charger.txt"],
        "vif get charger.txt Src_PDO_Vo": ["Src_PDO_Voltage"],
        "vif get --src-pdo 2 ch": ["charger.txt"],
        "vif get --src-pdo=a": ["any"],
        "vif get --src-pdo any charger.txt Snk_PDO_Vo": ["Snk_PDO_Voltage"],
        "vif get -- -x.txt Snk_PDO_Vo": ["Snk_PDO_Voltage"],
        "vif report -o no": ["notes.md"],
    }


# Changes to a script, each with a line for which it must then give another answer.
MISTAKES = {
    ("pdo-order", "pdo-odour"): "vif check --only pdo-above-rating,pdo-or",
    ("Src_PDO_Voltage", "Src_PDO_Volts"): "vif get charger.txt Src_PDO_Vo",
    ("fail-on", "fail-off"): "vif check --fa",
    ("sarif", "safari"): "vif check --format ",
    ("xml", "xmx"): "vif list ",
    ("json", "jsn"): "vif check --baseline k",
    ("explain", "expound"): "vif explain pdo-ab",
    ("any", "all"): "vif get --src-pdo=a",
}


def plain(word):
    """The part of a word that was completed, without the slash that some shells put after a directory."""
    return word.split("=")[-1].split(",")[-1].rstrip("/")


def wrong_answers(shell, prefix, work):
    """The lines to which the shell gives another answer, each with that answer."""
    expected = expectations(prefix)
    answers = shells.complete(shell, list(expected), prefix, work / "home", work / "files")
    wrong = {}
    for (line, words), answer in zip(expected.items(), answers, strict=True):
        # A shell that has nothing to insert leaves the word as it was.
        got = sorted(plain(word) for word in answer if word != line.split(" ")[-1] or word in words)
        if got != sorted(words):
            wrong[line] = got
    return wrong


def with_script(prefix, work, shell, change):
    """A copy of what the shell finds below the prefix, with another script."""
    copy = work / "changed"
    shutil.rmtree(copy, ignore_errors=True)
    script = copy / shells.SCRIPTS[shell]
    script.parent.mkdir(parents=True)
    (copy / "bin").symlink_to(prefix / "bin")
    script.write_text(change((prefix / shells.SCRIPTS[shell]).read_text()))
    return copy


def replace(text, old, new):
    assert old in text, f"the script does not have {old!r}"
    return text.replace(old, new)


def main(shell, prefix, work):
    if shutil.which(shell) is None:
        print(f"SKIPPED: {shell} is not installed")
        return 0
    if shell == "bash" and not Path("/usr/share/bash-completion/bash_completion").exists():
        print("SKIPPED: bash-completion is not installed")
        return 0
    shutil.rmtree(work, ignore_errors=True)
    (work / "home").mkdir(parents=True)
    (work / "files" / FOLDER).mkdir(parents=True)
    for name in FILES:
        (work / "files" / name).touch()
    wrong = wrong_answers(shell, prefix, work)
    for line, answer in wrong.items():
        print(f"FAILED: {line!r} gives {answer}")
    for (old, new), line in MISTAKES.items():
        changed = with_script(prefix, work, shell, lambda text: replace(text, old, new))
        if line not in wrong_answers(shell, changed, work):
            print(f"FAILED: nobody notices {new!r} instead of {old!r} in the script")
            wrong[new] = line
    if not wrong_answers(shell, with_script(prefix, work, shell, lambda text: "\n"), work):
        print("FAILED: nobody notices an empty script")
        wrong[""] = ""
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], Path(sys.argv[2]), Path(sys.argv[3])))
