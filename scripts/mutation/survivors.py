"""The mutants that are known to survive, each with an explanation."""

from dataclasses import dataclass
from pathlib import Path

from mutants import Mutant


@dataclass(frozen=True)
class Survivor:
    """A mutant identified by its lines, which say more than line numbers and do not change when the lines move."""

    file: str
    before: str
    after: str


class SurvivorList:
    """The survivors in a text file. Each block has a file, "- " with the original line, "+ " with the mutant's line,
    and the reason. Empty lines separate the blocks, and a block that begins with "#" is a comment."""

    def __init__(self, path: Path) -> None:
        blocks = [block.strip().splitlines() for block in path.read_text(encoding="utf-8").split("\n\n")]
        entries = [_read_block(lines) for lines in blocks if lines and not lines[0].startswith("#")]
        self._reasons = dict(entries)

    def explains(self, mutant: Mutant) -> bool:
        """Whether the list contains the mutant."""
        return _key(mutant) in self._reasons

    def without_mutant(self, mutants: list[Mutant]) -> list[Survivor]:
        """The entries that match none of the mutants: the code has changed."""
        keys = {_key(mutant) for mutant in mutants}
        return [survivor for survivor in self._reasons if survivor not in keys]


def _key(mutant: Mutant) -> Survivor:
    return Survivor(mutant.file, mutant.before, mutant.after)


def _read_block(lines: list[str]) -> tuple[Survivor, str]:
    if len(lines) < 4 or not lines[1].startswith("- ") or not lines[2].startswith("+ "):
        raise ValueError(f"not a survivor with its reason: {lines}")
    return Survivor(lines[0], lines[1][2:], lines[2][2:]), " ".join(lines[3:])
