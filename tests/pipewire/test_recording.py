# SPDX-License-Identifier: MIT
"""Recordings of real players in a real graph, sample by sample, and what can happen to them."""

import os
import pathlib
import shlex
import shutil
import signal
import subprocess
import time

import numpy
import pytest

import signals
from fadeloomProcess import app, settings

MUSIC = pathlib.Path("home") / "Music" / "Fadeloom Recordings"


def waves(stage):
    return sorted((stage.folder / MUSIC).glob("*.wav"))


def saved(fadeloom, after=0):
    """The path of the last recording that was stopped."""
    fadeloom.waitFor("recording saved", after=after)
    line = [line for line in fadeloom.text() if line.startswith("recording saved")][-1]
    return pathlib.Path(shlex.split(line)[2])


def start(fadeloom, bundleID):
    assert fadeloom.command(f"record {bundleID} start") == f"ok record {bundleID} start"
    return time.monotonic()


def stop(fadeloom, bundleID):
    """Stops a recording and waits until its file is closed; returns the file."""
    after = len(fadeloom.lines)
    assert fadeloom.command(f"record {bundleID} stop") == f"ok record {bundleID} stop"
    file = saved(fadeloom, after)
    time.sleep(0.7)
    return file


def framesIn(tool, file):
    """The number of frames that another program finds in the file."""
    if tool == "sox":
        return int(subprocess.run(["soxi", "-s", str(file)], check=True, capture_output=True, text=True).stdout)
    said = subprocess.run(["sndfile-info", str(file)], check=True, capture_output=True, text=True).stdout
    return int(next(line for line in said.splitlines() if line.startswith("Frames")).split(":")[1])


QUANTUM = 2048  # Frames per cycle at 48 kHz: players are not real-time here, and glitch with less.


def assertIsPartOf(recorded, written):
    """Every sample of a recording is one of the source's, in order and without gaps."""
    middle = recorded[len(recorded) // 2:len(recorded) // 2 + 4096, 0] / 2.0**23
    offset = signals.delay(middle, written[:, 0]) - len(recorded) // 2
    source = numpy.round(written * 2.0**23).astype(numpy.int32)  # The player's 16-bit samples, exactly.
    assert 0 <= offset and offset + len(recorded) <= len(source)
    numpy.testing.assert_array_equal(recorded, source[offset:offset + len(recorded)])


@pytest.mark.parametrize("rate", [44100, 48000, 96000])
def test_recordingsAreExactRegardlessOfTheSettings(stage, rate):
    """Three apps at once, each muted, equalized and attenuated, at each rate of the graph."""
    seconds = 20
    players = {"pw-play": "pw-cat", "paplay": "pacat", "ffmpeg": "ffmpeg"}
    stage.session.setRate(rate)
    stage.session.setQuantum(2 * QUANTUM if rate > signals.RATE else QUANTUM)
    altered = app(muted=True, volume=0.3, eqEnabled=True, eqGains=[6.0] * 10, eqPreamp=-4.0)
    written = {}
    with stage.fadeloom(settings({bundleID: altered for bundleID in players.values()})) as fadeloom:
        for seed, (player, bundleID) in enumerate(players.items()):
            file = stage.folder / f"{player}.wav"
            written[bundleID] = signals.write(file, signals.noise(0.9, seconds + 10, rate, seed=seed), rate)
            stage.play(player, file)
        for bundleID in players.values():
            fadeloom.waitFor(f"audio flowing through tap: {bundleID}", seconds=12)
        device = stage.session.recordDevice("recording", "speakers")
        started = {bundleID: start(fadeloom, bundleID) for bundleID in players.values()}
        time.sleep(seconds)
        elapsed, files = {}, {}
        for bundleID in players.values():
            elapsed[bundleID] = time.monotonic() - started[bundleID]
            files[bundleID] = stop(fadeloom, bundleID)
        stage.session.endRecording("recording")

    assert not signals.read(device).any()
    for bundleID in players.values():
        fileRate, recorded = signals.readWave24(files[bundleID])
        assert fileRate == rate
        assert len(recorded) / rate == pytest.approx(elapsed[bundleID], abs=0.15)
        assertIsPartOf(recorded, written[bundleID])
        assert framesIn("sox", files[bundleID]) == framesIn("sndfile-info", files[bundleID]) == len(recorded)


def recordedPlayer(stage, fadeloom, seconds=30, player="pw-play", bundleID="pw-cat"):
    """Plays noise and starts recording it; returns the samples of the source."""
    stage.session.setQuantum(QUANTUM)
    file = stage.folder / "noise.wav"
    written = signals.write(file, signals.noise(0.5, seconds))
    stage.play(player, file)
    fadeloom.waitFor(f"audio flowing through tap: {bundleID}", seconds=12)
    start(fadeloom, bundleID)
    return written


def test_aKilledProgramLeavesAllButTheLastSecond(stage):
    with stage.fadeloom(settings({"pw-cat": app()})) as fadeloom:
        recordedPlayer(stage, fadeloom)
        started = time.monotonic()
        time.sleep(3.4)
        stage.session.end("fadeloom", signal.SIGKILL)
        elapsed = time.monotonic() - started

    (file,) = waves(stage)
    for tool in ("sndfile-info", "sox"):
        assert framesIn(tool, file) / signals.RATE == pytest.approx(elapsed - 0.5, abs=0.6)
    subprocess.run(["sox", str(file), str(stage.folder / "copy.wav")], check=True, capture_output=True)


def smallDisk(folder, size):
    """The command that starts a program with a private disk of `size` mounted on the folder."""
    private = ["unshare", "--mount"] if os.geteuid() == 0 else ["unshare", "--map-root-user", "--mount"]
    return [*private, "sh", "-c",
            f'mount -t tmpfs -o size={size} tmpfs {shlex.quote(str(folder))} && exec "$0" "$@"']


def test_aFullDiskEndsTheRecordingAndNotTheSound(stage):
    folder = stage.folder / "small"
    folder.mkdir()
    wanted = settings({"pw-cat": app()}, recordingsFolder=str(folder))
    with stage.fadeloom(wanted, wrapper=smallDisk(folder, "1m")) as fadeloom:
        fadeloom.waitFor("default speakers")
        recordedPlayer(stage, fadeloom)
        device = stage.session.recordDevice("recording", "speakers")
        fadeloom.waitFor("No space left on device", seconds=12)
        message = next(line for line in fadeloom.text() if line.startswith("message"))
        time.sleep(1)
        stage.session.endRecording("recording")
        file = saved(fadeloom)
        seen = pathlib.Path(f"/proc/{fadeloom.programID()}/root") / file.relative_to("/")
        kept = stage.folder / "kept.wav"
        shutil.copy(seen, kept)

    assert message == ('message "Recording of pw-cat stopped: the file could not be written '
                       '(No space left on device)."')
    assert 2.5 < framesIn("sndfile-info", kept) / signals.RATE < 4
    assert framesIn("sox", kept) == framesIn("sndfile-info", kept)
    heard = signals.read(device)
    loud = numpy.abs(heard).max(axis=1) > 0
    assert len(heard) > 2 * signals.RATE
    assert loud[numpy.flatnonzero(loud)[0]:].mean() > 0.999  # Noise without a gap.


def test_stopAndStartAtOnceGivesTwoFiles(stage):
    with stage.fadeloom(settings({"pw-cat": app()})) as fadeloom:
        written = recordedPlayer(stage, fadeloom)
        time.sleep(0.8)
        assert fadeloom.command("record pw-cat stop").startswith("ok")
        start(fadeloom, "pw-cat")
        time.sleep(0.8)
        stop(fadeloom, "pw-cat")

    first, second = waves(stage)
    for file in (first, second):
        rate, recorded = signals.readWave24(file)
        assert len(recorded) > 0.5 * rate
        assertIsPartOf(recorded, written)


def test_anotherRateOfTheOutputEndsTheRecording(stage):
    with stage.fadeloom(settings({"pw-cat": app()})) as fadeloom:
        recordedPlayer(stage, fadeloom)
        time.sleep(1.5)

        stage.session.setRate(44100)
        fadeloom.waitFor('message "Recording of pw-cat stopped: the output device changed its sample rate."', seconds=8)
        file = saved(fadeloom)
        time.sleep(0.7)
        again = start(fadeloom, "pw-cat")
        time.sleep(1)
        elapsed = time.monotonic() - again
        second = stop(fadeloom, "pw-cat")

    assert signals.readWave24(file)[0] == 48000
    rate, recorded = signals.readWave24(second)
    assert rate == 44100
    assert len(recorded) / rate == pytest.approx(elapsed, abs=0.2)


def test_quittingWhileRecordingLeavesAWholeFile(stage):
    with stage.fadeloom(settings({"pw-cat": app()})) as fadeloom:
        written = recordedPlayer(stage, fadeloom)
        time.sleep(1.5)
        assert fadeloom.quit() == 0

    (file,) = waves(stage)
    rate, recorded = signals.readWave24(file)
    assert len(recorded) > 1.2 * rate
    assertIsPartOf(recorded, written)


def test_recordingsGoToAFolderOfAnyName(stage):
    folder = stage.folder / "Nagrania: zażółć 'gęślą' \"jaźń\" 🎧"
    with stage.fadeloom(settings({"pw-cat": app()}, recordingsFolder=str(folder))) as fadeloom:
        recordedPlayer(stage, fadeloom)
        time.sleep(0.5)
        assert fadeloom.quit() == 0

    (file,) = folder.glob("*.wav")
    assert len(signals.readWave24(file)[1]) > 0


def test_aFolderThatCannotBeMadeIsSaid(stage):
    (stage.folder / "home" / "Music").write_text("a file where the folder should be")
    with stage.fadeloom(settings({"pw-cat": app()})) as fadeloom:
        file = stage.folder / "noise.wav"
        signals.write(file, signals.noise(0.5, 10))
        stage.play("pw-play", file)
        stage.waitForTap(fadeloom, "pw-cat")

        answer = fadeloom.command("record pw-cat start")

    assert answer.startswith("error Could not start recording: ")
    assert answer.endswith("Not a directory")
