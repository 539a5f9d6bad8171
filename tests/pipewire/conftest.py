# SPDX-License-Identifier: MIT
"""Real players, a real graph, the real program: shared by the tests in this folder."""

import os
import pathlib
import shutil
import sys

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))

from audioSession import AudioSession, waitUntil  # noqa: E402
from fadeloomProcess import FadeloomProcess  # noqa: E402

LONG = bool(os.environ.get("FADELOOM_LONG"))  # Set by `./test --long`, for the long form of slow tests.

PLAYERS = {
    "pw-play": ("pw-cat", lambda file: ["pw-play", file]),
    "paplay": ("pacat", lambda file: ["paplay", "--latency-msec=100", file]),
    "ffmpeg": ("ffmpeg", lambda file: ["ffmpeg", "-loglevel", "error", "-re", "-i", file, "-f", "pulse", "out"]),
    "mpv-pulse": ("mpv", lambda file: ["mpv", "--no-config", "--really-quiet", "--ao=pulse", file]),
    "mpv-pipewire": ("mpv", lambda file: ["mpv", "--no-config", "--really-quiet", "--ao=pipewire", file]),
}


def program():
    return os.environ.get("FADELOOM", str(ROOT / "build" / "dev" / "fadeloom"))


class Stage:
    """A session with the operations of the tests."""

    def __init__(self, session):
        self.session = session
        self.folder = session.folder
        self.count = 0

    def fadeloom(self, settings=None, **options):
        return FadeloomProcess(self.session, program(), settings, **options)

    def makeApp(self, name):
        """A copy of pw-cat under another name: an app with this bundle identifier. Returns its path."""
        path = self.folder / name
        shutil.copy(shutil.which("pw-cat"), path)
        return str(path)

    def play(self, player, file, name=None):
        """Starts a player; returns the name of its process in the session and the app's bundle identifier."""
        self.count += 1
        bundleID, command = PLAYERS[player]
        process = name or f"player{self.count}"
        self.session.spawn(process, command(str(file)))
        return process, bundleID

    def waitForEnd(self, process, seconds=20):
        return self.session.processes.pop(process).wait(seconds)

    def isLinked(self, output, input):
        return any(output in link[0] and input in link[1] for link in self.session.links())

    def waitForTap(self, fadeloom, bundleID, after=0):
        """Waits until the app's audio runs through a tap; returns the number of the line that reported it."""
        number, _ = fadeloom.waitFor(f"tap ready: {bundleID} ", after=after)
        waitUntil(lambda: self.isLinked("", "com.fadeloom.tap."), "the streams of the tap")
        return number


@pytest.fixture
def stage():
    with AudioSession() as session:
        yield Stage(session)


@pytest.fixture(scope="module")
def sharedStage():
    """For tests that leave the session as they found it."""
    with AudioSession() as session:
        yield Stage(session)
