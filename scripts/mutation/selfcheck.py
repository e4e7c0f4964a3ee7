"""Checks that the tests pass without a mutant and fail with an obvious one, when built and run as mutants are."""

import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from build import Build, Linked
from mutants import LAYERS
from trial import Trial

_SECONDS = 300
# Aborts every program that loads it.
_PLANTED = "\n#include <cstdlib>\n[[maybe_unused]] static const bool isPlanted = (std::abort(), true);\n"


class SelfCheckError(Exception):
    """The figures would mean nothing."""


def measure_programs(build: Build, sources: Path, directory: Path, jobs: int) -> list[tuple[Linked, float]]:
    """Runs the test programs against the unchanged product, with a source of every layer compiled as mutants are.

    Returns the programs that use the product, with the seconds that each took.

    Raises SelfCheckError when one of them fails, or passes although a planted source aborts it.
    """
    files = [sorted((sources / layer).glob("*.cpp"))[0] for layer in LAYERS]
    texts = {str(file.relative_to(sources)): file.read_text(encoding="utf-8") for file in files}
    times = _times(Trial(build, sources, directory / "unchanged", texts), build.programs, jobs)
    name, text = next(iter(texts.items()))
    _require_failures(Trial(build, sources, directory / "planted", {name: text + _PLANTED}), list(times), jobs)
    return list(times.items())


def _times(trial: Trial, programs: list[Linked], jobs: int) -> dict[Linked, float]:
    def measure(program: Linked) -> float:
        begin = time.monotonic()
        outcome = trial.run(program, _SECONDS)
        if not outcome.is_success:
            raise SelfCheckError(f"{program.name} fails with the unchanged product:\n{outcome.output}")
        return time.monotonic() - begin

    trial.link_libraries()
    concerned = [program for program in programs if trial.concerns(program)]
    with ThreadPoolExecutor(jobs) as pool:
        return dict(zip(concerned, pool.map(measure, concerned), strict=True))


def _require_failures(trial: Trial, programs: list[Linked], jobs: int) -> None:
    trial.link_libraries()
    with ThreadPoolExecutor(jobs) as pool:
        outcomes = list(pool.map(lambda program: trial.run(program, _SECONDS), programs))
    for program, outcome in zip(programs, outcomes, strict=True):
        if outcome.is_success:
            raise SelfCheckError(f"{program.name} passes with a product that aborts every program")
