# SPDX-License-Identifier: MIT
"""Capturing an application and releasing it: nothing missing, nothing doubled, nothing delayed.

The signal rises steadily, so that every sample identifies its position in the file; its level identifies the path.
"""

import signal
import subprocess
import time

import numpy
import pytest

import signals
from audioSession import waitUntil
from conftest import PLAYERS
from fadeloomProcess import app, settings

QUARTER = 0.25  # The volume of the tapped app.


def kinds(stretches):
    """The paths that the audio took, in order, ignoring silence in between."""
    ways = [kind for kind, *_ in stretches if kind != "silent"]
    return [way for place, way in enumerate(ways) if place == 0 or ways[place - 1] != way]


def gap(stretches, before, after):
    """The number of silent frames between the last one of `before` and the first one of `after` that follows it."""
    for place, (kind, first, frames, *_) in enumerate(stretches):
        rest = [stretch for stretch in stretches[place + 1:] if stretch[0] != "silent"]
        if kind == before and rest and rest[0][0] == after:
            return rest[0][1] - (first + frames)
    raise AssertionError(f"{after} never follows {before} in {stretches}")


def stumble(stretches):
    """The longest silence in frames within one path: the player or the machine was late there, and may be again."""
    return max((frames for (before, *_), (kind, _, frames, *_), (after, *_)
                in zip(stretches, stretches[1:], stretches[2:]) if kind == "silent" and before == after), default=0)


def heard(recording):
    """The segments of a recording from the first to the last sound."""
    stretches = signals.stretches(signals.read(recording)[:, 0])
    while stretches and stretches[0][0] == "silent":
        stretches.pop(0)
    while stretches and stretches[-1][0] == "silent":
        stretches.pop()
    return stretches


def rampFile(stage, seconds):
    file = stage.folder / f"ramp{seconds}.wav"
    signals.write(file, signals.ramp(seconds, 0.40, 0.45))
    return file


@pytest.mark.parametrize("player", ["pw-play", "paplay"])
@pytest.mark.parametrize("quantum", [128, 1024])
def test_aPlayingAppIsCapturedAndReleasedWithoutAGap(stage, player, quantum):
    bundleID = PLAYERS[player][0]
    stage.session.setQuantum(quantum)
    process, _ = stage.play(player, rampFile(stage, 6))
    recording = stage.session.recordDevice("recording", "speakers")
    time.sleep(0.8)

    with stage.fadeloom(settings({bundleID: app(volume=QUARTER)})) as fadeloom:
        stage.waitForTap(fadeloom, bundleID)
        time.sleep(0.7)
        assert fadeloom.quit() == 0
    time.sleep(0.5)
    stage.session.endRecording("recording")

    stretches = heard(recording)
    assert sum(frames for kind, _, frames, *_ in stretches if kind == "both") <= quantum
    stretches = [stretch for stretch in stretches if stretch[0] != "both"]
    assert kinds(stretches) == ["direct", "tapped", "direct"]
    assert gap(stretches, "direct", "tapped") <= quantum + stumble(stretches)
    assert gap(stretches, "tapped", "direct") <= quantum + stumble(stretches)


@pytest.mark.parametrize("player", ["pw-play", "paplay", "ffmpeg", "mpv-pulse", "mpv-pipewire"])
def test_aSecondStreamOfATappedAppIsNotHeardBeside(stage, player):
    bundleID = PLAYERS[player][0]
    silence = stage.folder / "silence.wav"
    signals.write(silence, signals.sine(100, 0.0, 6))
    with stage.fadeloom(settings({bundleID: app(volume=QUARTER)})) as fadeloom:
        stage.play(player, silence)
        stage.waitForTap(fadeloom, bundleID)
        recording = stage.session.recordDevice("recording", "speakers")
        time.sleep(0.3)

        process, _ = stage.play(player, rampFile(stage, 2))
        stage.waitForEnd(process)
        time.sleep(0.2)
        stage.session.endRecording("recording")

    # Another process of the same application: until the tap has captured it, it may be audible directly, but never on
    # both paths at once, and once captured it stays so.
    assert kinds(heard(recording)) in (["tapped"], ["direct", "tapped"])


def test_aNextTrackOfATappedPlayerIsCapturedFromItsFirstSample(stage):
    """mpv closes its client after each file: the next one is a new client and a new stream of the same process."""
    file = rampFile(stage, 1.5)
    socket = stage.folder / "mpv.socket"
    with stage.fadeloom(settings({"mpv": app(volume=QUARTER)})) as fadeloom:
        stage.session.spawn("mpv", ["mpv", "--no-config", "--really-quiet", "--idle", "--ao=pipewire",
                                    f"--input-ipc-server={socket}", str(file)])
        stage.waitForTap(fadeloom, "mpv")
        fadeloom.waitFor("app silent mpv")
        recording = stage.session.recordDevice("recording", "speakers")
        time.sleep(0.3)

        for _ in range(3):
            sendToPlayer(stage, socket, '{"command":["loadfile","%s"]}' % file)
            time.sleep(2.2)
        stage.session.endRecording("recording")

    tracks = []
    for stretch in heard(recording):
        kind, _, frames, *_ = stretch
        if kind == "silent" and frames > 0.2 * signals.RATE:
            tracks.append([])  # The pause between two tracks, not a missed cycle.
        elif kind != "silent":
            tracks = tracks or [[]]
            tracks[-1].append(stretch)
    assert [kinds(track) for track in tracks] == [["tapped"]] * 3
    # If the device is already running, the graph may run a player's first cycle before our node has started.
    oneCycle = 1024 * 0.05 / (1.5 * signals.RATE) * QUARTER
    for track in tracks:
        first, last = track[0][3], track[-1][4]
        assert 0.40 * QUARTER - 2 / 32768 <= first <= 0.40 * QUARTER + oneCycle
        assert last == pytest.approx(0.45 * QUARTER, abs=2e-4)


@pytest.mark.parametrize("player", ["pw-play", "paplay", "ffmpeg"])
def test_nothingIsMissingAtTheStartOfAFurtherProcess(stage, player):
    """Another process of a tapped application is audible from its first sample on, directly or through the tap."""
    bundleID = PLAYERS[player][0]
    file = rampFile(stage, 1.5)
    silence = stage.folder / "silence.wav"
    signals.write(silence, signals.sine(100, 0.0, 8))
    with stage.fadeloom(settings({bundleID: app(volume=QUARTER)})) as fadeloom:
        stage.play(player, silence)
        stage.waitForTap(fadeloom, bundleID)
        recording = stage.session.recordDevice("recording", "speakers")
        process, _ = stage.play(player, file)
        stage.waitForEnd(process)
        stage.session.endRecording("recording")

    first = next(stretch for stretch in heard(recording))
    assert first[3] in (pytest.approx(0.40 * QUARTER, abs=2 / 32768), pytest.approx(0.40, abs=2 / 32768))


def sendToPlayer(stage, socket, line):
    code = ("import socket,sys; s=socket.socket(socket.AF_UNIX); s.connect(sys.argv[1]);"
            "s.sendall(sys.argv[2].encode()+b'\\n'); s.recv(100)")
    subprocess.run(["/usr/bin/python3", "-c", code, str(socket), line], check=True, timeout=5)


@pytest.mark.parametrize("quantum", [128, 1024])
def test_noDelayIsAdded(stage, quantum):
    """The app's own port compared with the device's monitor, in one recording: first direct, then tapped."""
    stage.session.setQuantum(quantum)
    file = stage.folder / "noise.wav"
    signals.write(file, signals.noise(0.5, 6))
    stage.play("pw-play", file, "player")

    def delayNow(name):
        waitUntil(lambda: any(link[0].startswith("pw-play:") for link in stage.session.links()), "the stream")
        recording = stage.session.record(name, "pw-play:output_FL", "speakers:monitor_FL", quantum=quantum)
        time.sleep(1.0)
        stage.session.endRecording(name)
        recorded = signals.read(recording)[2048:]
        assert numpy.abs(recorded).max(axis=0).min() > 0.2
        return signals.delay(recorded[:, 0], recorded[:, 1])

    direct = delayNow("direct")
    with stage.fadeloom(settings({"pw-cat": app(volume=0.5)})) as fadeloom:
        stage.waitForTap(fadeloom, "pw-cat")
        time.sleep(0.5)
        tapped = delayNow("tapped")

    assert tapped - direct == 0


@pytest.mark.parametrize("player", ["pw-play", "paplay"])
def test_aKilledFadeloomLeavesTheAppOnItsOwnDevice(stage, player):
    bundleID = PLAYERS[player][0]
    stage.play(player, rampFile(stage, 6), "player")
    recording = stage.session.recordDevice("recording", "speakers")
    time.sleep(0.8)
    objects = len(stage.session.dump())
    state = storedState(stage)

    with stage.fadeloom(settings({bundleID: app(volume=QUARTER)})) as fadeloom:
        stage.waitForTap(fadeloom, bundleID)
        time.sleep(0.5)
        stage.session.end("fadeloom", signal.SIGKILL)
    time.sleep(1.2)
    stage.session.endRecording("recording")

    stretches = heard(recording)
    assert kinds(stretches) == ["direct", "tapped", "direct"]
    assert gap(stretches, "tapped", "direct") < 0.2 * signals.RATE
    waitUntil(lambda: len(stage.session.dump()) <= objects, "the graph to be as it was")
    assert not any("fadeloom" in node["props"].get("node.name", "") for node in stage.session.nodes())
    assert storedState(stage) == state


def storedState(stage):
    """What the session manager has stored about streams, without our recorder's and the players' volumes."""
    files = sorted((stage.folder / "state").rglob("*"))
    lines = [line for file in files if file.is_file() for line in file.read_text().splitlines()]
    return sorted(line for line in lines if "target" in line or "fadeloom" in line.lower())


def test_theUsersOwnTargetOutlivesTapAndKill(stage):
    """A stream that the user moved to the headphones returns there afterwards, and so does the next one."""
    session = stage.session
    stage.play("pw-play", rampFile(stage, 8), "player")
    stream = waitUntil(lambda: session.nodeId("pw-play"), "the stream")
    headphones = next(node for node in session.nodes() if node["props"].get("node.name") == "headphones")
    session.run("pw-metadata", str(stream), "target.object", str(headphones["props"]["object.serial"]), "Spa:Id")
    waitUntil(lambda: stage.isLinked("pw-play:", "headphones:"), "the stream on the headphones")
    time.sleep(1.2)  # The session manager stores its state a second after a change.

    with stage.fadeloom(settings({"pw-cat": app(volume=QUARTER)})) as fadeloom:
        stage.waitForTap(fadeloom, "pw-cat")
        time.sleep(0.5)
        assert fadeloom.quit() == 0
    waitUntil(lambda: stage.isLinked("pw-play:", "headphones:"), "the stream back on the headphones")

    with stage.fadeloom(settings({"pw-cat": app(volume=QUARTER)})) as fadeloom:
        stage.waitForTap(fadeloom, "pw-cat")
        time.sleep(1.5)
        session.end("fadeloom", signal.SIGKILL)
    session.end("player")
    time.sleep(1.2)
    stage.play("pw-play", rampFile(stage, 8), "player")
    waitUntil(lambda: stage.isLinked("pw-play:", "headphones:"), "the next stream on the headphones")
