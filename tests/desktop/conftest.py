# SPDX-License-Identifier: MIT
"""The program with its icon and panel on a private desktop, with real players in a real graph."""

import contextlib
import json
import os
import pathlib
import shutil
import sys
import time

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))

import signals  # noqa: E402
from audioSession import waitUntil  # noqa: E402
from desktopSession import DesktopSession  # noqa: E402
from fadeloomProcess import settings  # noqa: E402


def program():
    return os.environ.get("FADELOOM", str(ROOT / "build" / "dev" / "fadeloom"))


class Desk:
    """The desktop with the program on it: the fixture of the tests."""

    def __init__(self, session):
        from person import Person  # Needs the running session's message bus.
        self.session = session
        self.person = Person(session)
        self.icon = None
        self.count = 0
        self.players = []

    # The program

    @property
    def settingsFile(self):
        return self.session.folder / "config" / "Fadeloom" / "settings.json"

    def saved(self):
        """The settings in the file."""
        with contextlib.suppress(OSError, json.JSONDecodeError):
            return json.loads(self.settingsFile.read_text())
        return {}

    def savedApp(self, bundleID):
        return self.saved().get("apps", {}).get(bundleID, {})

    def start(self, values=None, waitForIcon=True, **environment):
        """Starts the program with these settings; animations are off by default."""
        values = dict(values or settings())
        values.setdefault("appearance", {"animations": False})
        self.settingsFile.parent.mkdir(parents=True, exist_ok=True)
        self.settingsFile.write_text(json.dumps(values))
        before = self.session.pixels()
        self.session.spawn("fadeloom", [program()], environment=environment)
        if waitForIcon:
            self.icon = self.person.iconAppears(before)

    def isRunning(self):
        return "fadeloom" in self.session.processes and self.session.processes["fadeloom"].poll() is None

    def end(self):
        if "fadeloom" in self.session.processes:
            return self.session.end("fadeloom")
        return None

    def said(self):
        """The program's output to the terminal."""
        return (self.session.folder / "fadeloom.log").read_text()

    def panel(self):
        """The panel's geometry while it is open: x, y, width, height."""
        windows = self.session.windows("^Fadeloom$")
        return self.session.geometry(windows[-1]) if windows else None

    def open(self):
        self.session.click(*self.icon)
        return waitUntil(self.panel, "the panel")

    def waitUntilClosed(self):
        waitUntil(lambda: self.panel() is None, "the panel to close")

    def clean(self):
        """Ends everything that the test has started."""
        self.end()
        for name in self.players:
            if name in self.session.processes:
                self.session.end(name)

    # Players

    def play(self, name="Player", samples=None, frequency=1000):
        """Starts an application of this name that plays a sine of 0.2, or these samples. Its bundle identifier is its
        name."""
        file = self.session.folder / f"{name}.wav"
        signals.write(file, signals.sine(frequency, 0.2, 60) if samples is None else samples)
        copy = self.session.folder / name
        if not copy.exists():
            shutil.copy(shutil.which("pw-cat"), copy)
        self.players.append(name)
        self.session.spawn(name, [str(copy), "--playback", str(file)])

    def level(self, frequency=1000, device="speakers", seconds=0.6):
        """The amplitude of a sine in the device's current output."""
        self.count += 1
        name = f"listening{self.count}"
        file = self.session.recordDevice(name, device)
        time.sleep(seconds)
        self.session.endRecording(name)
        recorded = signals.read(file)[:, 0]
        if not recorded.any():
            return 0.0
        return float(signals.typicalAmplitude(recorded[len(recorded) // 4:].reshape(-1, 1), frequency)[0])

    def waitForLevel(self, wanted, relative=0.02, **options):
        """Waits until the device plays the sine at this level; 0 is digital silence."""
        heard = []

        def isReached():
            heard.append(self.level(**options))
            return abs(heard[-1] - wanted) <= wanted * relative
        waitUntil(isReached, f"the level {wanted:g}, heard {heard}", 10)


@pytest.fixture(scope="session")
def desktop():
    """One for all tests, because the accessibility library keeps the first session it has seen."""
    with DesktopSession() as session:
        os.environ.update({name: session.environment[name] for name in ("DISPLAY", "DBUS_SESSION_BUS_ADDRESS")})
        yield session


def use(session, tray):
    """Runs this kind of tray, or none, on the desktop."""
    if getattr(session, "tray", None) == tray:
        return
    if getattr(session, "tray", None):
        session.endTray()
    session.tray = tray
    if tray == "xfce4-panel":
        session.startXfcePanel()
    elif tray == "trayer":
        session.startTrayer()


@pytest.fixture
def makeDesk(desktop):
    """Creates a desk with the tray of this name; None for no tray."""
    desks = []

    def make(tray):
        use(desktop, tray)
        desks.append(Desk(desktop))
        return desks[-1]
    yield make
    for desk in desks:
        desk.clean()


@pytest.fixture
def desk(makeDesk):
    """With a StatusNotifier tray."""
    return makeDesk("xfce4-panel")


@pytest.fixture
def openDesk(desk):
    """A player plays at 0.2, with the panel open."""
    desk.play()
    desk.start()
    desk.open()
    desk.person.find("Player")
    return desk
