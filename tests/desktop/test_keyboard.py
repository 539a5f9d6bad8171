# SPDX-License-Identifier: MIT
"""The panel without a mouse."""

from audioSession import waitUntil
from person import ACTIVE, Atspi


def tabOrder(desk, count):
    """The names of the controls that Tab reaches, in order."""
    names = []
    for _ in range(count):
        before = desk.person.focused()
        desk.session.press("Tab")
        waitUntil(lambda: (now := desk.person.focused()) and now.name != (before.name if before else None), "the next control")
        names.append(desk.person.focused().name)
    return names


def test_everyControlOfTheMixerIsReachedInItsOrder(openDesk):
    names = tabOrder(openDesk, 7)

    wanted = ["Settings", "Quit Fadeloom", "Output, Speakers", "Mute Player", "Expand Player", "Player volume"]
    start = names.index("Settings")
    assert (names[start:] + names[:start])[:6] == wanted
    assert names[6] == names[0], "after the last control comes the first"


def test_theFocusCanBeSeen(openDesk):
    for name in ("Player volume", "Mute Player", "Settings"):
        control = openDesk.person.find(name)
        x, y, width, height = control.place
        area = (slice(y - 5, y + height + 5), slice(x - 5, x + width + 5))
        before = openDesk.session.pixels()[area]

        while openDesk.person.focused() is None or openDesk.person.focused().name != name:
            tabOrder(openDesk, 1)

        waitUntil(lambda: abs(openDesk.session.pixels()[area] - before).sum() > 3000, f"the focus around {name}")


def focus(desk, name):
    for _ in range(80):
        focused = desk.person.focused()
        if focused and focused.name == name:
            return
        tabOrder(desk, 1)
    raise AssertionError(f"Tab does not reach {name}")


def test_arrowsMoveTheVolumeAndTheSoundFollows(openDesk):
    openDesk.waitForLevel(0.2)
    focus(openDesk, "Player volume")

    openDesk.session.press(*["Left"] * 10)

    waitUntil(lambda: openDesk.savedApp("Player").get("volume", 1) < 1, "the settings file")
    volume = openDesk.savedApp("Player")["volume"]
    assert openDesk.person.reads(f"{volume * 100:.0f}%")
    openDesk.waitForLevel(0.2 * volume)


def test_arrowsMoveABandByOneDecibelAndStopAtTheEnd(openDesk):
    focus(openDesk, "Expand Player")
    openDesk.session.press("space")
    openDesk.person.find("1k hertz")
    focus(openDesk, "1k hertz")

    openDesk.session.press("Up", "Up", "Up", "Down")
    waitUntil(lambda: openDesk.savedApp("Player").get("eqGains", [0] * 10)[5] == 2, "two decibels")
    assert openDesk.person.find("1k hertz").description == "2 decibels"

    openDesk.session.press(*["Up"] * 14)
    waitUntil(lambda: openDesk.savedApp("Player")["eqGains"][5] == 12, "the most")


def test_aMenuIsOpenedMovedThroughAndChosenFrom(openDesk):
    focus(openDesk, "Output, Speakers")
    try:
        openDesk.session.press("space")
        openDesk.person.find("Headphones", Atspi.Role.MENU_ITEM)
        openDesk.session.press("Down")  # The selected one has the focus first.
        waitUntil(lambda: openDesk.person.focused().name == "Headphones", "Headphones in the menu")
        openDesk.session.press("Return")

        waitUntil(lambda: openDesk.session.defaultSink() == "headphones", "the system's output")
    finally:
        openDesk.session.setDefault("speakers")


def test_muteBySpaceAndSettingsByReturn(openDesk):
    focus(openDesk, "Mute Player")
    openDesk.session.press("space")
    waitUntil(lambda: openDesk.savedApp("Player").get("muted"), "the settings file")

    focus(openDesk, "Settings")
    openDesk.session.press("space")
    openDesk.person.waitForText("Focus Mode")
    openDesk.session.press("space")  # "Back" is where "Settings" was.
    openDesk.person.find("Unmute Player")


def test_everyControlOfTheSettingsIsReached(desk):
    desk.start()
    desk.open()
    desk.person.click(desk.person.find("Settings"))
    desk.person.waitForText("Focus Mode")
    # Includes controls below the visible part of the page.
    page = [control.name for control in desk.person.controls(showing=False)
            if control.role in ACTIVE and control.has(Atspi.StateType.ENABLED)]
    wanted = {name for name in page if name and not name.startswith(("Update", "Restart to Apply"))}

    reached = tabOrder(desk, 1)
    while reached[-1] not in reached[:-1]:
        reached += tabOrder(desk, 1)

    assert wanted - set(reached) == set()


def test_thePageFollowsTheKeyboard(desk):
    desk.start()
    desk.open()
    desk.person.click(desk.person.find("Settings"))
    desk.person.waitForText("Focus Mode")

    focus(desk, "Reset All App Volumes and EQ")

    x, y, width, height = desk.panel()
    place = desk.person.focused().place
    assert y < place[1] and place[1] + place[3] < y + height
