# SPDX-License-Identifier: MIT
"""System limits, and how they are reported."""

import os
import time

import signals
from audioSession import waitUntil
from fadeloomProcess import settings


def startApps(stage, count):
    file = stage.folder / "tone.wav"
    signals.write(file, signals.sine(440, 0.2, 60))
    apps = [f"player{number}" for number in range(count)]
    for name in apps:
        stage.session.spawn(name, [stage.makeApp(name), "--playback", str(file)])
    return apps


def test_theSoftLimitOfOpenFilesIsRaised(stage):
    with stage.fadeloom(wrapper=["prlimit", "--nofile=128:4096"]) as fadeloom:
        fadeloom.waitFor("default speakers")
        apps = startApps(stage, 14)
        for name in apps:
            fadeloom.waitFor(f"tap ready: {name} ", seconds=20)


def test_aMissingCapabilityIsNamedWithoutSideEffects(stage):
    with stage.fadeloom(settings(), wrapper=["prlimit", "--nofile=128:128"]) as fadeloom:
        fadeloom.waitFor("default speakers")
        apps = startApps(stage, 14)
        fadeloom.waitFor("Start device failed: of 128 files that may be open, too few are left", seconds=20)
        time.sleep(3)

        tapped = [name for name in apps if any(f"tap ready: {name} " in line for line in fadeloom.text())]
        assert 5 <= len(tapped) < 14
        assert not any("session manager" in line for line in fadeloom.text())
        assert len(os.listdir(f"/proc/{fadeloom.programID()}/fd")) < 128
        stage.session.end(tapped[0])  # The connection is intact: events still arrive.
        fadeloom.waitFor(f"tap removed (app quit): {tapped[0]}", seconds=20)
        assert fadeloom.command(f"volume {tapped[1]} 0.5").startswith("ok")


def test_linksMadeByHandAreNamedAsSuch(stage):
    file = stage.folder / "tone.wav"
    signals.write(file, signals.sine(440, 0.2, 60))
    with stage.fadeloom(settings()) as fadeloom:
        fadeloom.waitFor("default speakers")
        stage.session.spawn("byhand", [stage.makeApp("byhand"), "--playback", "--target", "0", str(file)])
        waitUntil(lambda: stage.session.nodeId("byhand", ports=True), "the player")
        for channel in ("FL", "FR"):
            stage.session.run("pw-link", f"byhand:output_{channel}", f"speakers:playback_{channel}")
        fadeloom.waitFor("the links of a stream were made by hand and stay", seconds=10)
        assert not any("is moving streams switched off" in line for line in fadeloom.text())
