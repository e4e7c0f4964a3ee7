"""Builds the product with some files changed, outside the build directory, and runs the tests against it."""

import os
import re
import shutil
from collections.abc import Iterator, Mapping
from dataclasses import dataclass
from pathlib import Path

from build import Build, Linked
from processes import Outcome, run_limited

_BUILD_SECONDS = 300
_FAILED_TEST = re.compile(r"\[  FAILED  \] ([\w/]+\.[\w/]+)")
_BEGUN_TEST = re.compile(r"\[ RUN      \] ([\w/]+\.[\w/]+)")


class DoesNotBuild(Exception):
    """The changed sources do not compile, or their objects do not link."""


@dataclass(frozen=True)
class Failure:
    """The test program that failed, and the test, if known."""

    program: str
    test: str
    has_timed_out: bool


class Trial:
    """The product with some texts changed; the others are those in `sources`. Everything is built in `directory`, which
    is created, too."""

    def __init__(self, build: Build, sources: Path, directory: Path, texts: Mapping[str, str]) -> None:
        self._build = build
        self._directory = directory
        self._libraries = directory / "lib"
        self._objects = {target for name in texts for target in build.objects_of(name)}
        if not self._objects:
            raise ValueError(f"the build compiles nothing of {', '.join(texts)}")
        self._made: dict[str, Path] = {}
        directory.mkdir(mode=0o755)
        _make_tree(sources, directory / "tree", texts)
        self._libraries.mkdir()

    def link_libraries(self) -> None:
        """Links the libraries that contain a changed object.

        Raises DoesNotBuild when that fails.
        """
        for library in self._build.libraries:
            if not self._objects & set(library.inputs):
                continue
            path = self._libraries / library.name
            self._link(library, path)
            if library.soname != library.name:
                (self._libraries / library.soname).symlink_to(library.name)

    def concerns(self, program: Linked) -> bool:
        """Whether the program, or anything it runs or loads, contains a changed object."""
        return bool(self._objects & program.needs)

    def run(self, program: Linked, seconds: float) -> Outcome:
        """Runs a test program with the changed objects up to its first failure.

        Raises DoesNotBuild when the program cannot be built.
        """
        path = self._build.directory / program.path
        if self._objects & set(program.inputs):
            path = self._directory / program.name
            self._link(program, path)
        return run_limited(
            [str(path), "--gtest_fail_fast", "--gtest_color=no"],
            self._new_directory(f"{program.name}.work"),
            seconds,
            self._environment(program),
        )

    def first_failure(self, programs: Iterator[tuple[Linked, float]]) -> Failure | None:
        """The failure of the first program that fails. Each program comes with its time limit."""
        for program, seconds in programs:
            outcome = self.run(program, seconds)
            if not outcome.is_success:
                # If the program has crashed, the test that was running.
                tests = _FAILED_TEST.findall(outcome.output)[:1] or _BEGUN_TEST.findall(outcome.output)[-1:]
                return Failure(program.name, "".join(tests), outcome.has_timed_out)
        return None

    def _link(self, linked: Linked, output: Path) -> None:
        objects = self._objects & set(linked.inputs)
        for target in sorted(objects - self._made.keys()):
            self._compile(target)
        self._build_with(linked.command_for(output, self._made))

    def _compile(self, target: str) -> None:
        output = self._directory / "objects" / target
        output.parent.mkdir(parents=True, exist_ok=True)
        self._build_with(self._build.compile_command(target, output, self._directory / "tree"))
        self._made[target] = output

    def _build_with(self, command: list[str]) -> None:
        outcome = run_limited(command, self._build.directory, _BUILD_SECONDS)
        if not outcome.is_success:
            raise DoesNotBuild(outcome.output)

    def _environment(self, program: Linked) -> dict[str, str]:
        temporary = str(self._new_directory(f"{program.name}.tmp"))
        return dict(os.environ) | {"LD_LIBRARY_PATH": str(self._libraries), "TMPDIR": temporary}

    def _new_directory(self, name: str) -> Path:
        directory = self._directory / name
        shutil.rmtree(directory, ignore_errors=True)
        directory.mkdir()
        return directory


def _make_tree(sources: Path, tree: Path, texts: Mapping[str, str]) -> None:
    """Creates a source tree with directories of its own for the changed texts and links to everything else."""
    changed = {name.split("/")[0] for name in texts}
    tree.mkdir()
    for entry in sources.iterdir():
        if entry.name not in changed:
            (tree / entry.name).symlink_to(entry)
    for folder in changed:
        (tree / folder).mkdir()
        for entry in (sources / folder).iterdir():
            if f"{folder}/{entry.name}" not in texts:
                (tree / folder / entry.name).symlink_to(entry)
    for name, text in texts.items():
        (tree / name).write_text(text, encoding="utf-8")
