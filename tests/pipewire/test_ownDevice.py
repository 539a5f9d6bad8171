# SPDX-License-Identifier: MIT
"""Streams with their own device, and people and programs that move them."""

import signal
import time

import pytest

import signals
from audioSession import waitUntil
from fadeloomProcess import app, settings


def playOnHeadphones(stage, how):
    """A player whose target is set by its own property or by somebody else; returns its stream's id."""
    session = stage.session
    file = stage.folder / "sine.wav"
    signals.write(file, signals.sine(1000, 0.4, 20))
    session.spawn("player", ["pw-play", *(["--target", "headphones"] if how == "property" else []), str(file)])
    stream = waitUntil(lambda: session.nodeId("pw-play"), "the stream")
    if how == "metadata":
        move(session, stream, "headphones")
    waitUntil(lambda: stage.isLinked("pw-play:", "headphones:"), "the stream on the headphones")
    return stream


def serialOf(session, device):
    return waitUntil(lambda: next((node["props"]["object.serial"] for node in session.nodes()
                                   if node["props"].get("node.name") == device), None), device)


def move(session, stream, device):
    moveTo(session, stream, serialOf(session, device))


def moveTo(session, stream, serial):
    session.run("pw-metadata", str(stream), "target.object", str(serial), "Spa:Id")


@pytest.mark.parametrize("how", ["property", "metadata"])
def test_theNextRunAfterAKillReturnsAStreamToItsOwnDevice(stage, how):
    playOnHeadphones(stage, how)
    with stage.fadeloom(settings({"pw-cat": app(volume=0.5)})) as fadeloom:
        stage.waitForTap(fadeloom, "pw-cat")
        time.sleep(0.5)
        stage.session.end("fadeloom", signal.SIGKILL)
    waitUntil(lambda: stage.isLinked("pw-play:", ":playback"), "the stream on a device")

    with stage.fadeloom() as fadeloom:
        stage.waitForTap(fadeloom, "pw-cat")
        time.sleep(0.5)
        assert fadeloom.quit() == 0

    waitUntil(lambda: stage.isLinked("pw-play:", "headphones:"), "the stream back on the headphones")
    assert not stage.isLinked("pw-play:", "speakers:")


def test_aSingleMoveIsReverted(stage):
    """With an output selected for the app, a single move by somebody else is reverted."""
    with stage.fadeloom(settings({"pw-cat": app(volume=0.5, outputUID="speakers")})) as fadeloom:
        file = stage.folder / "sine.wav"
        signals.write(file, signals.sine(1000, 0.4, 20))
        stage.play("pw-play", file)
        stage.waitForTap(fadeloom, "pw-cat")
        stream = waitUntil(lambda: stage.session.nodeId("pw-play"), "the stream")
        time.sleep(0.5)

        move(stage.session, stream, "headphones")
        time.sleep(1)

        assert stage.isLinked("pw-play:", "com.fadeloom.tap.")
        assert not stage.isLinked("pw-play:", "headphones:")
        assert not any("keeps moving" in line for line in fadeloom.text())


def test_whoKeepsMovingAStreamIsLeftAlone(stage):
    with stage.fadeloom(settings({"pw-cat": app(volume=0.5)})) as fadeloom:
        file = stage.folder / "sine.wav"
        signals.write(file, signals.sine(1000, 0.4, 20))
        stage.play("pw-play", file)
        stage.waitForTap(fadeloom, "pw-cat")
        stream = waitUntil(lambda: stage.session.nodeId("pw-play"), "the stream")
        time.sleep(0.5)

        headphones = serialOf(stage.session, "headphones")
        moves = 0
        while not any("keeps moving is left alone" in line for line in fadeloom.text()):
            moves += 1
            assert moves <= 8, fadeloom.text()
            moveTo(stage.session, stream, headphones)
            time.sleep(1)  # A change that a tool makes is visible once the tool has exited, at the latest.
        assert moves >= 3
        fadeloom.waitFor("out of reach: pw-cat, another program keeps moving its stream")

        waitUntil(lambda: stage.isLinked("pw-play:", "headphones:"), "the stream where it was moved")
        waitUntil(lambda: not stage.isLinked("pw-play:", "com.fadeloom.tap."), "the stream to leave the tap")
        move(stage.session, stream, "speakers")
        waitUntil(lambda: stage.isLinked("pw-play:", "speakers:"), "the stream where it was moved")
