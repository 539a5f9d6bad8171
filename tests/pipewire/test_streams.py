# SPDX-License-Identifier: MIT
"""Streams of every shape, and devices of every layout, arrive correctly through a tap."""

import time

import numpy
import pytest

import signals
from fadeloomProcess import app, settings


def recordTapped(stage, files, appSettings, device="speakers", channels=("FL", "FR"), seconds=1.0):
    """Plays files, each with a pw-play, through one tap; returns about a second of the device's output."""
    with stage.fadeloom(settings({"pw-cat": appSettings})) as fadeloom:
        for file in files:
            stage.play("pw-play", file)
        stage.waitForTap(fadeloom, "pw-cat")
        if len(files) > 1:
            fadeloom.waitFor(f"{len(files)} process(es)")
        time.sleep(0.8)
        recording = stage.session.recordDevice("recording", device, channels)
        time.sleep(seconds)
        stage.session.endRecording("recording")
    return signals.read(recording, len(channels))


def sineFile(stage, name, frequency, amplitude, channels=2, rate=signals.RATE):
    file = stage.folder / f"{name}.wav"
    signals.write(file, signals.sine(frequency, amplitude, 5, rate, channels), rate)
    return file


def levels(recorded, frequency):
    return signals.amplitude(signals.steady(recorded, frequency), frequency)


def test_twoStreamsOfOneApplicationAreMixed(stage):
    one = sineFile(stage, "one", 500, 0.2)
    two = sineFile(stage, "two", 2000, 0.3)

    recorded = recordTapped(stage, [one, two], app(volume=0.5))

    assert levels(recorded, 500) == pytest.approx([0.1, 0.1], rel=0.002)
    assert levels(recorded, 2000) == pytest.approx([0.15, 0.15], rel=0.002)


def test_aMonoStreamIsHeardOnBothSides(stage):
    recorded = recordTapped(stage, [sineFile(stage, "mono", 1000, 0.4, channels=1)], app(volume=0.5))

    assert levels(recorded, 1000) == pytest.approx([0.2, 0.2], rel=0.002)


def test_aStreamOf44100HertzIsConverted(stage):
    recorded = recordTapped(stage, [sineFile(stage, "cd", 1000, 0.4, rate=44100)], app(volume=0.5))

    assert levels(recorded, 1000) == pytest.approx([0.2, 0.2], rel=0.005)


def test_aSurroundStreamIsMixedDownToBothSides(stage):
    left = signals.sine(1000, 0.4, 5, channels=6)
    left[:, 1:] = 0  # Only front left.
    file = stage.folder / "surround.wav"
    signals.write(file, left)

    recorded = recordTapped(stage, [file], app(volume=0.5))

    measured = levels(recorded, 1000)
    assert measured[0] > 0.05
    assert measured[1] < measured[0] / 100


def test_eachSideStaysOnItsSide(stage):
    sides = numpy.concatenate([signals.sine(500, 0.4, 5, channels=1), signals.sine(1500, 0.4, 5, channels=1)], axis=1)
    file = stage.folder / "sides.wav"
    signals.write(file, sides)

    recorded = recordTapped(stage, [file], app(volume=0.5))

    assert levels(recorded, 500) == pytest.approx([0.2, 0], abs=5e-4)
    assert levels(recorded, 1500) == pytest.approx([0, 0.2], abs=5e-4)


def test_aMonoDeviceGetsHalfOfBothSides(stage):
    stage.session.plug("mono", position="MONO")
    sides = numpy.concatenate([signals.sine(500, 0.4, 5, channels=1), signals.sine(1500, 0.2, 5, channels=1)], axis=1)
    file = stage.folder / "sides.wav"
    signals.write(file, sides)

    recorded = recordTapped(stage, [file], app(outputUID="mono"), "mono", ("MONO",))

    assert levels(recorded, 500) == pytest.approx([0.2], rel=0.002)
    assert levels(recorded, 1500) == pytest.approx([0.1], rel=0.002)


def test_aDeviceWhosePairIsThreeAndFourPlaysThereAndIsSilentElsewhere(stage):
    stage.session.plug("interface", position="AUX0 AUX1 FL FR")
    file = sineFile(stage, "sine", 1000, 0.4)

    recorded = recordTapped(stage, [file], app(volume=0.5, outputUID="interface"), "interface",
                            ("AUX0", "AUX1", "FL", "FR"))

    assert not recorded[:, :2].any()
    assert levels(recorded[:, 2:], 1000) == pytest.approx([0.2, 0.2], rel=0.002)
