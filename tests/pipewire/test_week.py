# SPDX-License-Identifier: MIT
"""A bad week: everything that people and machines do to audio, in random order, checked against a model.

The model predicts which app must be audible on which device at which level. After every step the devices are measured.
A failed run names its seed and its steps: FADELOOM_SEED=N repeats it.
"""

import os
import random
import signal
import time
import wave

import numpy
import pytest

import signals
from conftest import LONG
from fadeloomProcess import settings

SOURCE = 0.15  # Of each app, so that all of them together do not clip.
FREQUENCIES = {"Melody": 400, "Talk": 700, "Bells": 1100}  # Whole periods in the window.
WINDOW = 0.1
SETTLED_WITHIN = 4.0  # Seconds; anything slower is a failure.
MINUTES = 55 if LONG else 3
FIXED = ["speakers", "headphones"]


def writeLongSine(file, frequency):
    """Whole periods in a second, so one second can be repeated."""
    pcm = numpy.round(signals.sine(frequency, SOURCE, 1) * 32767).astype("<i2").tobytes()
    with wave.open(str(file), "wb") as out:
        out.setnchannels(2)
        out.setsampwidth(2)
        out.setframerate(signals.RATE)
        for _ in range(MINUTES * 60 + 60):
            out.writeframesraw(pcm)


class Ear:
    """Records a device continuously."""

    def __init__(self, session, device):
        self.session, self.device = session, device
        session.count = getattr(session, "count", 0) + 1
        self.name = f"ear{session.count}"
        self.file = session.recordDevice(self.name, device)

    def close(self):
        self.session.endRecording(self.name)
        self.file.unlink(missing_ok=True)

    def levels(self):
        """The recent amplitude of each app."""
        frame = 8
        size = self.file.stat().st_size
        with open(self.file, "rb") as file:
            start = file.read(256).find(b"data") + 8
            count = round(WINDOW * signals.RATE)
            place = size - (size - start) % frame - count * frame
            if start < 8 or place < start:
                return None
            file.seek(place)
            samples = numpy.frombuffer(file.read(count * frame), "<f4").reshape(-1, 2)
        return {app: float(signals.amplitude(samples, frequency).mean()) for app, frequency in FREQUENCIES.items()}


class Week:
    def __init__(self, stage, seed):
        self.stage, self.session = stage, stage.session
        self.random = random.Random(seed)
        self.programs = {name: stage.makeApp(name) for name in FREQUENCIES}
        for name, frequency in FREQUENCIES.items():
            writeLongSine(stage.folder / f"{name}.wav", frequency)
        self.playing, self.volume, self.muted, self.output = set(), {}, {}, {}
        self.default, self.hasDesk = "speakers", False
        self.ears = {device: Ear(self.session, device) for device in FIXED}
        self.fadeloom = None
        self.steps = []

    # Expectations

    def expected(self, device):
        levels = {}
        for name in FREQUENCIES:
            home, level = self.default, 1.0
            if self.fadeloom:
                home = self.output.get(name) or self.default
                level = 0.0 if self.muted.get(name) else self.volume.get(name, 1.0)
            levels[name] = SOURCE * level if name in self.playing and home == device else 0.0
        return levels

    def check(self):
        deadline = time.monotonic() + SETTLED_WITHIN
        good = 0
        while good < 3:
            heard = {device: ear.levels() for device, ear in self.ears.items()}
            wanted = {device: self.expected(device) for device in self.ears}
            isRight = all(heard[device] and heard[device] == pytest.approx(wanted[device], rel=0.02, abs=0.002)
                          for device in self.ears)
            good = good + 1 if isRight else 0
            assert time.monotonic() < deadline, f"heard {heard}\nwanted {wanted}\nafter {self.steps}\n" + \
                ("\n".join(self.fadeloom.text()[-20:]) if self.fadeloom else "")
            time.sleep(WINDOW)

    # Possible events

    def step(self):
        changes = [self.play, self.play, self.pause, self.turn, self.turn, self.mute, self.route, self.route,
                   self.chooseDefault, self.plugOrUnplug, self.end]
        while not self.random.choice(changes)():
            pass

    def did(self, *words):
        self.steps.append(" ".join(map(str, words)))
        return True

    def anyApp(self):
        return self.random.choice(list(FREQUENCIES))

    def aPlayingApp(self):
        return self.random.choice(sorted(self.playing)) if self.playing and self.fadeloom else None

    def command(self, *words):
        # An app is listed a moment after its first sound.
        line = " ".join(map(str, words))
        for _ in range(40):
            if self.fadeloom.command(line).startswith("ok"):
                return self.did(line)
            time.sleep(0.05)
        raise AssertionError(f"{line} was refused: {self.fadeloom.text()[-5:]}")

    def play(self):
        name = self.anyApp()
        if name in self.playing:
            return False
        command = [self.programs[name], "--playback", str(self.stage.folder / f"{name}.wav")]
        self.session.spawn(name, command)
        self.playing.add(name)
        return self.did("play", name)

    def pause(self):
        name = self.anyApp()
        if name not in self.playing:
            return False
        self.session.end(name)
        self.playing.remove(name)
        return self.did("stop", name)

    def turn(self):
        name = self.aPlayingApp()
        if not name:
            return False
        self.volume[name] = self.random.choice([0.1, 0.25, 0.5, 1.0])
        return self.command("volume", name, self.volume[name])

    def mute(self):
        name = self.aPlayingApp()
        if not name:
            return False
        self.muted[name] = not self.muted.get(name)
        return self.command("mute", name, "on" if self.muted[name] else "off")

    def route(self):
        name = self.aPlayingApp()
        if not name:
            return False
        devices = FIXED + (["desk"] if self.hasDesk else [])
        self.output[name] = self.random.choice([None, *devices])
        return self.command("output", name, self.output[name] or "default")

    def chooseDefault(self):
        self.default = self.random.choice(FIXED)
        self.session.setDefault(self.default)
        return self.did("default", self.default)

    def plugOrUnplug(self):
        if self.hasDesk:
            self.ears.pop("desk").close()
            self.session.unplug("desk")
        else:
            self.session.plug("desk", "Desk")
            self.ears["desk"] = Ear(self.session, "desk")
        self.hasDesk = not self.hasDesk
        return self.did("plug desk" if self.hasDesk else "unplug desk")

    def end(self):
        if not self.fadeloom:
            self.start()
            return self.did("start")
        time.sleep(0.8)  # A change is written half a second later.
        how = self.random.choice([signal.SIGKILL, signal.SIGTERM])
        self.session.end("fadeloom", how)
        self.fadeloom = None
        return self.did(how.name)

    def start(self):
        isFirst = not self.steps
        self.fadeloom = self.stage.fadeloom(settings() if isFirst else None)
        self.fadeloom.start()
        self.fadeloom.waitFor("connected to PipeWire")


def test_everyAppIsHeardWhereAndAsLoudAsItMustBe(stage):
    seed = int(os.environ.get("FADELOOM_SEED", random.randrange(10**6)))
    print(f"FADELOOM_SEED={seed}")
    week = Week(stage, seed)
    week.start()
    deadline = time.monotonic() + MINUTES * 60
    while time.monotonic() < deadline:
        week.step()
        week.check()
    print(f"{len(week.steps)} steps")
    assert len(week.steps) > MINUTES * 10
