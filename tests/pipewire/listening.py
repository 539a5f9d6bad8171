# SPDX-License-Identifier: MIT
"""Tones to play, and their levels on a device."""

import time

import pytest

import signals
from audioSession import waitUntil


def sineFile(stage, frequency=1000):
    file = stage.folder / f"sine{frequency}.wav"
    signals.write(file, signals.sine(frequency, 0.5, 15))
    return file


def levelOn(stage, device, frequency=1000):
    """The current level of a frequency on a device."""
    stage.count += 1
    name = f"level{stage.count}"
    recording = stage.session.recordDevice(name, device)
    time.sleep(0.35)
    stage.session.endRecording(name)
    recorded = signals.read(recording)[2048:]
    return float(signals.amplitude(signals.steady(recorded, frequency), frequency).max()) if recorded.any() else 0.0


def waitForSound(stage, device, level, frequency=1000):
    return waitUntil(lambda: levelOn(stage, device, frequency) == pytest.approx(level, rel=0.02), f"sound on {device}")
