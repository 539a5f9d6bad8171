# SPDX-License-Identifier: MIT
"""Another program controls the running one: replies, exit statuses, and audible effects."""

import os
import pathlib
import resource
import subprocess
import time

import pytest

from fadeloomProcess import app, settings
from listening import sineFile, waitForSound

CTL = pathlib.Path(os.environ["FADELOOM"]).parent / "fadeloomctl"


def ctl(stage, *words, text="", wrapper=()):
    """The exit status, standard output and standard error of a command."""
    done = subprocess.run([*wrapper, str(CTL), *words], input=text, capture_output=True, text=True, timeout=20,
                          env=stage.session.environment)
    return done.returncode, done.stdout, done.stderr


def test_noRunningFadeloomHasADistinctStatus(stage):
    assert ctl(stage, "volume", "pw-cat") == (4, "", "fadeloomctl: Fadeloom is not running\n")


def test_aCommandIsHeardAndRead(stage):
    with stage.fadeloom(settings({"pw-cat": app(volume=0.5)})) as fadeloom:
        stage.play("pw-play", sineFile(stage))
        stage.waitForTap(fadeloom, "pw-cat")
        waitForSound(stage, "speakers", 0.25)

        assert ctl(stage, "volume", "pw-cat") == (0, "0.5\n", "")
        assert ctl(stage, "volume", "pw-cat", "-25%") == (0, "volume pw-cat 0.25\n", "")
        waitForSound(stage, "speakers", 0.125)
        assert ctl(stage, "--quiet", "mute", "@playing", "toggle") == (0, "", "")
        waitForSound(stage, "speakers", 0.0)
        assert ctl(stage, "status") == (0, "pw-cat muted\n", "")
        assert ctl(stage, "-", text="mute pw-cat off\nvolume pw-cat 1\n")[0] == 0
        waitForSound(stage, "speakers", 0.5)


@pytest.mark.parametrize("words, status", [
    (["louder"], 2), (["volume"], 2), (["--loud", "volume"], 2), ([], 2), (["volume", "pw-cat", "loud"], 2),
    (["volume", "nobody", "0.5"], 5), (["default", "nowhere"], 5), (["limit", "3"], 1), (["open"], 1),
    (["volume", "a\nb"], 2), (["x" * 10000], 2),
])
def test_theExitStatusIdentifiesTheError(stage, words, status):
    with stage.fadeloom(settings({"pw-cat": app()})) as fadeloom:
        fadeloom.waitFor("default speakers")

        answer = ctl(stage, *words)

        assert answer[:2] == (status, "")
        assert answer[2]
        assert fadeloom.command("volume pw-cat 0.5").startswith("ok")


def test_aLineThatIsTooLongIsRefused(stage):
    with stage.fadeloom(settings({"pw-cat": app()})) as fadeloom:
        fadeloom.waitFor("default speakers")

        answer = ctl(stage, "-", text="volume pw-cat " + "5" * 1_000_000 + "\n")

        assert answer == (2, "", "fadeloomctl: the line is too long\n")
        assert fadeloom.command("volume pw-cat 0.5").startswith("ok")


def sandboxOf(stage):
    """The command that starts a program in a sandbox like Flatpak's."""
    information = stage.folder / "flatpak-info"
    information.write_text("[Application]\nname=org.example.Widget\n")
    root = stage.folder / "root"  # A private root: a file in the real one would sandbox every program.
    root.mkdir(exist_ok=True)
    sandbox = ["bwrap", "--bind", str(root), "/"]
    for folder in sorted(pathlib.Path("/").iterdir()):
        if folder.is_dir() and folder.name not in ("proc", "dev"):
            sandbox += ["--dev-bind", str(folder), str(folder)]
    return [*sandbox, "--proc", "/proc", "--dev", "/dev", "--ro-bind", str(information), "/.flatpak-info"]


def test_aSandboxedProgramMayNotDoEverything(stage):
    sandbox = sandboxOf(stage)
    with stage.fadeloom(settings({"pw-cat": app()})) as fadeloom:
        fadeloom.waitFor("default speakers")

        assert ctl(stage, "volume", "pw-cat", "0.5", wrapper=sandbox)[0] == 0
        status, _, sentence = ctl(stage, "quit", wrapper=sandbox)
        assert (status, sentence) == (6, "fadeloomctl: quit is not for programs in a sandbox\n")
        assert ctl(stage, "record", "pw-cat", "start", wrapper=sandbox)[0] == 6
        assert fadeloom.command("volume pw-cat 1").startswith("ok")


def test_aThousandStepsASecondAreNoTrouble(stage):
    with stage.fadeloom(settings({"pw-cat": app()})) as fadeloom:
        stage.play("pw-play", sineFile(stage))
        stage.waitForTap(fadeloom, "pw-cat")
        lines = "volume pw-cat -1%\nvolume pw-cat +1%\n" * 1500
        begin = time.monotonic()

        assert ctl(stage, "--quiet", "-", text=lines)[0] == 0

        assert time.monotonic() - begin < 3
        assert ctl(stage, "volume", "pw-cat") == (0, "1\n", "")
        assert fadeloom.command("list").startswith("ok list 1 apps")


def test_aRequestCostsNextToNothing(stage):
    """A request may take 1.5 ms of CPU time, for key repeat; the minimum of several measurements."""
    with stage.fadeloom(settings({"pw-cat": app()})) as fadeloom:
        fadeloom.waitFor("default speakers")
        costs = []
        for _ in range(10):
            before = resource.getrusage(resource.RUSAGE_CHILDREN)
            assert ctl(stage, "volume", "pw-cat")[0] == 0
            after = resource.getrusage(resource.RUSAGE_CHILDREN)
            costs.append(after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime)
    print("processor time of one request, in ms:", [round(cost * 1000, 2) for cost in costs])
    assert min(costs) < 0.004  # Includes the fork of this interpreter.
