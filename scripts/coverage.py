#!/usr/bin/env python3
"""Shows the coverage of lines and branches that `llvm-cov export -skip-functions` reports. Fails below the thresholds,
which are percentages of the whole. A branch is one outcome of a condition, true or false. Code that runs in one copy of
a template or inline function counts as run in all copies.

    coverage.py FILE SOURCE_DIRECTORY LEAST_LINES LEAST_BRANCHES [--missing]
"""

import itertools
import json
import os
import sys


def line_counts(segments):
    """How often each line with code is run: the highest count of the segments that reach or begin there."""
    counts = {}
    reaching = None
    for line, group in itertools.groupby(segments, lambda segment: segment[0]):
        if reaching:
            counts.update((between, reaching[2]) for between in range(reaching[0] + 1, line) if reaching[3])
        begun = list(group)
        beginning = [count for _, _, count, has_count, is_entry, is_gap in begun if has_count and is_entry and not is_gap]
        if reaching and reaching[3]:
            beginning.append(reaching[2])
        is_left_out = begun[0][4] and not begun[0][3]
        if beginning and not is_left_out:
            counts[line] = max(beginning)
        reaching = begun[-1]
    return counts


def is_run_at(place, segments):
    """Whether the code at a line and column is run."""
    before = [segment for segment in segments if (segment[0], segment[1]) <= place]
    return bool(before) and before[-1][2] > 0


def branch_counts(branches, segments):
    """How often each outcome occurs, by line, column and outcome. A condition that the compiler evaluates has none."""
    counts = {}
    for line, column, _, _, when_true, when_false, *_ in branches:
        former = counts.get((line, column), (0, 0))
        counts[line, column] = (former[0] + when_true, former[1] + when_false)
    return {
        (*place, outcome): count
        for place, outcomes in counts.items()
        if any(outcomes) or not is_run_at(place, segments)
        for outcome, count in zip(("true", "false"), outcomes)
    }


def ranges(numbers):
    """Joins consecutive numbers: (1, 3) for 1, 2 and 3."""
    for _, group in itertools.groupby(enumerate(numbers), lambda pair: pair[1] - pair[0]):
        run = [number for _, number in group]
        yield run[0], run[-1]


class Coverage:
    """The counts of one file."""

    def __init__(self, file, directory):
        self.name = os.path.relpath(file["filename"], directory)
        self.lines = line_counts(file["segments"])
        self.branches = branch_counts(file["branches"], file["segments"])

    def print_missing(self):
        for first, last in ranges(sorted(line for line, count in self.lines.items() if count == 0)):
            print(f"{self.name}:{first}: not run" + (f" up to line {last}" if last > first else ""))
        for line, column, outcome in sorted(place for place, count in self.branches.items() if count == 0):
            if self.lines.get(line) != 0:
                print(f"{self.name}:{line}:{column}: never {outcome}")


class Sum:
    """How many lines or branches there are, and how many are run."""

    def __init__(self, counts):
        self.all = sum(len(count) for count in counts)
        self.run = sum(number > 0 for count in counts for number in count.values())

    def percent(self):
        return 100 * self.run / self.all if self.all else 100

    def __str__(self):
        return f"{self.run:5} of {self.all:5} {self.percent():6.2f} %"


def print_row(name, files):
    lines, branches = Sum([file.lines for file in files]), Sum([file.branches for file in files])
    print(f"{name:44} lines {lines}   branches {branches}")
    return lines, branches


def main(path, directory, least_lines, least_branches, *options):
    with open(path, encoding="utf-8") as file:
        exported = json.load(file)["data"][0]["files"]
    files = sorted((Coverage(file, directory) for file in exported), key=lambda file: file.name)
    for folder, group in itertools.groupby(files, lambda file: file.name.split(os.sep)[0]):
        inside = list(group)
        for file in inside:
            print_row(f"  {file.name}", [file])
        print_row(f"{folder}/", inside)
    lines, branches = print_row("all", files)
    if "--missing" in options:
        for file in files:
            file.print_missing()
    if lines.percent() >= float(least_lines) and branches.percent() >= float(least_branches):
        return 0
    print(f"FAILED: at least {least_lines} % of the lines and {least_branches} % of the branches must be covered")
    return 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
