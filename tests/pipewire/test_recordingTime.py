# SPDX-License-Identifier: MIT
"""Recordings are as long as the elapsed time, across pauses and on several devices."""

import json
import shlex
import time

import numpy
import pytest

import signals
from audioSession import AudioSession
from conftest import Stage
from fadeloomProcess import app, settings
from test_recording import start, stop
from test_takeover import sendToPlayer


def playWithPauses(stage, name, seed):
    """Plays noise in a player that can pause; returns the function that pauses or resumes it."""
    file = stage.folder / f"{name}.wav"
    signals.write(file, signals.noise(0.5, 60, seed=seed), signals.RATE)
    socket = stage.folder / f"{name}.socket"
    stage.session.spawn(name, ["mpv", "--no-config", "--really-quiet", "--ao=pipewire",
                               f"--input-ipc-server={socket}", str(file)])
    return lambda isPaused: sendToPlayer(
        stage, socket, json.dumps({"command": ["set_property", "pause", isPaused]}))


def runsOfSound(recorded, shortest=0.1):
    """Begin and end, in seconds, of each non-silent segment; silence shorter than `shortest` seconds is ignored."""
    sounding = numpy.flatnonzero(recorded.any(axis=1))
    ends = numpy.flatnonzero(numpy.diff(sounding) > shortest * signals.RATE)
    firsts = numpy.concatenate(([0], ends + 1))
    lasts = numpy.concatenate((ends, [len(sounding) - 1]))
    return [(sounding[first] / signals.RATE, (sounding[last] + 1) / signals.RATE)
            for first, last in zip(firsts, lasts)]


@pytest.mark.parametrize("suspendAfter", [0, 1], ids=["device runs on", "device is suspended"])
def test_aRecordingIsAsLongAsTheClockSaysThroughPauses(suspendAfter):
    """4 s of audio, 8 s of pause, 4 s of audio; and one that starts during a pause."""
    with AudioSession(defaultSinks=False) as session:
        stage = Stage(session)
        session.plug("speakers", suspendAfter=suspendAfter)
        session.setDefault("speakers")
        with stage.fadeloom(settings({"mpv": app()})) as fadeloom:
            pause = playWithPauses(stage, "mpv", seed=1)
            fadeloom.waitFor("audio flowing through tap: mpv", seconds=12)
            started = start(fadeloom, "mpv")
            time.sleep(4)
            pause(True)
            time.sleep(8)
            pause(False)
            time.sleep(4)
            elapsed = time.monotonic() - started
            whole = signals.readWave24(stop(fadeloom, "mpv"))[1]
            pause(True)
            fadeloom.waitFor("app silent mpv")
            startedInPause = start(fadeloom, "mpv")
            time.sleep(2)
            pause(False)
            time.sleep(1)
            elapsedInPause = time.monotonic() - startedInPause
            fromPause = signals.readWave24(stop(fadeloom, "mpv"))[1]

    assert len(whole) / signals.RATE == pytest.approx(elapsed, abs=0.06)
    (_, firstEnd), (secondBegin, _) = runsOfSound(whole)
    assert secondBegin - firstEnd == pytest.approx(8, abs=0.4)
    assert len(fromPause) / signals.RATE == pytest.approx(elapsedInPause, abs=0.06)
    ((begin, _),) = runsOfSound(fromPause)
    assert begin == pytest.approx(2, abs=0.4)


def test_anAppOnTwoDevicesIsRecordedWholeAndMixed(stage):
    written, files = {}, []
    for seed, device in enumerate(("speakers", "headphones")):
        file = stage.folder / f"{device}.wav"
        written[device] = signals.write(file, signals.noise(0.4, 30, seed=seed), signals.RATE)
        files.append(f"{stage.makeApp('both')} -p --target {device} {shlex.quote(str(file))} & ")
    with stage.fadeloom(settings({"both": app()})) as fadeloom:
        stage.session.spawn("shell", ["sh", "-c", "".join(files) + "wait"])
        for device in written:
            fadeloom.waitFor(f"tap ready: both → {device}", seconds=12)
        time.sleep(2)
        start(fadeloom, "both")
        time.sleep(4)
        file = stop(fadeloom, "both")

    rest = signals.readWave24(file)[1][signals.RATE:3 * signals.RATE, 0] / 2.0**23
    for device, source in written.items():
        place = signals.delay(rest[:8192], source[:, 0])
        rest = rest - source[place:place + len(rest), 0]
    assert numpy.abs(rest).max() < 1e-4  # Nothing but the two.
