"""The mutants that are known to survive, each with the reason."""

from dataclasses import dataclass
from pathlib import Path

from mutants import Mutant


@dataclass(frozen=True)
class Survivor:
    """A mutant by its lines, which say more than numbers and stay when others move them."""

    file: str
    before: str
    after: str


class SurvivorList:
    """What a text file lists: blocks of lines with a file, "- " and the line as it is, "+ " and the line as the mutant
    has it, and the reason, with empty lines between the blocks. A block that begins with "#" is a comment."""

    def __init__(self, path: Path) -> None:
        blocks = [block.strip().splitlines() for block in path.read_text(encoding="utf-8").split("\n\n")]
        entries = [_read_block(lines) for lines in blocks if lines and not lines[0].startswith("#")]
        self._reasons = dict(entries)

    def explains(self, mutant: Mutant) -> bool:
        """Whether the list has the mutant."""
        return _key(mutant) in self._reasons

    def without_mutant(self, mutants: list[Mutant]) -> list[Survivor]:
        """The entries for which there is none of the mutants: the code has changed."""
        keys = {_key(mutant) for mutant in mutants}
        return [survivor for survivor in self._reasons if survivor not in keys]


def _key(mutant: Mutant) -> Survivor:
    return Survivor(mutant.file, mutant.before, mutant.after)


def _read_block(lines: list[str]) -> tuple[Survivor, str]:
    if len(lines) < 4 or not lines[1].startswith("- ") or not lines[2].startswith("+ "):
        raise ValueError(f"not the description of a survivor with its reason: {lines}")
    return Survivor(lines[0], lines[1][2:], lines[2][2:]), " ".join(lines[3:])
