# SPDX-License-Identifier: MIT
"""Sounds of 50 ms, each played by a separate process: none is audible above its app's level."""

import signal
import time

import numpy
import pytest

import signals
from audioSession import waitUntil
from conftest import LONG, PLAYERS
from fadeloomProcess import app, settings

LOUD = 0.6
COUNT = 200 if LONG else 40
BUSY = "while True: pass"
# The link that makes pipewire-pulse reply to a client is removed when the reply is visible. On a busy machine the
# client's audio is sometimes faster, and one channel of it is audible for one cycle.
ALLOWED = {"pw-play": 0, "paplay": COUNT // 40}
ALLOWED_UNDER_LOAD = {"pw-play": COUNT // 40, "paplay": COUNT // 8}


def soundFile(stage):
    file = stage.folder / "sound.wav"
    signals.write(file, signals.sine(1000, LOUD, 0.05))
    return file


def playSounds(stage, player, count=COUNT):
    """Plays the sound this many times; returns the device's output."""
    file = soundFile(stage)
    recording = stage.session.recordDevice("recording", "speakers")
    time.sleep(0.3)
    for _ in range(count):
        process, _ = stage.play(player, file)
        stage.waitForEnd(process)
        time.sleep(0.1)
    time.sleep(0.3)
    stage.session.endRecording("recording")
    return signals.read(recording)


def bursts(recorded, threshold=0.004):
    """The peak of each sound in the recording; 50 ms of silence separate two."""
    level = numpy.abs(recorded).max(axis=1)
    loud = numpy.flatnonzero(level > threshold)
    if not len(loud):
        return []
    parts = numpy.split(loud, numpy.flatnonzero(numpy.diff(loud) > signals.RATE * 0.05) + 1)
    return [float(level[part].max()) for part in parts]


def settle(stage, fadeloom):
    """Waits until the program knows the devices and has its park."""
    fadeloom.waitFor("connected to PipeWire")
    waitUntil(lambda: any(node["props"].get("node.name", "").startswith("com.fadeloom.park.")
                          for node in stage.session.nodes()), "the park")
    time.sleep(0.5)


@pytest.mark.parametrize("player", ["pw-play", "paplay"])
@pytest.mark.parametrize("volume", [0.0, 0.3])
def test_noShortSoundIsHeardAboveItsLevel(stage, player, volume):
    values = app(volume=0.3) if volume else app(muted=True)
    with stage.fadeloom(settings({PLAYERS[player][0]: values})) as fadeloom:
        settle(stage, fadeloom)

        heard = bursts(playSounds(stage, player))

    loud = [peak for peak in heard if peak > LOUD * volume * 1.02]
    assert len(loud) <= ALLOWED[player], loud
    if volume:  # And none is lost.
        assert len(heard) >= COUNT * 0.95
        assert numpy.median(heard) == pytest.approx(LOUD * volume, rel=0.02)


@pytest.mark.parametrize("player", ["pw-play", "paplay"])
def test_underLoadHardlyAnyShortSoundIsHeardAboveItsLevel(stage, player):
    with stage.fadeloom(settings({PLAYERS[player][0]: app(muted=True)})) as fadeloom:
        settle(stage, fadeloom)
        for number in range(4):
            stage.session.spawn(f"busy{number}", ["/usr/bin/python3", "-c", BUSY])

        heard = bursts(playSounds(stage, player))

    assert len(heard) <= ALLOWED_UNDER_LOAD[player], heard


@pytest.mark.parametrize("player", ["pw-play", "paplay"])
def test_otherAppsDoNotWait(stage, player):
    """With settings for another app only, a short sound is over before anything of ours has touched it."""
    with stage.fadeloom(settings({"other": app(muted=True)})) as fadeloom:
        settle(stage, fadeloom)

        heard = bursts(playSounds(stage, player, 10))

    assert len(heard) == 10
    assert heard == pytest.approx([LOUD] * 10, rel=0.02)


@pytest.mark.parametrize("player", ["pw-play", "paplay"])
def test_afterAKillShortSoundsAreHeardAsEver(stage, player):
    with stage.fadeloom(settings({PLAYERS[player][0]: app(muted=True)})) as fadeloom:
        settle(stage, fadeloom)
        process, _ = stage.play(player, soundFile(stage))
        time.sleep(0.01)
        stage.session.end("fadeloom", signal.SIGKILL)
        time.sleep(0.5)
        stage.session.end(process)  # It may still wait for the tap that is gone: a known limitation.

    heard = bursts(playSounds(stage, player, 10))

    assert len(heard) >= 5  # The session manager links some of them too late; the cause is not known yet.
    assert min(heard) == pytest.approx(LOUD, rel=0.02)
