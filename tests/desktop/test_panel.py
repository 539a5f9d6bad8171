# SPDX-License-Identifier: MIT
"""The panel's effect on the audio of a real player, with the mouse."""

import time

import numpy
import pytest

import signals
from audioSession import waitUntil
from fadeloomProcess import app, settings


def test_theRowShowsThePlayerAndItsLevelMoves(desk):
    desk.play(samples=numpy.concatenate([signals.sine(1000, 0.2, 6), numpy.zeros((60 * signals.RATE, 2))]))
    desk.start()
    desk.open()
    person = desk.person
    person.waitForText("Playing")
    slider = person.find("Player volume")
    assert slider.description == "100 percent"
    x, y, width, height = slider.place

    def meter():
        """The number of coloured columns of the strip below the slider."""
        strip = desk.session.pixels()[y + height + 4:y + height + 18, x:x + width]
        return int((strip.max(axis=2) - strip.min(axis=2) > 60).any(axis=0).sum())
    waitUntil(lambda: meter() > 0.5 * width, "the level of a sine at 0.2")
    waitUntil(lambda: meter() == 0, "the level to fall")


def test_theSliderAtTheMiddleHalvesTheSound(openDesk):
    person = openDesk.person
    openDesk.waitForLevel(0.2)
    x, y, width, height = person.find("Player volume").place
    y += height // 2

    # The thumb's centre moves from half its width after one end to half its width before the other.
    person.drag((x + width - 8, y), (x + width // 2, y))

    person.waitForText("50%")
    openDesk.waitForLevel(0.1, relative=0.01)
    waitUntil(lambda: openDesk.savedApp("Player").get("volume") == pytest.approx(0.5, abs=0.004), "the settings file")


def test_muteAndUnmute(openDesk):
    person = openDesk.person
    openDesk.waitForLevel(0.2)

    person.click(person.find("Mute Player"))
    openDesk.waitForLevel(0.0)

    person.click(person.find("Unmute Player"))
    openDesk.waitForLevel(0.2)


def test_anotherOutputTakesTheSoundWithIt(openDesk):
    person = openDesk.person
    openDesk.waitForLevel(0.2)
    person.click(person.find("Expand Player"))

    person.choose("Output, System Output", "Headphones")

    openDesk.waitForLevel(0.2, device="headphones")
    assert openDesk.level(device="speakers") == 0.0
    person.find("Output, Headphones")


def test_theSystemOutputIsChosenInTheFirstLine(openDesk):
    person = openDesk.person
    openDesk.waitForLevel(0.2)
    try:
        person.choose("Output, Speakers", "Headphones")

        waitUntil(lambda: openDesk.session.defaultSink() == "headphones", "the system's output")
        openDesk.waitForLevel(0.2, device="headphones")
    finally:
        openDesk.session.setDefault("speakers")


def test_aPresetChangesTheResponse(desk):
    desk.play(frequency=64)
    desk.start(settings(eqAutoHeadroom=False))
    desk.open()
    person = desk.person
    desk.waitForLevel(0.2, frequency=64)
    person.click(person.find("Expand Player"))

    person.choose("Equalizer preset, Flat", "Bass Boost")

    waitUntil(lambda: desk.savedApp("Player").get("eqPresetName") == "Bass Boost", "the settings file")
    gains = desk.savedApp("Player")["eqGains"]
    assert desk.savedApp("Player")["eqEnabled"] and gains[1] > 3
    # At 64 Hz the neighbours add to the band's own gain.
    louder = desk.level(frequency=64) / 0.2
    assert signals.decibels(louder) > gains[1] - 0.5
    person.find("Equalizer preset, Bass Boost")


def test_aBandIsDraggedInWholeDecibels(openDesk):
    person = openDesk.person
    openDesk.waitForLevel(0.2)
    person.click(person.find("Expand Player"))
    band = person.find("1k hertz")
    x, y, width, height = band.place

    person.drag(band.middle, (x + width // 2, y + height // 4))

    waitUntil(lambda: openDesk.savedApp("Player").get("eqGains", [0] * 10)[5] == 6, "six decibels")
    person.find("Equalizer preset, Custom")
    openDesk.waitForLevel(0.2 * 10 ** (6 / 20), relative=0.03)


def test_aRecordingHoldsWhatWasPlayed(openDesk):
    person, session = openDesk.person, openDesk.session
    openDesk.waitForLevel(0.2)
    person.click(person.find("Mute Player"))  # A recording precedes mute and volume.
    person.click(person.find("Expand Player"))

    person.click(person.find("Start"))
    person.waitForText("Recording")
    x, y, width, height = person.look("Recording").place
    words = session.pixels()[y:y + height, x:x + width]
    assert (words[:, :, 0] - words[:, :, 1:].max(axis=2)).max() > 100, "the status is red"
    person.waitForText("0:02")
    person.click(person.find("Stop"))

    files = waitUntil(lambda: list((session.folder / "home").rglob("*.wav")), "the recording")
    person.find("Show in Files")
    time.sleep(0.7)  # Until the file is closed.
    rate, samples = signals.readWave24(files[0])
    assert rate == 48000
    assert len(samples) > 2 * rate
    loud = samples[:, 0] / 2 ** 23
    assert signals.typicalAmplitude(loud.reshape(-1, 1), 1000)[0] == pytest.approx(0.2, rel=0.01)
    assert person.reads(files[0].name)


def test_aDoubleClickOnThePercentageGoesBackToAHundred(desk):
    desk.play()
    desk.start(settings({"Player": app(volume=0.3)}))
    desk.open()
    person = desk.person
    percent = person.find("30%")

    desk.session.run("xdotool", "mousemove", *map(str, percent.middle), "click", "--repeat", "2", "--delay", "60", "1")

    person.waitForText("100%")
    waitUntil(lambda: "Player" not in desk.saved().get("apps", {}), "the entry to go")


def test_anAppThatGoesLeavesTheList(openDesk):
    openDesk.play("Second", frequency=400)
    openDesk.person.find("Second")

    openDesk.session.end("Second")

    waitUntil(lambda: not openDesk.person.reads("Second"), "its row to go", 12)
    assert openDesk.person.reads("Player")
