"""Mutation testing: changes the product in one place at a time and counts the changes that the tests catch."""

import argparse
import random
import shutil
import signal
import sys
import tempfile
import time
from collections import Counter
from pathlib import Path

from build import Build
from campaign import Campaign, Fate, Result
from mutants import Mutant, find_mutants
from selfcheck import SelfCheckError, measure_programs
from survivors import SurvivorList

_ROOT = Path(__file__).resolve().parents[2]
_KNOWN_SURVIVORS = Path(__file__).with_name("survivors.txt")


def main() -> int:
    """Returns the exit status."""
    options = _options()
    # Turn the signal into an exit, so that the temporary directory is removed.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    with tempfile.TemporaryDirectory(prefix="vif-mutants-") as name:
        directory = Path(name)
        directory.chmod(0o755)  # some tests drop root's privileges
        # A copy, so that the sources may be edited meanwhile.
        shutil.copytree(_ROOT, directory / "sources", ignore=shutil.ignore_patterns(".git", "build"), symlinks=True)
        return 0 if _run(directory, options) else 1


def _run(directory: Path, options: argparse.Namespace) -> bool:
    mutants = dict(enumerate(find_mutants(directory / "sources"), 1))
    drawn = _drawn(mutants, options)
    if options.list:
        for number, mutant in drawn.items():
            print(f"{_title(number, mutant)}: {mutant.after}")
        return True
    known = SurvivorList(_KNOWN_SURVIVORS)
    is_up_to_date = _explains_mutants_only(known, list(mutants.values()))
    results = _try_all(drawn, known, directory, options)
    print(f"{len(mutants)} possible, {len(drawn)} drawn")
    return _summarize(results, options.least) and is_up_to_date


def _options() -> argparse.Namespace:
    parser = argparse.ArgumentParser(prog="scripts/mutate.sh", description=__doc__)
    parser.add_argument("--build", type=Path, default=_ROOT / "build/release", help="build directory with the tests")
    parser.add_argument("--count", type=int, default=36, help="how many mutants to draw (36)")
    parser.add_argument("--seed", type=int, default=1, help="seed of the drawing (1)")
    parser.add_argument("--only", action="append", default=[], metavar="FILE[:LINE]", help="try all mutants there")
    parser.add_argument("--jobs", type=int, default=2, help="how many to try at once (2)")
    parser.add_argument("--least", type=float, default=95, help="least percentage of unexplained mutants to catch (95)")
    parser.add_argument("--list", action="store_true", help="only list the mutants")
    return parser.parse_args()


def _drawn(mutants: dict[int, Mutant], options: argparse.Namespace) -> dict[int, Mutant]:
    if options.only:
        places = set(options.only)
        return {n: mutant for n, mutant in mutants.items() if {mutant.file, f"{mutant.file}:{mutant.line}"} & places}
    numbers = random.Random(options.seed).sample(sorted(mutants), min(options.count, len(mutants)))
    return {number: mutants[number] for number in sorted(numbers)}


def _title(number: int, mutant: Mutant) -> str:
    return f"{number} {mutant.file}:{mutant.line}: {mutant.change}"


def _explains_mutants_only(known: SurvivorList, mutants: list[Mutant]) -> bool:
    outdated = known.without_mutant(mutants)
    for survivor in outdated:
        print(f"{_KNOWN_SURVIVORS.name} explains a mutant that no longer exists: {survivor.file}: {survivor.before}")
    return not outdated


def _try_all(
    drawn: dict[int, Mutant], known: SurvivorList, directory: Path, options: argparse.Namespace
) -> list[Result]:
    build = Build(options.build.resolve(), _ROOT)
    sources = directory / "sources"
    begin = time.monotonic()
    try:
        programs = measure_programs(build, sources, directory, options.jobs)
    except SelfCheckError as error:
        sys.exit(f"mutate.sh: {error}")
    taken = time.monotonic() - begin
    print(f"{len(programs)} test programs pass, and fail with a planted error, {taken:.0f} s", flush=True)
    numbers = {id(mutant): number for number, mutant in drawn.items()}
    results = []
    campaign = Campaign(build, sources, directory, programs, known)
    for result in campaign.results(list(drawn.values()), options.jobs):
        print(f"{_title(numbers[id(result.mutant)], result.mutant)}: {result.text}", flush=True)
        results.append(result)
    print(f"{time.monotonic() - begin:.0f} s")
    return results


def _summarize(results: list[Result], least: float) -> bool:
    """Prints the figures. Returns false when too few mutants are caught, or an explained one is."""
    counts = Counter(result.fate for result in results)
    compiled = len(results) - counts[Fate.DOES_NOT_BUILD]
    caught = counts[Fate.CAUGHT] + counts[Fate.TIMED_OUT]
    for result in results:
        if result.fate is Fate.SURVIVED:
            print(f"{result.mutant.file}:{result.mutant.line} survived")
            print(f"- {result.mutant.before}\n+ {result.mutant.after}")
    print(f"{compiled} compile, {caught} are caught ({counts[Fate.TIMED_OUT]} of them by the time limit), ", end="")
    print(f"{counts[Fate.EXPLAINED]} survive and are explained, {counts[Fate.SURVIVED]} survive without an explanation")
    percent = 100 * caught / compiled if compiled else 100
    percent_of_others = 100 * caught / (compiled - counts[Fate.EXPLAINED]) if compiled > counts[Fate.EXPLAINED] else 100
    print(f"{percent:.1f} % of those that compile are caught, {percent_of_others:.1f} % of those not explained")
    is_wrongly_explained = any(result.is_explained and result.failure for result in results)
    return percent_of_others >= least and not is_wrongly_explained


if __name__ == "__main__":
    sys.exit(main())
