# SPDX-License-Identifier: MIT
"""What forwards the audio of others is not an app: with an effect in the path, apps are audible through it at their
volume."""

import time

import numpy
import pytest

import neighbours
import signals
from audioSession import AudioSession
from conftest import Stage
from fadeloomProcess import app, settings

SOURCE = 0.4
VOLUME = 0.5


def playSine(stage, player="pw-play", seconds=30):
    file = stage.folder / "sine.wav"
    signals.write(file, signals.sine(1000, SOURCE, seconds))
    return stage.play(player, file)


def level(stage, device, seconds=0.6):
    """The current level of the sine on a device."""
    stage.count += 1
    name = f"level{stage.count}"
    recording = stage.session.recordDevice(name, device)
    time.sleep(seconds)
    stage.session.endRecording(name)
    recorded = signals.read(recording)
    return signals.typicalAmplitude(recorded[len(recorded) // 2:], 1000).tolist() if len(recorded) else [0, 0]


def waitForLevel(stage, device, wanted, seconds=8):
    """Waits until a device plays the sine at this level; a session manager takes its time to link effects."""
    deadline = time.monotonic() + seconds
    while True:
        heard = level(stage, device)
        if heard == pytest.approx([wanted, wanted], rel=0.01) or time.monotonic() > deadline:
            return heard


def assertHeardThroughTheEffect(stage, fadeloom, bundleID, gain):
    assert waitForLevel(stage, "speakers", SOURCE * VOLUME * gain) \
        == pytest.approx([SOURCE * VOLUME * gain] * 2, rel=0.01)
    # Attenuated before the effect, not after it.
    assert level(stage, "effect") == pytest.approx([SOURCE * VOLUME] * 2, rel=0.01)
    # It remains so.
    assert level(stage, "speakers") == pytest.approx([SOURCE * VOLUME * gain] * 2, rel=0.01)
    assert fadeloom.command("list").startswith("ok list 1 app"), fadeloom.text()


@pytest.mark.parametrize("effect", neighbours.EFFECTS)
def test_anExistingEffectIsAppliedAfterTheTap(stage, effect):
    gain = neighbours.start(stage.session, effect)
    stage.session.setDefault("effect")
    with stage.fadeloom(settings({"pw-cat": app(volume=VOLUME)})) as fadeloom:
        playSine(stage)
        stage.waitForTap(fadeloom, "pw-cat")

        assertHeardThroughTheEffect(stage, fadeloom, "pw-cat", gain)


@pytest.mark.parametrize("effect", neighbours.EFFECTS)
def test_anEffectThatIsMadeTheDefaultLaterTakesTheAppsAlong(stage, effect):
    with stage.fadeloom(settings({"pacat": app(volume=VOLUME)})) as fadeloom:
        playSine(stage, "paplay")
        stage.waitForTap(fadeloom, "pacat")
        gain = neighbours.start(stage.session, effect)
        assert waitForLevel(stage, "speakers", SOURCE * VOLUME) == pytest.approx([SOURCE * VOLUME] * 2, rel=0.01)

        stage.session.setDefault("effect")

        assertHeardThroughTheEffect(stage, fadeloom, "pacat", gain)


@pytest.mark.parametrize("module", [neighbours.FILTER, neighbours.LOOPBACK], ids=["filterChain", "loopback"])
def test_anEffectInTheServersConfigurationIsNotAnApp(module):
    session = AudioSession()
    neighbours.configureServer(session, module)
    with session:
        stage = Stage(session)
        session.setDefault("effect")
        with stage.fadeloom(settings({"pw-cat": app(volume=VOLUME)})) as fadeloom:
            playSine(stage)
            stage.waitForTap(fadeloom, "pw-cat")

            gain = neighbours.HALF if module is neighbours.FILTER else 1.0
            assertHeardThroughTheEffect(stage, fadeloom, "pw-cat", gain)


@pytest.mark.parametrize("isFirst", [True, False], ids=["before", "after"])
def test_appsAreHeardBesideEasyEffects(stage, isFirst):
    if isFirst:
        neighbours.startEasyEffects(stage.session)
    with stage.fadeloom(settings({"pw-cat": app(volume=VOLUME)})) as fadeloom:
        playSine(stage)
        stage.waitForTap(fadeloom, "pw-cat")
        if not isFirst:
            neighbours.startEasyEffects(stage.session)

        assert waitForLevel(stage, "speakers", SOURCE * VOLUME) == pytest.approx([SOURCE * VOLUME] * 2, rel=0.01)
        time.sleep(2)
        assert level(stage, "speakers") == pytest.approx([SOURCE * VOLUME] * 2, rel=0.01)
        assert fadeloom.command("list").startswith("ok list 1 app"), fadeloom.text()


@pytest.mark.parametrize("kind", ["native", "pulse"])
def test_aLoopbackOfTheSpeakersToTheHeadphonesIsLeftAlone(stage, kind):
    session = stage.session
    with stage.fadeloom(settings({"pw-cat": app(volume=VOLUME)})) as fadeloom:
        playSine(stage)
        stage.waitForTap(fadeloom, "pw-cat")
        if kind == "native":
            session.spawn("loopback", ["pw-loopback", "-m", "[ FL FR ]",
                                       "--capture-props", "{ stream.capture.sink=true target.object=speakers }",
                                       "--playback-props", "{ target.object=headphones }"])
        else:
            session.run("pactl", "load-module", "module-loopback", "source=speakers.monitor", "sink=headphones")

        assert waitForLevel(stage, "headphones", SOURCE * VOLUME) == pytest.approx([SOURCE * VOLUME] * 2, rel=0.01)
        heard = steadySamples(stage, "speakers")
        assert signals.typicalAmplitude(heard, 1000) == pytest.approx([SOURCE * VOLUME] * 2, rel=0.01)
        # A gap or an echo would be a jump.
        assert numpy.abs(numpy.diff(heard[:, 0])).max() < 1.05 * SOURCE * VOLUME * 2 * numpy.pi * 1000 / signals.RATE
        assert fadeloom.command("list").startswith("ok list 1 app"), fadeloom.text()


def steadySamples(stage, device, seconds=3):
    recording = stage.session.recordDevice("steady", device)
    time.sleep(seconds)
    stage.session.endRecording("steady")
    recorded = signals.read(recording)
    return recorded[len(recorded) // 5:]
