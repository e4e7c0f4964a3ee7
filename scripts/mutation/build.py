"""The objects, libraries and test programs of a Ninja build directory."""

import json
import os
import shlex
import subprocess
from dataclasses import dataclass
from pathlib import Path

# Optimising less saves compile time; nobody needs the debug information.
_LESS = {"-O2": "-O1", "-O3": "-O1", "-g": "", "-g1": "", "-Werror": "-w"}

_LOAD_BY_FULL_PATH = {"loading_tests"}


@dataclass(frozen=True)
class Linked:
    """A library or program: its inputs and its link command."""

    path: str  # relative to the build directory, like all paths here
    inputs: tuple[str, ...]
    needs: frozenset[str]  # everything that must be built before it, such as programs that it runs
    command: tuple[str, ...]

    @property
    def name(self) -> str:
        """The file's name."""
        return Path(self.path).name

    @property
    def soname(self) -> str:
        """The name under which programs load a library; for a program, its file name."""
        names = [part.split(",")[-1] for part in self.command if part.startswith("-Wl,-soname,")]
        return names[0] if names else self.name

    def command_for(self, output: Path, replaced: dict[str, Path]) -> list[str]:
        """The command that links it as `output`, with some objects replaced."""
        parts = [str(replaced.get(part, part)) for part in self.command]
        return [str(output) if part == self.path else part for part in parts]


class Build:
    """A build directory and the root of its sources. Changes nothing in either."""

    def __init__(self, directory: Path, root: Path) -> None:
        self.directory = directory
        self._root = root
        self._compile_commands = self._read_compile_commands()
        self._objects_by_file = self._read_dependencies()
        targets = self._read_targets()
        self.libraries = [self._linked(path) for path, kind in targets.items() if "SHARED_LIBRARY" in kind]
        # A program with a file that lists its tests is a test program. Those that are not built are left out, and so are
        # those that load the libraries of the build by their full paths: they would never load a mutant.
        self.programs = [
            self._linked(path)
            for path, kind in targets.items()
            if f"{path}[1]_tests.cmake" in targets
            and (directory / path).exists()
            and Path(path).name not in _LOAD_BY_FULL_PATH
        ]

    def objects_of(self, name: str) -> list[str]:
        """The objects that a source is compiled to or that include a header."""
        return self._objects_by_file.get(str(self._root / name), [])

    def compile_command(self, target: str, output: Path, tree: Path) -> list[str]:
        """The command that compiles an object as `output`, from another source tree."""
        parts = [_LESS.get(part, part) for part in self._compile_commands[target]]
        parts = [_moved(part, self._root, tree) for part in parts if part]
        return [str(output) if part == target else part for part in parts]

    def _ninja(self, *arguments: str) -> str:
        command = ["ninja", "-C", str(self.directory), "--quiet", "-t", *arguments]
        return subprocess.run(command, check=True, capture_output=True, text=True).stdout

    def _read_compile_commands(self) -> dict[str, list[str]]:
        """The compile command of every object, which this file has without a compiler cache."""
        entries = json.loads((self.directory / "compile_commands.json").read_text(encoding="utf-8"))
        commands = [shlex.split(entry["command"]) for entry in entries]
        return {parts[parts.index("-o") + 1]: parts for parts in commands}

    def _read_dependencies(self) -> dict[str, list[str]]:
        objects: dict[str, list[str]] = {}
        target = ""
        for line in self._ninja("deps").splitlines():
            if line.startswith("    "):
                path = os.path.normpath(self.directory / line.strip())  # some are relative
                objects.setdefault(path, []).append(target)
            else:
                target = line.split(": #deps")[0]
        return objects

    def _read_targets(self) -> dict[str, str]:
        """Everything that is linked, with its rule."""
        lines = [line.rsplit(": ", 1) for line in self._ninja("targets", "all").splitlines()]
        return {path: rule for path, rule in lines if "_LINKER__" in rule}

    def _linked(self, path: str) -> Linked:
        needs = frozenset(self._ninja("inputs", path).splitlines())
        # The commands that follow run the linked program, for instance to list its tests.
        command = self._ninja("commands", "-s", path).split(" && ")[1]
        # Mutants are linked elsewhere, so where the other libraries are must not depend on the place of the file.
        origin = str((self.directory / path).parent)
        parts = tuple(part.replace("\\$ORIGIN", origin) for part in shlex.split(command))
        return Linked(path, tuple(part for part in parts if part in needs), needs, parts)


def _moved(part: str, root: Path, tree: Path) -> str:
    """A part of a command, moved to another tree if it is an include directory or the source."""
    for option in ("", "-I"):
        if part.startswith(f"{option}{root}/"):
            return f"{option}{tree}{part.removeprefix(f'{option}{root}')}"
    return part
