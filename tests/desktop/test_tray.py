# SPDX-License-Identifier: MIT
"""The icon, its menu, and how the panel opens and closes; with each kind of tray, and with none."""

import time

import pytest

from audioSession import waitUntil
from busMenu import BusMenu, findMenu
from conftest import use
from desktopSession import SIZE
from fadeloomProcess import app, settings
from person import Atspi

MENU = ["Open Mixer", "Settings…", "Launch at Login", "Check for Updates…", "About Fadeloom", "Quit Fadeloom"]


def isBelow(panel, icon):
    x, y, width, height = panel
    return 0 <= y - icon[1] < 60 and x - 40 <= icon[0] <= x + width + 40 and x + width <= SIZE[0]


def outside(desk):
    """An empty place on the desktop."""
    desk.session.click(200, 600)


def test_theIconAppearsAndAClickOpensThePanelBesideIt(desk):
    desk.start()
    assert desk.panel() is None

    panel = desk.open()

    assert panel[2] == 380
    assert isBelow(panel, desk.icon)
    assert desk.person.reads("Nothing is playing")


def test_escapeClosesAndSoDoesASecondClickAndAClickOutside(desk):
    desk.start()

    desk.open()
    desk.session.press("Escape")
    desk.waitUntilClosed()

    desk.open()
    desk.session.click(*desk.icon)
    desk.waitUntilClosed()
    time.sleep(0.5)
    assert desk.panel() is None, "the click that closed it did not open it again"

    desk.open()
    outside(desk)
    desk.waitUntilClosed()


def test_noListOfWindowsHasThePanelHoweverOftenItOpens(desk):
    desk.start()
    for _ in range(2):
        desk.open()
        window = desk.session.windows("^Fadeloom$")[-1]
        state = desk.session.run("xprop", "-id", window, "_NET_WM_STATE")
        assert "_NET_WM_STATE_SKIP_TASKBAR" in state and "_NET_WM_STATE_SKIP_PAGER" in state
        assert "_NET_WM_STATE_ABOVE" in state
        desk.session.press("Escape")
        desk.waitUntilClosed()


def test_aMenuThatIsOpenTakesTheFirstEscape(openDesk):
    person = openDesk.person
    person.click(person.find("Output, Speakers"))
    person.find("Headphones", Atspi.Role.MENU_ITEM)

    openDesk.session.press("Escape")

    waitUntil(lambda: person.look("Headphones", Atspi.Role.MENU_ITEM) is None, "the menu to close")
    assert openDesk.panel() is not None
    openDesk.session.press("Escape")
    openDesk.waitUntilClosed()


def test_theMenuHasItsEntriesAndItsCheckMark(desk):
    desk.start()
    menu = BusMenu(desk.session)
    assert menu.property("Id") == "fadeloom"
    assert list(menu.entries()) == MENU
    assert not menu.entries()["Launch at Login"][1]

    menu.choose("Launch at Login")

    entry = desk.session.folder / "config" / "autostart" / "com.fadeloom.app.desktop"
    waitUntil(entry.exists, "the login entry")
    assert menu.entries()["Launch at Login"][1]
    menu.choose("Launch at Login")
    waitUntil(lambda: not entry.exists(), "the login entry to go")


def test_aRightClickShowsTheMenuAndClosesThePanel(desk):
    desk.start()
    before = desk.session.pixels()  # Without panel and menu.
    desk.open()

    desk.session.click(*desk.icon, button=3)

    desk.waitUntilClosed()
    # The tray draws the menu, a light surface below the icon; a tooltip would be much smaller.
    waitUntil(lambda: abs(desk.session.pixels() - before)[30:160, SIZE[0] - 200:].sum() > 10_000_000, "the menu")
    desk.session.press("Escape")


def test_settingsOpenOnTheirPageFromTheMenu(desk):
    desk.start()
    menu = BusMenu(desk.session)

    menu.choose("Settings…")
    waitUntil(desk.panel, "the panel")
    desk.person.waitForText("Focus Mode")

    menu.choose("Open Mixer")
    desk.person.waitForText("Nothing is playing")


def test_quittingFromTheMenuLeavesThePlayersAudible(desk):
    desk.play()
    desk.start(settings({"Player": app(volume=0.25)}))
    desk.waitForLevel(0.05)

    BusMenu(desk.session).choose("Quit Fadeloom")

    waitUntil(lambda: not desk.isRunning(), "the end")
    assert desk.session.processes.pop("fadeloom").wait() == 0
    desk.waitForLevel(0.2)


def test_theIconComesBackWithATrayThatRestarts(desk):
    desk.start()
    desk.session.endTray()

    desk.session.startXfcePanel()

    waitUntil(lambda: findMenu(desk.session), "the icon")
    time.sleep(0.5)  # The tray redraws it in its old place.
    assert isBelow(desk.open(), desk.icon)


def test_anIconOfTheOlderKindOpensThePanelAndTheMenu(makeDesk):
    desk = makeDesk("trayer")
    desk.start()

    assert isBelow(desk.open(), desk.icon)
    time.sleep(0.5)  # Otherwise it would be a double click.
    desk.session.click(*desk.icon)
    desk.waitUntilClosed()
    time.sleep(0.5)

    before = desk.session.pixels()
    desk.session.click(*desk.icon, key="ctrl")
    waitUntil(lambda: abs(desk.session.pixels() - before)[20:160].sum() > 10_000_000, "the menu")
    assert desk.panel() is None
    desk.session.press("Escape")


@pytest.mark.parametrize("tray", ["trayer", None])
def test_thePanelDoesTheSameWithoutATrayOverTheBus(makeDesk, tray):
    desk = makeDesk(tray)
    desk.play()
    desk.start(waitForIcon=tray is not None)
    if tray is None:
        waitUntil(desk.panel, "the panel", 12)
    else:
        desk.open()
    person = desk.person
    desk.waitForLevel(0.2)

    person.click(person.find("Mute Player"))
    desk.waitForLevel(0.0)
    person.click(person.find("Unmute Player"))
    person.click(person.find("Expand Player"))
    person.choose("Output, System Output", "Headphones")

    desk.waitForLevel(0.2, device="headphones")


def test_aTrayThatComesLaterGetsTheIcon(makeDesk):
    desk = makeDesk(None)
    desk.start(waitForIcon=False)
    time.sleep(1)

    use(desk.session, "xfce4-panel")

    waitUntil(lambda: findMenu(desk.session), "the icon")
    assert desk.panel() is None


def cornerShowsTheDesktop(desk):
    """Whether the panel's upper left corner looks like its surroundings."""
    x, y, _, _ = desk.panel()
    pixels = desk.session.pixels()
    return abs(pixels[y + 1, x + 1] - pixels[y + 1, x - 3]).max() < 8


def test_withoutACompositorThePanelHasItsCorners(desk):
    desk.start()
    desk.open()

    x, y, _, _ = desk.panel()
    waitUntil(lambda: desk.session.pixels()[y + 1, x + 1].min() > 150, "a corner as light as the panel")


def test_withACompositorTheyAreRound(desk):
    desk.session.spawn("picom", ["picom", "--backend", "xrender", "--config", "/dev/null"])
    try:
        time.sleep(1)  # There is no indication of when it is ready.
        desk.start()
        desk.open()

        waitUntil(lambda: cornerShowsTheDesktop(desk), "a corner like the desktop")
    finally:
        desk.session.end("picom")
