# SPDX-License-Identifier: MIT
"""The effect of a call on the other apps, from a real microphone stream to the audio at the device."""

import time

import numpy
import pytest

import signals
from audioSession import waitUntil
from callScene import CallScene
from fadeloomProcess import app, settings

DUCK = 0.2
TIME_CONSTANT = 0.3


class Calls(CallScene):
    """With music playing, and call apps."""

    def __init__(self, stage):
        super().__init__(stage)
        self.programs = {}

    def fadeloom(self, callApps=("talk", "meet"), **focus):
        apps = {name: app() for name in (*callApps, "pw-cat")}
        return self.stage.fadeloom(
            settings(apps, focus={"enabled": True, "duckLevel": DUCK, "callApps": list(callApps), **focus}))

    def open(self, name, file=None):
        """The app plays, and so is in the mixer."""
        self.programs[name] = self.programs.get(name) or self.stage.makeApp(name)
        self.session.spawn(f"{name}-play", [self.programs[name], "--playback", str(file or self.silence)])

    def listen(self, name, target="microphone", properties="{ }"):
        self.session.spawn(f"{name}-listen", [self.programs[name], "--record", "--target", target, "-P", properties,
                                              str(self.stage.folder / f"{name}.wav")])
        waitUntil(lambda: any(target in link[0] for link in self.session.links()), f"{name} on {target}")

    def hangUp(self, name):
        self.session.end(f"{name}-listen")


@pytest.fixture
def calls(stage):
    return Calls(stage)


def envelope(recorded, frequency=1000, step=240):
    """The amplitude of a tone, a value every 5 milliseconds, each over whole periods."""
    frames = recorded[:len(recorded) // step * step, 0].reshape(-1, step)
    carrier = numpy.exp(-2j * numpy.pi * frequency * numpy.arange(step) / signals.RATE)
    return 2 * numpy.abs((frames * carrier).mean(axis=1)), step / signals.RATE


def timeConstant(levels, step, start, end):
    """The time constant of an exponential from `start` to `end`, fitted to the logarithm of its middle part."""
    left = (levels - end) / (start - end)
    begin = numpy.flatnonzero(left < 0.9)[0]
    stop = begin + numpy.flatnonzero(left[begin:] < 0.1)[0]
    slope = numpy.polyfit(numpy.arange(begin, stop) * step, numpy.log(left[begin:stop]), 1)[0]
    return -1 / slope


def test_aCallLowersTheOthersAndItsEndBringsThemBack(calls):
    with calls.fadeloom() as fadeloom:
        calls.stage.play("pw-play", calls.music)
        calls.open("talk")
        for name in ("pw-cat", "talk"):
            calls.stage.waitForTap(fadeloom, name)
        recording = calls.session.recordDevice("recording", "speakers")
        time.sleep(0.5)

        calls.listen("talk")
        fadeloom.waitFor("call talk")
        time.sleep(3)
        calls.hangUp("talk")
        fadeloom.waitFor("call none")
        time.sleep(3)
        calls.session.endRecording("recording")

    levels, step = envelope(signals.read(recording))
    lowest = int(numpy.argmin(numpy.where(levels > 0.05, levels, 1)))
    full = 0.5
    assert levels[lowest] == pytest.approx(full * DUCK, rel=0.01)
    assert levels[lowest + int(2.5 / step)] == pytest.approx(full, rel=0.01)

    started = numpy.flatnonzero(levels > full * 0.99)[0]
    down = levels[started:lowest + 1]
    assert timeConstant(down, step, full, full * DUCK) == pytest.approx(TIME_CONSTANT, rel=0.05)
    up = levels[lowest:]
    assert timeConstant(up, step, full * DUCK, full) == pytest.approx(TIME_CONSTANT, rel=0.05)


def test_anotherCallAppIsNotLowered(calls):
    tone = calls.stage.folder / "tone.wav"
    signals.write(tone, signals.sine(400, 0.3, 60))
    with calls.fadeloom() as fadeloom:
        calls.stage.play("pw-play", calls.music)
        calls.open("talk")
        calls.open("meet", tone)
        for name in ("pw-cat", "talk", "meet"):
            calls.stage.waitForTap(fadeloom, name)

        calls.listen("talk")
        fadeloom.waitFor("call talk")
        time.sleep(2.5)
        recording = calls.session.recordDevice("recording", "speakers")
        time.sleep(1)
        calls.session.endRecording("recording")

    heard = signals.steady(signals.read(recording), 200)
    assert signals.amplitude(heard, 400)[0] == pytest.approx(0.3, rel=0.01)
    assert signals.amplitude(heard, 1000)[0] == pytest.approx(0.5 * DUCK, rel=0.01)


def test_recordingADevicesOutputIsNotACall(calls):
    with calls.fadeloom() as fadeloom:
        calls.stage.play("pw-play", calls.music)
        calls.open("talk")
        calls.stage.waitForTap(fadeloom, "talk")

        calls.listen("talk", "speakers", "{ stream.capture.sink=true }")
        time.sleep(1.5)
        assert not any("call" in line for line in fadeloom.text())

        calls.hangUp("talk")
        calls.listen("talk")  # The control experiment: with a microphone the same app does start one.
        fadeloom.waitFor("call talk")


def test_anAppThatIsNotOfTheListStartsNoCall(calls):
    with calls.fadeloom(callApps=("meet",)) as fadeloom:
        calls.open("talk")
        calls.stage.waitForTap(fadeloom, "talk")

        calls.listen("talk")
        time.sleep(1.5)

        assert not any(line.startswith("call ") for line in fadeloom.text())
        assert fadeloom.command("call-app talk on").startswith("ok")
        fadeloom.waitFor("call talk")


def test_aCallBeginsWithinATenthOfASecond(calls):
    with calls.fadeloom() as fadeloom:
        calls.open("talk")
        calls.stage.waitForTap(fadeloom, "talk")

        calls.listen("talk")
        linked = time.monotonic()
        _, said = fadeloom.waitFor("call talk")

        assert said - linked < 0.1
