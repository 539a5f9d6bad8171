# SPDX-License-Identifier: MIT
"""Without any host for status icons, the panel is an ordinary window."""

import time

from audioSession import waitUntil
from conftest import program
from desktopSession import SIZE


def test_withoutATrayThePanelIsAnOrdinaryWindow(makeDesk):
    desk = makeDesk(None)
    desk.start(waitForIcon=False)

    panel = waitUntil(desk.panel, "the panel", 12)

    assert "this desktop shows no status icons; the panel is an ordinary window" in desk.said()
    assert panel[0] > 0
    desk.session.click(200, 600)  # The desktop.
    time.sleep(0.3)
    assert desk.panel() is not None, "an ordinary window stays"


def test_thatWindowIsInTheMiddleUntilItIsMovedAndThenWhereItWasLeft(makeDesk):
    desk = makeDesk(None)
    desk.start(waitForIcon=False)
    x, y, width, height = waitUntil(desk.panel, "the panel", 12)
    assert abs(x + width / 2 - SIZE[0] / 2) < 10 and abs(y + height / 2 - SIZE[1] / 2) < 50

    window = desk.session.windows("^Fadeloom$")[-1]
    desk.session.run("xdotool", "windowmove", "--sync", window, "120", "90")
    moved = desk.panel()
    desk.session.press("Escape")
    desk.waitUntilClosed()
    assert desk.session.spawn("second", [program()]).wait(5) == 0
    desk.session.processes.pop("second")
    again = waitUntil(desk.panel, "the window")
    desk.end()
    desk.start(waitForIcon=False)
    afterwards = waitUntil(desk.panel, "the panel", 12)

    for place in (again, afterwards):
        assert abs(place[0] - moved[0]) < 10 and abs(place[1] - moved[1]) < 30
