# SPDX-License-Identifier: MIT
"""Completions of three shells for fadeloomctl, with a real program and a real player."""

import os
import pathlib
import pty
import select
import subprocess
import time

import pytest

from fadeloomProcess import app, settings
from listening import sineFile
from test_control import CTL

FOLDER = pathlib.Path(__file__).resolve().parents[2] / "packaging" / "linux" / "completions"

BASH = """
source "$1"
COMP_LINE=$2 COMP_POINT=${#2} COMP_WORDBREAKS=$' \\t\\n"\\'@><=;|&(:'
_fadeloomctl
printf '%s\\n' "${COMPREPLY[@]}"
"""


def environment(stage):
    return {**stage.session.environment, "PATH": f"{CTL.parent}:{os.environ['PATH']}", "TERM": "dumb", "LC_ALL": "C.UTF-8"}


def inBash(stage, line):
    done = subprocess.run(["bash", "-c", BASH, "bash", str(FOLDER / "fadeloomctl.bash"), line], capture_output=True,
                          text=True, timeout=20, env=environment(stage))
    assert done.stderr == ""
    return done.stdout.split("\n")[:-1]


def inFish(stage, line):
    done = subprocess.run(["fish", "--no-config", "-c", f"source {FOLDER}/fadeloomctl.fish; complete -C '{line}'"],
                          capture_output=True, text=True, timeout=20, env=environment(stage))
    return [candidate.split("\t")[0] for candidate in done.stdout.splitlines()]


def typedInZsh(stage, keys):
    """The contents of the line of an interactive zsh after these keys."""
    process, terminal = pty.fork()
    if process == 0:
        os.chdir(stage.folder)
        os.execve("/usr/bin/zsh", ["zsh", "-f", "-i"], environment(stage))
    seen = ""

    def read(until, seconds=20):
        nonlocal seen
        seen = ""
        end = time.monotonic() + seconds
        while until not in seen and time.monotonic() < end:
            if select.select([terminal], [], [], 0.1)[0]:
                seen += os.read(terminal, 4096).decode(errors="replace")
        assert until in seen, seen
        return seen
    setup = f"PS1=; fpath=({FOLDER} $fpath); autoload -Uz compinit; compinit -u -D; unsetopt zle_bracketed_paste\n"
    os.write(terminal, (setup + "print rea''dy\n").encode())
    read("ready\r\n")
    # The line is printed rather than run.
    os.write(terminal, b"bindkey '^X' print-it; print-it() { print -r \"[$BUFFER]\"; }; zle -N print-it; print go''es\n")
    read("goes\r\n")
    os.write(terminal, keys.encode() + b"\t")
    time.sleep(2)
    os.write(terminal, b"\x18")
    line = read("]\r").rsplit("[", 1)[1].split("]")[0]
    os.close(terminal)
    os.waitpid(process, 0)
    return line


@pytest.fixture(scope="module")
def playing(sharedStage):
    with sharedStage.fadeloom(settings({"pw-cat": app()}, userPresets=[{"name": "My Mix", "gains": [0.0] * 10}])) as fadeloom:
        sharedStage.play("pw-play", sineFile(sharedStage))
        sharedStage.waitForTap(fadeloom, "pw-cat")
        yield sharedStage


@pytest.mark.parametrize("complete", [inBash, inFish])
@pytest.mark.parametrize("line, candidates", [
    ("fadeloomctl vol", ["volume"]), ("fadeloomctl mute pw-cat t", ["toggle"]), ("fadeloomctl volume pw", ["pw-cat"]),
    ("fadeloomctl output pw-cat head", ["headphones"]), ("fadeloomctl --json watch le", ["levels"]),
    ("fadeloomctl --q", ["--quiet"]), ("fadeloomctl wat", ["watch"]), ("fadeloomctl louder x", []),
])
def test_completions(playing, complete, line, candidates):
    assert [word for word in complete(playing, line) if word] == candidates


def test_allAppsAreOfferedBehindABlank(playing):
    assert "pw-cat" in inBash(playing, "fadeloomctl volume ")
    assert "pw-cat" in inFish(playing, "fadeloomctl volume ")


def test_bashGetsProperlyQuotedWords(playing):
    assert inBash(playing, "fadeloomctl delete-preset My") == ["My\\ Mix"]
    assert inBash(playing, "fadeloomctl volume @pl") == ["playing"]  # The rest is on the line already.


@pytest.mark.parametrize("keys, line", [
    ("fadeloomctl volu", "fadeloomctl volume "), ("fadeloomctl volume pw", "fadeloomctl volume pw-cat "),
    ("fadeloomctl output pw-cat hea", "fadeloomctl output pw-cat headphones "),
    ("fadeloomctl delete-preset My", "fadeloomctl delete-preset My\\ Mix "),
])
def test_zshCompletesALine(playing, keys, line):
    assert typedInZsh(playing, keys) == line
