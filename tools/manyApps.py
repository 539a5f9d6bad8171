#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Many applications at once, each tapped and equalized, in a private audio session.

The server logs nodes that were late for a cycle. The device is recorded as well: all applications play the same tone in
phase with the cycles, so one that misses a cycle shows as a dip by its share.

    tools/manyApps.py PROGRAM [--apps 64] [--quantum 256] [--seconds 60]
"""

import argparse
import contextlib
import os
import pathlib
import re
import shutil
import sys
import threading
import time

import numpy

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

import signals  # noqa: E402
from audioSession import AudioSession, SessionError  # noqa: E402
from fadeloomProcess import FadeloomProcess, app, settings  # noqa: E402
from processUse import cpuOfThreads  # noqa: E402

TONE = 750  # Its period divides every cycle, so that all players are in phase whenever they started.
GAINS = [3.0, 2.0, 1.0, -1.0, -2.0, 2.0, 1.0, 3.0, -3.0, 2.0]


class Stalls:
    """Measures on each processor, at a real-time priority above all audio, for how long it was not scheduled."""

    def __init__(self):
        self.longest = dict.fromkeys(os.sched_getaffinity(0), 0.0)  # Seconds.
        self.isEnding = False
        self.threads = [threading.Thread(target=self._watch, args=(processor,)) for processor in self.longest]
        for thread in self.threads:
            thread.start()

    def _watch(self, processor):
        os.sched_setaffinity(0, {processor})
        with contextlib.suppress(PermissionError):
            os.sched_setscheduler(0, os.SCHED_FIFO, os.sched_param(95))
        while not self.isEnding:
            before = time.monotonic()
            time.sleep(0.001)
            self.longest[processor] = max(self.longest[processor], time.monotonic() - before - 0.001)

    def end(self):
        """The longest time without the processor that any of them observed, in seconds."""
        self.isEnding = True
        for thread in self.threads:
            thread.join()
        return max(self.longest.values())


def startApps(session, count, seconds):
    """Starts the players, each a separate program and thus a separate application; returns their names."""
    file = session.folder / "tone.wav"
    signals.write(file, signals.sine(TONE, 0.01, seconds))
    names = [f"app{number:02}" for number in range(count)]
    for name in names:
        program = session.folder / name
        shutil.copy(shutil.which("pw-cat"), program)
        session.spawn(name, [str(program), "--playback", str(file)])
        time.sleep(0.1)  # Starting all at once would test the session manager.
    return names


def lateNodes(session):
    """The nodes that missed a cycle so far, by name. After each report, the server suppresses others for two
    seconds."""
    return re.findall(r"\((\S+)-\d+\) client too slow", (session.folder / "pipewire.log").read_text())


def measure(session, program, count, quantum, seconds):
    session.setQuantum(quantum)
    startup = 30 + count // 4
    wanted = {f"app{number:02}": app(volume=0.8, eqEnabled=True, eqGains=GAINS) for number in range(count)}
    with FadeloomProcess(session, program, settings(wanted)) as fadeloom:
        names = startApps(session, count, seconds + startup + 60)
        for name in names:
            fadeloom.waitFor(f"audio flowing through tap: {name}", seconds=startup + 30)
        time.sleep(2)
        late = len(lateNodes(session))
        stalls = Stalls()
        recording = session.recordDevice("recording", "speakers")
        before, started = cpuOfThreads(fadeloom.programID()), time.monotonic()
        time.sleep(seconds)
        elapsed = time.monotonic() - started
        used = {thread: cpu - before.get(thread, 0) for thread, cpu in cpuOfThreads(fadeloom.programID()).items()}
        session.endRecording("recording")
        stalled = stalls.end()
        late = lateNodes(session)[late:]
        fadeloom.quit()

    lost = dips(signals.read(recording)[:, 0], count)
    ours = [name for name in late if "com.fadeloom.tap" in name]
    print(f"{count} applications with ten bands at {quantum} frames per cycle, for {elapsed:.0f} seconds:")
    print(f"  our nodes that missed a cycle: {len(ours)}; others: {len(late) - len(ours)}")
    print(f"  a cycle has {quantum / signals.RATE * 1e3:.1f} ms; the machine scheduled nobody for up to {stalled * 1e3:.1f} ms")
    print(f"  an application was missing from the device's sound in {lost} stretches of 256 frames")
    print(f"  our callbacks, including wakeups, took {max(used.values()) / elapsed * 100:.1f} % of the cycles")
    print(f"  the whole program took {sum(used.values()) / elapsed * 100:.1f} % of one CPU")
    return 1 if ours else 0  # Without misses of ours, any dips come from the players.


def dips(recorded, count, window=256):
    """The number of blocks of this length in which the tone is weaker than usual by a quarter of one application's
    share."""
    sounding = recorded[numpy.flatnonzero(recorded)[0] + signals.RATE // 4:-signals.RATE // 4]
    frames = sounding[:len(sounding) // window * window].reshape(-1, window)
    carrier = numpy.exp(-2j * numpy.pi * TONE * numpy.arange(window) / signals.RATE)
    levels = 2 * numpy.abs((frames * carrier).mean(axis=1))
    return int((levels < numpy.median(levels) * (1 - 0.25 / count)).sum())


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program")
    parser.add_argument("--apps", type=int, default=64)
    parser.add_argument("--quantum", type=int, default=256)
    parser.add_argument("--seconds", type=int, default=60)
    arguments = parser.parse_args()
    try:
        with AudioSession(serverLog="pw.node:3") as session:
            return measure(session, pathlib.Path(arguments.program).resolve(), arguments.apps, arguments.quantum,
                           arguments.seconds)
    except SessionError as error:
        print(f"The session failed: {error}", file=sys.stderr)
        return 1


if __name__ == "__main__":
    sys.exit(main())
