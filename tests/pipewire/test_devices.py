# SPDX-License-Identifier: MIT
"""Where an app plays: its selected device, the default one, a device that is removed and returns."""

import time

import pytest

from audioSession import waitUntil
from fadeloomProcess import app, settings
from listening import levelOn, sineFile, waitForSound


def test_anAppMovesToTheDeviceThatIsChosenForIt(stage):
    with stage.fadeloom(settings({"pw-cat": app(volume=0.5)})) as fadeloom:
        stage.play("pw-play", sineFile(stage))
        stage.waitForTap(fadeloom, "pw-cat")
        waitForSound(stage, "speakers", 0.25)

        assert fadeloom.command("output pw-cat headphones").startswith("ok")
        fadeloom.waitFor("tap ready: pw-cat → headphones")

        waitForSound(stage, "headphones", 0.25)
        assert levelOn(stage, "speakers") == 0.0


def test_anUnpluggedDeviceMutesItsAppAndComesBack(stage):
    with stage.fadeloom(settings({"pw-cat": app(outputUID="headphones")})) as fadeloom:
        stage.play("pw-play", sineFile(stage))
        stage.waitForTap(fadeloom, "pw-cat")
        waitForSound(stage, "headphones", 0.5)

        stage.session.unplug("headphones")
        missing, _ = fadeloom.waitFor("output missing, muting: pw-cat")
        fadeloom.waitFor("tap ready: pw-cat → speakers", after=missing)
        time.sleep(0.5)
        assert levelOn(stage, "speakers") == 0.0

        stage.session.plug("headphones", "Headphones")
        back, _ = fadeloom.waitFor("output back: pw-cat")
        fadeloom.waitFor("tap ready: pw-cat → headphones", after=back)
        waitForSound(stage, "headphones", 0.5)
        assert levelOn(stage, "speakers") == 0.0


def test_anotherDefaultDeviceMovesOnlyTheAppsThatFollowIt(stage):
    with stage.fadeloom(settings({"pacat": app(outputUID="speakers")})) as fadeloom:
        stage.play("pw-play", sineFile(stage, 1000))
        stage.play("paplay", sineFile(stage, 3000))
        stage.waitForTap(fadeloom, "pw-cat")
        stage.waitForTap(fadeloom, "pacat")

        stage.session.setDefault("headphones")
        fadeloom.waitFor("tap ready: pw-cat → headphones")

        waitForSound(stage, "headphones", 0.5, 1000)
        assert levelOn(stage, "speakers", 3000) == pytest.approx(0.5, rel=0.02)
        assert not any("tap ready: pacat → headphones" in line for line in fadeloom.text())


def test_theDefaultDeviceCanBeChangedByCommand(stage):
    with stage.fadeloom(settings()) as fadeloom:
        assert fadeloom.command("default headphones").startswith("ok")

        waitUntil(lambda: stage.session.defaultSink() == "headphones", "the new default")
        fadeloom.waitFor("default headphones")
        assert fadeloom.command("default nowhere").startswith("error")


def test_aNewRateRebuildsTheTap(stage):
    with stage.fadeloom(settings({"pw-cat": app(volume=0.5)})) as fadeloom:
        stage.play("pw-play", sineFile(stage))
        stage.waitForTap(fadeloom, "pw-cat")

        stage.session.setRate(44100)

        fadeloom.waitFor("tap ready: pw-cat → speakers @ 44100.0 Hz")
        time.sleep(0.5)
        assert stage.isLinked("com.fadeloom.tap.", "speakers:")


def test_deviceNamesOfAnyBytesAreListedAndChosen(stage):
    names = ['quo"ted', "new\\nline", "Größe, żółć 🎧", "x" * 900, "{ braces }"]
    for name in names:
        stage.session.plug(name, f"The {name}")
    with stage.fadeloom(settings({"pw-cat": app(volume=0.5, outputUID=names[0])})) as fadeloom:
        stage.play("pw-play", sineFile(stage))
        fadeloom.waitFor("tap ready: pw-cat")
        assert fadeloom.command("list").startswith("ok list")
        assert sum(line.startswith("device added") for line in fadeloom.text()) == len(names) + 2
    waitUntil(lambda: stage.session.nodeId(names[0]), "the device to be there still")
