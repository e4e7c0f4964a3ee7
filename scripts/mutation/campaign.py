"""Tries mutants, several at once, and records the fate of each."""

import itertools
import shutil
from collections.abc import Iterable, Iterator
from concurrent.futures import ThreadPoolExecutor, as_completed
from dataclasses import dataclass
from enum import Enum
from pathlib import Path

from build import Build, Linked
from mutants import Mutant
from survivors import SurvivorList
from trial import DoesNotBuild, Failure, Trial


class Fate(Enum):
    """The fate of a mutant."""

    CAUGHT = "caught"
    TIMED_OUT = "timed out, caught"
    EXPLAINED = "survived, explained"
    SURVIVED = "SURVIVED"
    DOES_NOT_BUILD = "does not compile"


@dataclass(frozen=True)
class Result:
    """A mutant and its fate."""

    mutant: Mutant
    fate: Fate
    failure: Failure | None = None
    is_explained: bool = False  # as a survivor

    @property
    def text(self) -> str:
        """The fate in words."""
        by = f" by {self.failure.program} {self.failure.test}".rstrip() if self.failure else ""
        wrongly = ", although it is explained as a survivor" if self.is_explained and self.failure else ""
        return f"{self.fate.value}{by}{wrongly}"


class Campaign:
    """Tries many mutants with one build."""

    def __init__(
        self,
        build: Build,
        sources: Path,
        directory: Path,
        programs: Iterable[tuple[Linked, float]],
        known: SurvivorList,
    ) -> None:
        self._build = build
        self._sources = sources
        self._directory = directory
        self._programs = list(programs)
        self._known = known
        self._numbers = itertools.count()

    def results(self, mutants: list[Mutant], jobs: int) -> Iterator[Result]:
        """The results, each as soon as it is there."""
        pool = ThreadPoolExecutor(jobs)
        try:
            for future in as_completed([pool.submit(self._result_of, mutant) for mutant in mutants]):
                yield future.result()
        finally:
            pool.shutdown(cancel_futures=True)

    def _result_of(self, mutant: Mutant) -> Result:
        is_explained = self._known.explains(mutant)
        try:
            failure = self._try(mutant)
        except DoesNotBuild:
            return Result(mutant, Fate.DOES_NOT_BUILD, None, is_explained)
        if failure is None:
            return Result(mutant, Fate.EXPLAINED if is_explained else Fate.SURVIVED, None, is_explained)
        return Result(mutant, Fate.TIMED_OUT if failure.has_timed_out else Fate.CAUGHT, failure, is_explained)

    def _try(self, mutant: Mutant) -> Failure | None:
        directory = self._directory / f"mutant-{next(self._numbers)}"
        try:
            text = (self._sources / mutant.file).read_text(encoding="utf-8")
            trial = Trial(self._build, self._sources, directory, {mutant.file: mutant.edit.apply(text)})
            trial.link_libraries()
            return trial.first_failure(self._programs_for(mutant, trial))
        finally:
            shutil.rmtree(directory, ignore_errors=True)

    def _programs_for(self, mutant: Mutant, trial: Trial) -> Iterator[tuple[Linked, float]]:
        """The test programs that contain the mutant, with their time limits in seconds: those of its own layer first,
        then the fastest."""
        folder = f"tests/{mutant.file.split('/')[0]}/"
        for program, seconds in sorted(self._programs, key=lambda timed: (folder not in timed[0].path, timed[1])):
            if trial.concerns(program):
                yield program, 10 + 5 * seconds
