# SPDX-License-Identifier: MIT
"""The effect of an app's volume, mute, limiter and equalizer on the audio at the device."""

import time

import numpy
import pytest

import signals
from conftest import PLAYERS
from fadeloomProcess import app, settings


def playThrough(stage, player, samples, appSettings, rate=signals.RATE, device="speakers", **global_):
    """Plays the samples through a running tap and returns the device's output, and the file's contents."""
    file = stage.folder / "signal.wav"
    written = signals.write(file, samples, rate)
    bundleID = PLAYERS[player][0]
    with stage.fadeloom(settings({bundleID: appSettings}, **global_)) as fadeloom:
        process, _ = stage.play(player, file)
        stage.waitForTap(fadeloom, bundleID)
        recording = stage.session.recordDevice("recording", device)
        stage.waitForEnd(process)
        time.sleep(0.1)
        stage.session.endRecording("recording")
        assert fadeloom.quit() == 0
    return signals.read(recording), written


@pytest.mark.parametrize("player", PLAYERS)
def test_halfTheVolumeIsHalfTheAmplitude(stage, player):
    recorded, written = playThrough(stage, player, signals.sine(1000, 0.5, 3), app(volume=0.5))

    measured = signals.typicalAmplitude(signals.steady(recorded, 1000), 1000)
    played = signals.amplitude(written, 1000)
    assert measured == pytest.approx(played / 2, rel=0.001)


@pytest.mark.parametrize("player", PLAYERS)
def test_aMutedAppIsDigitalSilence(stage, player):
    recorded, _ = playThrough(stage, player, signals.sine(1000, 0.5, 2), app(muted=True))

    assert len(recorded) > signals.RATE / 2
    assert not recorded.any()


@pytest.mark.parametrize("player", PLAYERS)
def test_aBoostedSineIsLimitedToMinusOneDecibel(stage, player):
    recorded, _ = playThrough(stage, player, signals.sine(1000, 0.8, 3), app(volume=2.0), volumeLimit=2.0)

    middle = signals.steady(recorded, 1000)
    assert numpy.abs(middle).max() == pytest.approx(0.891, abs=1e-6)
    # Limited, not clipped: the limiter's gain hardly changes within a period.
    assert signals.typicalAmplitude(middle, 1000) == pytest.approx(0.891, rel=0.01)


@pytest.mark.parametrize("player", PLAYERS)
def test_fullVolumeWithoutTheEqualizerIsBitExact(stage, player):
    recorded, written = playThrough(stage, player, signals.noise(0.9, 3), app())

    # The tap takes over somewhere in the file; from there on every sample must equal the file's.
    middle = recorded[len(recorded) // 3:len(recorded) // 3 + signals.RATE // 2]
    start = signals.delay(middle[:, 0], written[:, 0])
    assert start >= 0
    numpy.testing.assert_array_equal(middle, written[start:start + len(middle)])


def designedResponse(gains, frequency, rate=signals.RATE):
    """The equalizer's gain at one frequency in dB, from the peaking filter's textbook formula with Q = 1.41."""
    total = 0.0
    for centre, gain in zip((32, 64, 125, 250, 500, 1000, 2000, 4000, 8000, 16000), gains):
        amplitude = 10 ** (gain / 40)
        omega = 2 * numpy.pi * centre / rate
        alpha = numpy.sin(omega) / 2.82
        z = numpy.exp(-2j * numpy.pi * frequency / rate)
        upper = (1 + alpha * amplitude) - 2 * numpy.cos(omega) * z + (1 - alpha * amplitude) * z * z
        lower = (1 + alpha / amplitude) - 2 * numpy.cos(omega) * z + (1 - alpha / amplitude) * z * z
        total += signals.decibels(abs(upper / lower))
    return total


@pytest.mark.parametrize("player", PLAYERS)
def test_aPresetHasTheResponseThatItsCurvePromises(stage, player):
    rock = [5, 4, 3, 1, -1, -1, 1, 3, 4, 5]
    preamp = -3.0
    frequencies = (40, 80, 150, 300, 600, 1100, 2200, 4500, 9000, 15000)
    samples = sum(signals.sine(frequency, 0.03, 5) for frequency in frequencies)

    recorded, written = playThrough(
        stage, player, samples, app(eqEnabled=True, eqGains=rock, eqPresetName="Rock", eqPreamp=preamp))

    # Whole periods of each of them, also in each tenth.
    second = recorded[len(recorded) // 3:len(recorded) // 3 + signals.RATE]
    for frequency in frequencies:
        gain = signals.decibels(signals.typicalAmplitude(second, frequency, window=0.1)
                                / signals.amplitude(written[:signals.RATE], frequency))
        assert gain == pytest.approx(designedResponse(rock, frequency) + preamp, abs=0.1), f"at {frequency} Hz"


def test_aChangeOfVolumeGlidesWithoutAClick(stage):
    file = stage.folder / "signal.wav"
    signals.write(file, signals.sine(200, 0.5, 4))
    with stage.fadeloom(settings({"pw-cat": app()})) as fadeloom:
        stage.play("pw-play", file)
        stage.waitForTap(fadeloom, "pw-cat")
        recording = stage.session.recordDevice("recording", "speakers")
        time.sleep(0.5)

        assert fadeloom.command("volume pw-cat 0.1").startswith("ok")
        time.sleep(0.7)
        stage.session.endRecording("recording")

    recorded = signals.read(recording)[:, 0]
    sounding = recorded[numpy.flatnonzero(recorded)[0]:]
    steepest = 2 * numpy.pi * 200 / signals.RATE * 0.5  # Of the sine itself, at full volume.
    assert numpy.abs(numpy.diff(sounding)).max() < steepest * 1.05
    assert numpy.abs(sounding[-4800:]).max() == pytest.approx(0.05, rel=0.01)


def test_aToneOfMinus20DecibelsShowsAtTwoThirds(stage):
    file = stage.folder / "tone.wav"
    signals.write(file, signals.sine(1000, 0.1, 20))
    with stage.fadeloom(settings({"pw-cat": app()})) as fadeloom:
        stage.play("pw-play", file)
        fadeloom.waitFor("audio flowing through tap: pw-cat", seconds=12)
        assert "level" not in fadeloom.command("list")

        assert fadeloom.command("levels on") == "ok levels on"
        time.sleep(0.5)
        levels = [float(fadeloom.command("list").split("level ")[1].split(";")[0]) for _ in range(10)]
        assert fadeloom.command("levels off") == "ok levels off"
        assert "level" not in fadeloom.command("list")

    assert levels == pytest.approx([0.6667] * 10, abs=0.01)
