"""Runs programs that may do anything: run forever, take all memory, write endlessly or leave processes behind."""

import contextlib
import os
import signal
import subprocess
import threading
from dataclasses import dataclass
from pathlib import Path
from typing import IO

_MEMORY = 4 << 30
_KEPT = 100_000  # bytes of the output
_LEFT_BEHIND_SECONDS = 10


@dataclass(frozen=True)
class Outcome:
    """How a program ended."""

    status: int
    has_timed_out: bool
    output: str  # the end of its output, both streams together

    @property
    def is_success(self) -> bool:
        """Whether the program ended by itself with status 0."""
        return self.status == 0 and not self.has_timed_out


def run_limited(
    command: list[str], directory: Path, seconds: float, environment: dict[str, str] | None = None
) -> Outcome:
    """Runs a program without input, and kills it and all processes it has started when it has not ended in time.
    `seconds` is processor time, which other programs cannot use up; the wall-clock time may be three times that."""
    # The soft limit ends a program with SIGXCPU; the hard one kills it if it ignores that.
    limits = [f"--cpu={int(seconds) + 1}:{int(seconds) + 5}", f"--as={_MEMORY}", "--core=0"]
    process = subprocess.Popen(
        ["prlimit", *limits, "--", *command],
        cwd=directory,
        env=environment,
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        start_new_session=True,
    )
    assert process.stdout is not None
    output = _OutputEnd(process.stdout)
    is_late = not _ends_within(process, 3 * seconds)
    status = process.returncode
    return Outcome(status, is_late or status == -signal.SIGXCPU, output.text())


class _OutputEnd:
    """Reads a program's output and keeps the end of it."""

    def __init__(self, stream: IO[bytes]) -> None:
        self._stream = stream
        self._end = b""
        self._thread = threading.Thread(target=self._read, daemon=True)
        self._thread.start()

    def text(self) -> str:
        """The output once the program has ended. A process that it has started may still have its output open."""
        self._thread.join(_LEFT_BEHIND_SECONDS)
        return self._end.decode("utf-8", "replace")

    def _read(self) -> None:
        with self._stream:
            while chunk := os.read(self._stream.fileno(), 65536):
                self._end = (self._end + chunk)[-_KEPT:]


def _ends_within(process: subprocess.Popen[bytes], seconds: float) -> bool:
    """Waits for the process; whatever happens, none of its group is left afterwards."""
    try:
        process.wait(seconds)
        return True
    except subprocess.TimeoutExpired:
        return False
    finally:
        with contextlib.suppress(ProcessLookupError):
            os.killpg(process.pid, signal.SIGKILL)
        process.wait()
