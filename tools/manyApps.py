#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Many applications at once, each tapped and equalized, in a private audio session.

The device is recorded: all play the same tone in step with the cycles, so one that is missing from a cycle shows as a
dip of its share. For so many nodes as the server's profiler can tell of (about thirty applications), it says as well
how often one of ours was late and what our callbacks took of a cycle.

    tools/manyApps.py PROGRAM [--apps 64] [--quantum 256] [--seconds 60]
"""

import argparse
import os
import pathlib
import re
import shutil
import sys
import time

import numpy

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

import signals  # noqa: E402
from audioSession import AudioSession, SessionError  # noqa: E402
from fadeloomProcess import FadeloomProcess, app, settings  # noqa: E402

TONE = 1000
GAINS = [3.0, 2.0, 1.0, -1.0, -2.0, 2.0, 1.0, 3.0, -3.0, 2.0]


def startApps(session, count, seconds):
    """Each a program of its own, so that each is an application; returns their names."""
    file = session.folder / "tone.wav"
    signals.write(file, signals.sine(TONE, 0.01, seconds))
    names = [f"app{number:02}" for number in range(count)]
    for name in names:
        program = session.folder / name
        shutil.copy(shutil.which("pw-cat"), program)
        session.spawn(name, [str(program), "--playback", str(file)])
        time.sleep(0.1)  # All at once would be a test of the session manager.
    return names


def profile(session):
    """What pw-top tells of every node now: name -> (errors, microseconds that it took in a cycle)."""
    # It draws on a terminal only, so it gets one.
    tmux = ["tmux", "-S", str(session.folder / "tmux"), "-f", "/dev/null"]
    session.run(*tmux, "new-session", "-d", "-x", "250", "-y", "400", "pw-top")
    try:
        time.sleep(3)
        text = session.run(*tmux, "capture-pane", "-p")
    finally:
        session.run(*tmux, "kill-server", check=False)
    nodes = {}
    for line in text.splitlines():
        # State, id, quantum, rate, waiting, busy, both as shares of the cycle, errors, (format,) name.
        match = re.match(r"\s*(?:\S\s+)?\d+\s+\d+\s+\d+\s+(\S+)\s+(\S+)\s+\S+\s+\S+\s+(\d+)\s.*?(\S+)\s*$", line)
        if match:
            nodes[match[4]] = (int(match[3]), microseconds(match[2]))
    return nodes


def microseconds(text):
    match = re.match(r"([\d.]+)(us|ms|s)?$", text)
    return float(match[1]) * {"us": 1, "ms": 1000, "s": 1e6, None: 1}[match[2]] if match else 0.0


def cpuSeconds(pid):
    """What a process has taken of the processors so far, in seconds."""
    fields = pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def measure(session, program, count, quantum, seconds):
    session.setQuantum(quantum)
    startup = 30 + count // 4
    wanted = {f"app{number:02}": app(volume=0.8, eqEnabled=True, eqGains=GAINS) for number in range(count)}
    with FadeloomProcess(session, program, settings(wanted)) as fadeloom:
        names = startApps(session, count, seconds + startup + 60)
        for name in names:
            fadeloom.waitFor(f"audio flowing through tap: {name}", seconds=startup + 30)
        time.sleep(2)

        def ours():
            return {name: node for name, node in profile(session).items() if "com.fadeloom.tap" in name}
        before = ours()
        recording = session.recordDevice("recording", "speakers")
        used, started = cpuSeconds(fadeloom.process.pid), time.monotonic()
        time.sleep(seconds)
        elapsed = time.monotonic() - started
        used = cpuSeconds(fadeloom.process.pid) - used
        session.endRecording("recording")
        after = ours()
        late = sum(after[name][0] - before[name][0] for name in after if name in before)
        busy = sum(node[1] for node in after.values())
        fadeloom.quit()

    cycle = quantum / signals.RATE * 1e6
    print(f"{count} applications with ten bands at {quantum} frames a cycle, for {elapsed:.0f} seconds:")
    lost = dips(signals.read(recording)[:, 0], count)
    print(f"  an application was missing from the device's sound in {lost} stretches of 5 milliseconds")
    if busy > 0:
        print(f"  our nodes were late {late} times")
        print(f"  our callbacks took {busy:.0f} of {cycle:.0f} microseconds of a cycle, {busy / cycle * 100:.1f} %")
    else:
        print("  the profiler tells nothing of so many nodes")
    print(f"  the whole program took {used / elapsed * 100:.1f} % of one processor")
    return 0 if late == 0 and lost == 0 else 1


def dips(recorded, count, window=240):
    """In how many windows the tone is weaker than usual by a quarter of one application's share."""
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
        with AudioSession() as session:
            return measure(session, pathlib.Path(arguments.program).resolve(), arguments.apps, arguments.quantum,
                           arguments.seconds)
    except SessionError as error:
        print(f"The session failed: {error}", file=sys.stderr)
        return 1


if __name__ == "__main__":
    sys.exit(main())
