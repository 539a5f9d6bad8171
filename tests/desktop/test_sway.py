# SPDX-License-Identifier: MIT
"""Icon and panel on a Wayland desktop: beside the icon at every edge, sharp, closed by whatever else is clicked."""

import contextlib
import json
import time

import numpy
import pytest

from audioSession import waitUntil
from busMenu import BusMenu, findMenu
from conftest import program
from fadeloomProcess import settings
from swaySession import BAR, SwaySession
from waylandPointer import MIDDLE

PANEL = 380
GAP = 6
BACKGROUND = numpy.array([0x55, 0x77, 0xAA])


class SwayDesk:
    """The program on such a desktop, in the words of the tests."""

    def __init__(self, session):
        self.session = session

    def start(self):
        file = self.session.folder / "config" / "Fadeloom" / "settings.json"
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(json.dumps({**settings(), "appearance": {"animations": False}}))
        self.session.spawn("fadeloom", [program()])
        waitUntil(lambda: findMenu(self.session), "the icon")
        waitUntil(lambda: self.icon() is not None, "the icon in the bar")

    def said(self):
        return (self.session.folder / "fadeloom.log").read_text()

    # Places, in the desktop's own pixels

    def _scaled(self, places, output):
        x, y, _, _ = self.session.outputs()[output]
        scale = self.session.scales[output]
        return tuple(place / scale + offset for place, offset in zip(places, (x, y, 0, 0)))

    def bar(self, output=0):
        """Of the display: the rows that the bar has."""
        height = self.session.pixels(output).shape[0]
        thickness = round(BAR * self.session.scales[output])
        return slice(0, thickness) if self.session.edge == "top" else slice(height - thickness, height)

    def icon(self, output=0):
        """The middle of the icon, the only thing in the right end of the bar; None while there is none."""
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
        """x, y, width and height of what lies on the background in the size of the panel, or None."""
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


@pytest.fixture(scope="module")
def desk():
    with swayDesk() as desk:
        yield desk


def isBeside(desk, panel, icon, output=0):
    """Beyond the bar by the gap, in the middle of the icon or as near to it as the screen allows."""
    left, top, wide, high = desk.session.outputs()[output]
    x, y, width, height = panel
    assert width == pytest.approx(PANEL, abs=2)
    gap = y - (top + BAR) if desk.session.edge == "top" else top + high - BAR - (y + height)
    assert gap == pytest.approx(GAP, abs=2)
    wanted = min(icon[0] - PANEL / 2, left + wide - PANEL - GAP)
    assert x == pytest.approx(wanted, abs=4)


def test_aClickOpensThePanelBesideTheIconAsNoWindow(desk):
    icon = desk.icon()

    panel = desk.open()

    isBeside(desk, panel, icon)
    assert desk.session.windows() == [], "sway tiles it not, and no list of windows has it"
    desk.session.press("Escape")
    desk.waitUntilClosed()


@pytest.mark.parametrize("place", ["icon", "desktop", "bar"])
def test_aClickElsewhereClosesIt(desk, place):
    icon = desk.icon()
    desk.open()

    desk.session.click(*{"icon": icon, "desktop": (200, 500), "bar": (400, BAR / 2)}[place])

    desk.waitUntilClosed()
    time.sleep(0.5)
    assert desk.panel() is None, "the click that closed it did not open it again"


def test_aClickIntoAnotherWindowClosesIt(desk):
    desk.session.spawn("window", ["foot", "sleep", "60"])
    waitUntil(desk.session.windows, "the window")
    try:
        desk.session.click(*desk.icon())
        time.sleep(1)
        before = desk.session.pixels()

        desk.session.click(300, 600)

        waitUntil(lambda: numpy.abs(desk.session.pixels() - before)[100:200, -300:].sum() > 1_000_000, "the panel to go")
    finally:
        desk.session.end("window")
        waitUntil(lambda: not desk.session.windows(), "the window to go")


def test_aClickIntoThePanelReachesIt(desk):
    x, y, width, _ = desk.open()
    before = desk.session.pixels()

    desk.session.click(x + width - 55, y + 23)  # The gear, which opens the settings.

    waitUntil(lambda: desk.panel() is not None and numpy.abs(desk.session.pixels() - before).sum() > 3_000_000, "another page")
    desk.session.press("Escape")
    desk.waitUntilClosed()


def test_theMiddleButtonOpensItToo(desk):
    desk.session.click(*desk.icon(), MIDDLE)

    waitUntil(desk.panel, "the panel")
    desk.session.press("Escape")
    desk.waitUntilClosed()


def test_itOpensTwentyTimesInTheSamePlace(desk):
    places = set()
    for _ in range(20):
        places.add(desk.open())
        desk.session.press("Escape")
        desk.waitUntilClosed()

    assert len(places) == 1


def test_theMenuOpensItWhereTheIconWasClicked(desk):
    clicked = desk.open()
    desk.session.press("Escape")
    desk.waitUntilClosed()

    BusMenu(desk.session).choose("Open Mixer")

    assert waitUntil(desk.settled, "the panel") [:2] == clicked[:2]
    desk.session.press("Escape")
    desk.waitUntilClosed()


def test_aDialogIsInFrontOfThePanelAndTakesTheKeys(desk):
    desk.open()

    BusMenu(desk.session).choose("About Fadeloom")

    waitUntil(desk.session.windows, "the dialog")
    desk.session.press("Escape")
    waitUntil(lambda: not desk.session.windows(), "the dialog to close")


def test_aStartSaysNothingAlarming(desk):
    assert desk.said() == ""


@pytest.mark.parametrize("options", [
    {"edge": "bottom"},
    {"edge": "bottom", "scales": (1.5,)},
    {"scales": (2,)},
    {"bar": "swaybar", "edge": "bottom", "x11": False},
], ids=["bottom", "bottom at 1.5", "2", "swaybar"])
def test_itIsBesideTheIconThere(options):
    with swayDesk(**options) as desk:
        icon = desk.icon()
        for _ in range(3):
            panel = desk.open()
            if options.get("bar") != "swaybar":  # Whose bar has another thickness.
                isBeside(desk, panel, icon)
            desk.session.press("Escape")
            desk.waitUntilClosed()


def test_onTwoScreensItIsOnTheOneThatWasClicked():
    with swayDesk(scales=(1, 1.5)) as desk:
        second = desk.icon(1)
        panel = desk.open(1)
        assert desk.panel(0) is None
        isBeside(desk, panel, second, 1)

        desk.session.click(200, 500)  # On the other screen.

        waitUntil(lambda: desk.panel(1) is None, "the panel to close")
        first = desk.icon(0)
        isBeside(desk, desk.open(0), first, 0)


def test_itIsSharpAtAFractionalScale():
    with swayDesk(scales=(1.5,)) as desk:
        x, y, width, _ = desk.open()
        rows = slice(round((y + 8) * 1.5), round((y + 40) * 1.5))
        columns = slice(round((x + 50) * 1.5), round((x + 180) * 1.5))  # The program's name.

        title = desk.session.pixels()[rows, columns].mean(axis=2)

        # Letters at their own resolution go from dark to light within two pixels; enlarged ones take three and more.
        steps = numpy.abs(numpy.diff(title, axis=1))
        assert steps.max() > 0.55 * (title.max() - title.min())
