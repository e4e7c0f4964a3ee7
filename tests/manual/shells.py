"""What bash, zsh and fish complete, asked of the shells themselves."""

import os
import pty
import select
import shlex
import subprocess
import time
from pathlib import Path

SCRIPTS = {
    "bash": Path("share/bash-completion/completions/vif"),
    "zsh": Path("share/zsh/site-functions/_vif"),
    "fish": Path("share/fish/vendor_completions.d/vif.fish"),
}

_END = "END-OF-WORDS"
_SECONDS = 60


class Terminal:
    """An interactive shell in a terminal of its own."""

    def __init__(self, command, environment, directory):
        self._process, self._terminal = pty.fork()
        if self._process == 0:
            os.chdir(directory)
            os.execvpe(command[0], command, environment)
        self._read = ""

    def __enter__(self):
        return self

    def __exit__(self, *_):
        os.close(self._terminal)
        os.waitpid(self._process, 0)

    def type(self, keys):
        os.write(self._terminal, keys.encode())

    def read_until(self, text):
        """All that the shell has printed up to a text."""
        end = time.monotonic() + _SECONDS
        while text not in self._read:
            if not select.select([self._terminal], [], [], max(0.0, end - time.monotonic()))[0]:
                raise TimeoutError(f"no {text!r} in {self._read!r}")
            self._read += os.read(self._terminal, 65536).decode(errors="replace")
        before, self._read = self._read.split(text, 1)
        return before


def _ask(terminal, line, insert_all, serial):
    """Has the shell insert everything that could follow, and prints the words of the line, which it does not run."""
    # The markers are split, because the terminal also shows what is typed.
    terminal.type(f"{line}{insert_all}\x01printf '%s\\n' BEGIN''-{serial} \x05 {_END[:3]}''{_END[3:]}-{serial}\r")
    terminal.read_until(f"BEGIN-{serial}\r\n")
    words = terminal.read_until(f"{_END}-{serial}\r\n").replace("\r", "").splitlines()
    return words[len(shlex.split(line)) - (0 if line.endswith(" ") else 1):]


def _complete_in_bash(lines, environment, directory):
    with Terminal(["bash", "--noprofile", "--norc", "-i"], environment, directory) as terminal:
        terminal.type("bind 'set enable-bracketed-paste off'\r")
        terminal.type("source /usr/share/bash-completion/bash_completion; printf 'REA''DY\\n'\r")
        terminal.read_until("READY")
        return [_ask(terminal, line, "\x1b*", serial) for serial, line in enumerate(lines)]


def _complete_in_zsh(lines, environment, directory):
    setup = (
        "bindkey -e; unsetopt prompt_cr prompt_sp; setopt extended_glob",
        f"fpath=({environment['PREFIX']}/{SCRIPTS['zsh'].parent} $fpath)",
        "autoload -Uz compinit; compinit -u -D",
        "zle -C all-matches complete-word _generic; bindkey '^X^A' all-matches",
        "zstyle ':completion:all-matches::::' completer _all_matches _complete",
        "zstyle ':completion:all-matches:*' insert true",
        # Otherwise zsh offers all files where none has one of the extensions asked for.
        "zstyle ':completion:*' file-patterns '%p:globbed-files *(-/):directories'",
        "printf 'REA''DY\\n'",
    )
    with Terminal(["zsh", "-f", "-i"], environment, directory) as terminal:
        for line in setup:
            terminal.type(line + "\r")
        terminal.read_until("READY")
        return [_ask(terminal, line, "\x18\x01", serial) for serial, line in enumerate(lines)]


def _complete_in_fish(lines, environment, directory):
    program = "for line in $argv; complete -C $line; echo " + _END + "; end"
    printed = subprocess.run(["fish", "-c", program, *lines], env=environment, cwd=directory, check=True,
                             capture_output=True, text=True, timeout=_SECONDS).stdout
    return [[word.split("\t")[0] for word in part.splitlines() if word] for part in printed.split(_END)[:-1]]


_SHELLS = {"bash": _complete_in_bash, "zsh": _complete_in_zsh, "fish": _complete_in_fish}


def complete(shell, lines, prefix, home, directory):
    """For each line, what can stand in place of its last word, which may be empty.

    The shell finds the completion script below the prefix by itself."""
    environment = {
        "HOME": str(home),
        "INPUTRC": os.devnull,
        "LC_ALL": "C.UTF-8",
        "PATH": f"{prefix}/bin:/usr/bin:/bin",
        "PREFIX": str(prefix),
        "TERM": "dumb",
        "XDG_CONFIG_HOME": str(home),
        "XDG_DATA_DIRS": f"{prefix}/share:/usr/share",
        "XDG_DATA_HOME": str(home),
    }
    return _SHELLS[shell](lines, environment, directory)
