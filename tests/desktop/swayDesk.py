# SPDX-License-Identifier: MIT
"""The program on a Wayland desktop with sway: the fixture of the tests."""

import contextlib
import json
import time

import numpy

from audioSession import waitUntil
from busMenu import findMenu
from conftest import program
from fadeloomProcess import settings
from swaySession import BAR, SwaySession

PANEL = 380
GAP = 6
BACKGROUND = numpy.array([0x55, 0x77, 0xAA])


class SwayDesk:
    """The program on such a desktop."""

    def __init__(self, session):
        self.session = session

    def start(self):
        file = self.session.folder / "config" / "Fadeloom" / "settings.json"
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(json.dumps({**settings(), "appearance": {"animations": False}}))
        self.session.spawn("fadeloom", [program()])
        waitUntil(lambda: findMenu(self.session), "the icon")
        waitUntil(lambda: self.icon() is not None, "the icon in the bar")

    def log(self):
        return (self.session.folder / "config" / "Fadeloom" / "engine.log").read_text()

    def settingsOf(self, app):
        """An app's stored settings; empty while they are the defaults."""
        file = self.session.folder / "config" / "Fadeloom" / "settings.json"
        return json.loads(file.read_text()).get("apps", {}).get(app, {})

    def said(self):
        return (self.session.folder / "fadeloom.log").read_text()

    # Positions, in logical pixels

    def _scaled(self, places, output):
        x, y, _, _ = self.session.outputs()[output]
        scale = self.session.scales[output]
        return tuple(place / scale + offset for place, offset in zip(places, (x, y, 0, 0)))

    def bar(self, output=0):
        """The rows of the display that the bar occupies."""
        height = self.session.pixels(output).shape[0]
        thickness = round(BAR * self.session.scales[output])
        return slice(0, thickness) if self.session.edge == "top" else slice(height - thickness, height)

    def icon(self, output=0):
        """The centre of the icon, the only thing at the right end of the bar; None while there is none."""
        pixels = self.session.pixels(output)
        rows = pixels[self.bar(output)]
        end = rows[:, -round(60 * self.session.scales[output]):]
        empty = rows[:, pixels.shape[1] // 2][:, None]
        different = numpy.abs(end - empty).sum(axis=2) > 60
        found, columns = different[4:-4].nonzero()
        if len(columns) < 15:
            return None
        x = pixels.shape[1] - end.shape[1] + (columns.min() + columns.max()) / 2
        y = self.bar(output).start + 4 + (found.min() + found.max()) / 2
        return self._scaled((x, y), output)

    def panel(self, output=0):
        """The geometry of whatever on the background has the size of the panel, or None."""
        pixels = self.session.pixels(output)
        covered = numpy.abs(pixels - BACKGROUND).max(axis=2) > 12
        covered[self.bar(output)] = False
        columns = (covered.sum(axis=0) > 60).nonzero()[0]
        if len(columns) < 100:
            return None
        rows = (covered[:, columns.min():columns.max()].sum(axis=1) > 60).nonzero()[0]
        return self._scaled((columns.min(), rows.min(), columns.max() + 1 - columns.min(), rows.max() + 1 - rows.min()), output)

    def open(self, output=0):
        self.session.click(*self.icon(output))
        return waitUntil(lambda: self.settled(output), "the panel")

    def settled(self, output=0):
        first = self.panel(output)
        time.sleep(0.2)
        return first if first is not None and first == self.panel(output) else None

    def waitUntilClosed(self):
        waitUntil(lambda: self.panel() is None, "the panel to close")


@contextlib.contextmanager
def swayDesk(**options):
    with SwaySession(**options) as session:
        desk = SwayDesk(session)
        desk.start()
        yield desk
