# SPDX-License-Identifier: MIT
"""The panel through accessibility: how each control is exposed, and what a screen reader can do with it.

Effects are verified in the audio or the settings, never in the control.
"""

from audioSession import waitUntil
from person import ACTIVE, Atspi

def namelessControls(person):
    return [control.role for control in person.controls() if control.role in ACTIVE and not control.name]


def test_everyControlHasANameAndEverySliderARangeAndAValue(openDesk):
    person = openDesk.person
    person.click(person.find("Expand Player"))
    person.find("1k hertz")
    assert namelessControls(person) == []
    for slider in [control for control in person.controls() if control.role == Atspi.Role.SLIDER]:
        low, high = slider.range
        assert low < high, slider.name
        assert low <= slider.value <= high, slider.name
        assert slider.description, f"{slider.name} says its value in words"
        assert slider.description.split()[0] == f"{slider.value:g}", f"the value of {slider.name} is what it says"

    person.click(person.find("Settings"))
    person.waitForText("Focus Mode")
    assert namelessControls(person) == []
    themes = {control.name: control for control in person.controls(showing=False)
              if control.role == Atspi.Role.RADIO_BUTTON}
    assert list(themes) == ["System", "Light", "Dark"]
    assert themes["System"].has(Atspi.StateType.CHECKED)
    assert not themes["Dark"].has(Atspi.StateType.CHECKED)


def test_aVolumeThatIsSetIsHeard(openDesk):
    openDesk.waitForLevel(0.2)

    openDesk.person.find("Player volume").value = 40

    openDesk.waitForLevel(0.08)
    waitUntil(lambda: abs(openDesk.savedApp("Player").get("volume", 1) - 0.4) < 1e-6, "the settings file")
    assert openDesk.person.find("Player volume").description == "40 percent"


def test_aVolumeGoesUpAndDownByItsSteps(openDesk):
    slider = openDesk.person.find("Player volume")

    for action in ["Decrease"] * 4 + ["Increase"]:
        slider.do(action)

    waitUntil(lambda: abs(openDesk.savedApp("Player").get("volume", 1) - 0.85) < 1e-4, "the settings file")


def test_muteThatIsPressedIsHeard(openDesk):
    openDesk.waitForLevel(0.2)

    openDesk.person.find("Mute Player").press()
    openDesk.waitForLevel(0.0)

    openDesk.person.find("Unmute Player").press()
    openDesk.waitForLevel(0.2)


def test_theEqualizersSwitchAndBandsFollow(openDesk):
    person = openDesk.person
    openDesk.waitForLevel(0.2)
    person.find("Expand Player").press()
    equalizer = person.find("Equalizer", Atspi.Role.CHECK_BOX)
    assert not equalizer.has(Atspi.StateType.CHECKED)

    person.find("1k hertz").value = -6
    openDesk.waitForLevel(0.2 * 10 ** (-6 / 20), relative=0.03)
    waitUntil(lambda: openDesk.savedApp("Player").get("eqGains", [0] * 10)[5] == -6, "the settings file")
    waitUntil(lambda: person.find("Equalizer", Atspi.Role.CHECK_BOX).has(Atspi.StateType.CHECKED), "the switch")

    person.find("Equalizer", Atspi.Role.CHECK_BOX).do("Toggle")
    openDesk.waitForLevel(0.2)


def test_aMenuIsOpenedAndChosenFrom(openDesk):
    person = openDesk.person
    openDesk.waitForLevel(0.2)
    person.find("Expand Player").press()

    person.find("Output, System Output").press()
    person.find("Headphones", Atspi.Role.MENU_ITEM).press()

    openDesk.waitForLevel(0.2, device="headphones")


def test_settingsFollow(desk):
    desk.start()
    desk.open()
    person = desk.person
    person.find("Settings").press()
    person.waitForText("Focus Mode")

    person.find("Lower other apps during calls", Atspi.Role.CHECK_BOX).do("Toggle")
    waitUntil(lambda: desk.saved().get("focus", {}).get("enabled"), "the settings file")

    person.find("Lower to", Atspi.Role.SLIDER).value = 35
    waitUntil(lambda: abs(desk.saved()["focus"]["duckLevel"] - 0.35) < 1e-6, "the settings file")

    person.find("Remove Zoom").press()
    waitUntil(lambda: "us.zoom.Zoom" not in desk.saved()["focus"]["callApps"], "the settings file")
