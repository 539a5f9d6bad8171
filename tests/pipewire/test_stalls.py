# SPDX-License-Identifier: MIT
"""A stopped program silences nobody: its applications keep playing, and are captured again once it continues.

The signal rises steadily, so that every sample identifies its position in the file; its level identifies the path.
"""

import ctypes
import os
import pathlib
import signal
import statistics
import time

import signals
from audioSession import waitUntil
from conftest import PLAYERS
from fadeloomProcess import app, settings
from test_takeover import QUARTER, heard, rampFile

STOPS = 3  # The median counts: the machine may be busy with other work.
HANDOVER = 0.050  # Seconds of silence after a stop.
NOTICED = 0.500  # Seconds of silence after the data thread hung.
RETAKE = 0.300  # Seconds from continuing until the audio runs through us again.


def stalls(stretches):
    """For each time that the audio left us and came back: the silence before it was audible directly, in seconds, and
    the time until it was ours again, counted from the moment it had left us."""
    ways = [stretch for stretch in stretches if stretch[0] in ("direct", "tapped")]
    merged = []
    for kind, first, frames, *_ in ways:
        if merged and merged[-1][0] == kind:
            merged[-1][2] = first + frames
        else:
            merged.append([kind, first, first + frames])
    found = []
    for before, between, after in zip(merged, merged[1:], merged[2:]):
        if (before[0], between[0], after[0]) == ("tapped", "direct", "tapped"):
            found.append(((between[1] - before[2]) / signals.RATE, (after[1] - before[2]) / signals.RATE))
    return found


def stopFor(process, seconds):
    """Stops a process; returns for how long it was stopped."""
    begin = time.monotonic()
    os.kill(process, signal.SIGSTOP)
    time.sleep(seconds)
    os.kill(process, signal.SIGCONT)
    return time.monotonic() - begin


def test_aStoppedProgramLetsItsAppsPlayOn(stage):
    bundleID = PLAYERS["pw-play"][0]
    stage.session.setQuantum(256)
    stage.play("pw-play", rampFile(stage, 20), "player")
    recording = stage.session.recordDevice("recording", "speakers")

    with stage.fadeloom(settings({bundleID: app(volume=QUARTER)})) as fadeloom:
        number = stage.waitForTap(fadeloom, bundleID)
        stopped = []
        for _ in range(STOPS):
            time.sleep(1.0)
            stopped.append(stopFor(fadeloom.programID(), 1.0))
            number = stage.waitForTap(fadeloom, bundleID, after=number)
        time.sleep(0.5)
    stage.session.endRecording("recording")

    found = stalls(heard(recording))
    print("silent, retaken after going on, in ms:",
          [(round(silent * 1000), round((taken - stop) * 1000)) for (silent, taken), stop in zip(found, stopped)])
    assert len(found) == STOPS
    assert statistics.median(silent for silent, _ in found) < HANDOVER
    assert statistics.median(taken - stop for (_, taken), stop in zip(found, stopped)) < RETAKE


class FrozenThread:
    """Suspends a thread of another process in this context; only the tracer is notified."""

    SEIZE, INTERRUPT, DETACH = 0x4206, 0x4207, 17
    WAIT_FOR_ALL = 0x40000000  # Includes threads.

    def __init__(self, thread):
        self.thread = thread
        self.libc = ctypes.CDLL(None, use_errno=True)

    def ptrace(self, request):
        if self.libc.ptrace(request, self.thread, None, None) != 0:
            raise OSError(ctypes.get_errno(), f"ptrace {request:#x}")

    def __enter__(self):
        self.ptrace(self.SEIZE)
        self.ptrace(self.INTERRUPT)
        os.waitpid(self.thread, self.WAIT_FOR_ALL)
        return self

    def __exit__(self, *_):
        self.ptrace(self.DETACH)


def dataThread(process):
    """The thread that waits for the server's events and is not the graph thread: not every version names it."""
    def search():
        for task in pathlib.Path(f"/proc/{process}/task").iterdir():
            if "epoll" in (task / "wchan").read_text() and "graph" not in (task / "comm").read_text():
                return int(task.name)
        return None
    return waitUntil(search, "the data thread")


def test_aHungDataThreadLetsTheAppsPlayOn(stage):
    bundleID = PLAYERS["pw-play"][0]
    stage.session.setQuantum(256)
    stage.play("pw-play", rampFile(stage, 20), "player")
    recording = stage.session.recordDevice("recording", "speakers")

    with stage.fadeloom(settings({bundleID: app(volume=QUARTER)})) as fadeloom:
        number = stage.waitForTap(fadeloom, bundleID)
        for _ in range(STOPS):
            time.sleep(1.0)
            with FrozenThread(dataThread(fadeloom.programID())):
                time.sleep(2.0)
            number = stage.waitForTap(fadeloom, bundleID, after=number)
        time.sleep(0.5)
        assert "log-error the audio thread stands still; applications play on without us" in fadeloom.text()
    stage.session.endRecording("recording")

    found = stalls(heard(recording))
    print("silent, in ms:", [round(silent * 1000) for silent, _ in found])
    assert len(found) == STOPS
    assert statistics.median(silent for silent, _ in found) < NOTICED


def test_aStoppedProgramLeavesNothingInTheGraph(stage):
    bundleID = PLAYERS["pw-play"][0]
    stage.play("pw-play", rampFile(stage, 20), "player")

    with stage.fadeloom(settings({bundleID: app(volume=QUARTER)})) as fadeloom:
        number = stage.waitForTap(fadeloom, bundleID)
        os.kill(fadeloom.programID(), signal.SIGSTOP)
        waitUntil(lambda: not any("com.fadeloom" in node["props"].get("node.name", "")
                                  for node in stage.session.nodes()), "our nodes to go")
        os.kill(fadeloom.programID(), signal.SIGCONT)
        stage.waitForTap(fadeloom, bundleID, after=number)


def test_theGuardianSleepsAndIsLean(stage):
    with stage.fadeloom() as fadeloom:
        fadeloom.waitFor("default speakers")
        guardian = fadeloom.process.pid

        def wakeups():
            return int(next(line.split()[1] for line in open(f"/proc/{guardian}/status")
                            if line.startswith("voluntary_ctxt_switches")))
        before = wakeups()
        time.sleep(2)

        assert wakeups() == before
        memory = {line.split(":")[0]: int(line.split()[1]) for line in open(f"/proc/{guardian}/smaps_rollup")
                  if "kB" in line}
        assert memory["Private_Dirty"] < 1024  # KiB; the rest is the program's file, which both map.
        assert os.listdir(f"/proc/{guardian}/fd") == ["0", "1", "2"]
        assert len(os.listdir(f"/proc/{guardian}/task")) == 1


def test_killingTheGuardianKillsTheProgram(stage):
    with stage.fadeloom() as fadeloom:
        fadeloom.waitFor("default speakers")
        program = fadeloom.programID()
        stage.session.end("fadeloom", signal.SIGKILL)
        waitUntil(lambda: not os.path.exists(f"/proc/{program}")
                  or open(f"/proc/{program}/stat").read().rsplit(")", 1)[1].split()[0] == "Z", "the program to go")
