# SPDX-License-Identifier: MIT
"""Server restarts, streams that must be left alone, and our visibility to others."""

import os
import time

import numpy
import pytest

import signals
from audioSession import AudioSession, SessionError, waitUntil
from conftest import Stage
from fadeloomProcess import app, settings


def sineFile(stage, seconds=20):
    file = stage.folder / "sine.wav"
    signals.write(file, signals.sine(1000, 0.5, seconds))
    return file


def test_withoutAServerItWaitsAndTakesTheServerUpWhenItComes():
    session = AudioSession()
    stage = Stage(session)
    try:
        with stage.fadeloom(settings({"pw-cat": app(volume=0.5)})) as fadeloom:
            fadeloom.waitFor("no PipeWire server; waiting for one")
            assert fadeloom.command("list").startswith("ok list 0 apps")

            session.start()
            fadeloom.waitFor("connected to PipeWire")
            stage.play("pw-play", sineFile(stage))
            stage.waitForTap(fadeloom, "pw-cat")
            assert sum("no PipeWire server" in line for line in fadeloom.text()) == 1
    finally:
        session.stop()


def test_afterARestartOfTheServerTheTapsAreBackWithinTwoSeconds(stage):
    session = stage.session
    with stage.fadeloom(settings({"pw-cat": app(volume=0.5)})) as fadeloom:
        stage.play("pw-play", sineFile(stage))
        stage.waitForTap(fadeloom, "pw-cat")
        before = len(fadeloom.lines)

        for name in ("pipewire-pulse", "wireplumber", "pipewire"):
            session.end(name)
        fadeloom.waitFor("no PipeWire server", after=before)
        waitUntil(lambda: not (session.folder / "run" / "pipewire-0").exists(), "the socket to go")
        session.startServer()
        session.startSessionManager()
        session.startPulse()
        session.plug("speakers", "Speakers")
        stage.play("pw-play", sineFile(stage))
        waitUntil(lambda: session.nodeId("pw-play"), "the player")
        playing = time.monotonic()

        _, ready = fadeloom.waitFor("tap ready: pw-cat", after=before)
        assert ready - playing < 2.0
        waitUntil(lambda: stage.isLinked("pw-play:", "com.fadeloom.tap."), "the stream in the tap")


def restartSessionManager(session):
    session.end("wireplumber")
    time.sleep(0.3)
    session.startSessionManager()
    time.sleep(1.0)


def soundDuringARestartOfTheSessionManager(stage):
    """The device's output while the session manager is restarted, with a tapped app; None if the restarted one has
    removed all links of the app's stream."""
    with stage.fadeloom(settings({"pw-cat": app(volume=0.5)})) as fadeloom:
        stage.play("pw-play", sineFile(stage))
        stage.waitForTap(fadeloom, "pw-cat")
        time.sleep(1)  # It is still setting up a new stream for a while.
        recording = stage.session.recordDevice("recording", "speakers")
        time.sleep(0.3)

        restartSessionManager(stage.session)
        stage.session.endRecording("recording")
        try:
            waitUntil(lambda: stage.isLinked("pw-play:", "com.fadeloom.tap."), "the stream in the tap", 4)
        except SessionError:
            return None
    return signals.read(recording)


def test_aRestartOfTheSessionManagerDoesNotInterruptATappedApp():
    # A restarted WirePlumber 0.4 leaves streams unlinked every time, without us; the tapped one continues. But it also
    # changes the recorder's format, and in about one run of ten the recorder does not survive that: three attempts.
    for _ in range(3):
        with AudioSession() as session:
            recorded = soundDuringARestartOfTheSessionManager(Stage(session))
        loud = numpy.abs(recorded).max(axis=1) > 0 if recorded is not None else numpy.zeros(0, bool)
        if loud.sum() > signals.RATE:
            break
    assert loud.sum() > signals.RATE
    assert numpy.abs(recorded).max() == pytest.approx(0.25, rel=0.01)
    sounding = loud[numpy.flatnonzero(loud)[0]:]
    assert longestRun(~sounding) < signals.RATE / 100


def longestRun(flags):
    """The length of the longest run of set flags."""
    edges = numpy.flatnonzero(numpy.diff(numpy.concatenate(([False], flags, [False])).astype(int)))
    return int((edges[1::2] - edges[::2]).max(initial=0))


def newAppIsLinkedAfterARestart(stage):
    """Whether this session manager links a new stream at all after its own restart."""
    restartSessionManager(stage.session)
    stage.play("paplay", sineFile(stage), "after")
    try:
        waitUntil(lambda: any(link[0].startswith("paplay:") for link in stage.session.links()), "a link", 4)
        return True
    except SessionError:
        return False


def test_aNewAppIsTappedAfterARestartOfTheSessionManager(stage):
    # The control experiment: WirePlumber 0.4 does not always link anything after a restart, with or without us.
    with AudioSession() as control:
        controlStage = Stage(control)
        controlStage.play("pw-play", sineFile(controlStage))
        time.sleep(0.5)
        worksAlone = newAppIsLinkedAfterARestart(controlStage)

    with stage.fadeloom(settings({"pacat": app(volume=0.5)})) as fadeloom:
        stage.play("pw-play", sineFile(stage))
        stage.waitForTap(fadeloom, "pw-cat")
        isLinked = newAppIsLinkedAfterARestart(stage)
        assert isLinked or not worksAlone
        if isLinked:
            stage.waitForTap(fadeloom, "pacat")


def test_nothingOfOursIsListedByVolumeMixers(stage):
    with stage.fadeloom(settings({"pw-cat": app(volume=0.5)})) as fadeloom:
        stage.play("pw-play", sineFile(stage))
        stage.play("paplay", sineFile(stage))
        stage.waitForTap(fadeloom, "pw-cat")
        stage.waitForTap(fadeloom, "pacat")

        for kind in ("sinks", "sources", "source-outputs", "sink-inputs", "cards"):
            assert "adeloom" not in stage.session.run("pactl", "list", kind), kind
        assert len(stage.session.run("pactl", "list", "short", "sinks").splitlines()) == 2
        assert len(stage.session.run("pactl", "list", "short", "sink-inputs").splitlines()) == 2
        assert stage.session.defaultSink() == "speakers"


def test_aStreamThatInsistsOnItsTargetIsLeftAlone(stage):
    with stage.fadeloom(settings({"pw-cat": app(volume=0.5)})) as fadeloom:
        file = sineFile(stage)
        stage.session.spawn("fixed", ["pw-play", "-P", "{ node.dont-reconnect=true node.name=fixed }", str(file)])
        fadeloom.waitFor("tap ready: pw-cat")
        time.sleep(1.0)

        assert stage.isLinked("fixed:", "speakers:")
        assert not stage.isLinked("fixed:", "com.fadeloom.tap.")


def test_aNotificationSoundIsNotAnApp(stage):
    with stage.fadeloom(settings()) as fadeloom:
        stage.session.spawn("bell", ["pw-play", "--media-role", "Notification", str(sineFile(stage))])
        waitUntil(lambda: stage.isLinked("pw-play:", "speakers:"), "the bell")
        time.sleep(0.5)

        assert fadeloom.command("list").startswith("ok list 0 apps")


def test_aPausedTapLetsItsDeviceSleep():
    """Suspending requires the session manager's own timeout, which the other tests disable."""
    with AudioSession(defaultSinks=False) as session:
        stage = Stage(session)
        session.plug("speakers", suspendAfter=1)
        session.setDefault("speakers")
        socket = session.folder / "mpv.socket"
        with stage.fadeloom(settings({"mpv": app(volume=0.5)})) as fadeloom:
            session.spawn("mpv", ["mpv", "--no-config", "--really-quiet", "--ao=pipewire",
                                  f"--input-ipc-server={socket}", str(sineFile(stage))])
            stage.waitForTap(fadeloom, "mpv")
            from test_takeover import sendToPlayer
            sendToPlayer(stage, socket, '{"command":["set_property","pause",true]}')
            fadeloom.waitFor("app silent mpv")

            def state():
                return {node["props"].get("node.name"): node["info"]["state"] for node in session.nodes()}.get("speakers")
            waitUntil(lambda: state() == "suspended", "the device to sleep", 5)


def test_theProgramSavesWhatWasChangedAndEndsWithStatusZero(stage):
    with stage.fadeloom(settings({"pw-cat": app()})) as fadeloom:
        stage.play("pw-play", sineFile(stage))
        stage.waitForTap(fadeloom, "pw-cat")
        assert fadeloom.command("volume pw-cat 0.3").startswith("ok")
        assert fadeloom.quit() == 0

    assert '"volume": 0.3' in fadeloom.settingsFile.read_text()
    assert os.stat(fadeloom.settingsFile).st_size > 0
