# SPDX-License-Identifier: MIT
"""Which apps are call apps by default: each kind of installation, with a stand-in program, and a meeting in a real
browser."""

import json
import pathlib
import time

import pytest

import signals
from audioSession import waitUntil
from callScene import CallScene
from fadeloomProcess import settings
from meeting import Meeting

FORMER_LIST = ["us.zoom.xos", "com.microsoft.teams2", "com.microsoft.teams", "com.apple.FaceTime", "com.hnc.Discord",
               "com.tinyspeck.slackmacgap", "Cisco-Systems.Spark", "com.skype.skype", "net.whatsapp.WhatsApp",
               "org.whispersystems.signal-desktop", "com.google.Chrome.app.kjgfgldnnfoeklkmfkjfagphfepbbdan"]

# Identifier, keys of the desktop entry, arguments of its process; {program} is the stand-in for the app.
INSTALLATIONS = {
    "package": ("Zoom", "Exec={program} %U", []),
    "Flatpak": ("us.zoom.Zoom", "Exec={program} %U", []),
    "snap": ("slack_slack", "Exec={program} %U", []),
    "web app of Chromium": ("brave-cifhbcnohmdccbgoicgdjpfamggdegmo-Default",
                            "Exec={program} --profile-directory=Default --app-id=cifhbcnohmdccbgoicgdjpfamggdegmo",
                            ["--profile-directory=Default", "--app-id=cifhbcnohmdccbgoicgdjpfamggdegmo"]),
    "site in a window of Chromium": ("meeting", "Exec={program} --app=https://meet.google.com/",
                                     ["--app=https://meet.google.com/"]),
    "web app of Firefox": ("webapp-Jitsi1", "Exec=sh -c 'firefox --class WebApp-Jitsi1'\n"
                           "StartupWMClass=WebApp-Jitsi1\nX-WebApp-URL=https://meet.jit.si/",
                           ["--class", "WebApp-Jitsi1"]),
}


class CallApps(CallScene):
    """With a program that is installed in a particular way."""

    def install(self, identifier, keys):
        self.program = self.stage.makeApp("standIn")
        folder = pathlib.Path(self.session.environment["XDG_DATA_HOME"]) / "applications"
        folder.mkdir(exist_ok=True)
        (folder / f"{identifier}.desktop").write_text(
            f"[Desktop Entry]\nType=Application\nName=Stand-in\n{keys.format(program=self.program)}\n", encoding="utf-8")

    def call(self, arguments):
        """The installed program plays and captures; its own arguments follow the file, where they have no effect."""
        self.session.spawn("plays", [self.program, "--playback", "--", str(self.silence), *arguments])
        self.session.spawn("listens", [self.program, "--record", "--target", "microphone", "--",
                                       str(self.stage.folder / "heard.wav"), *arguments])

    def loudnessOf(self, frequency):
        recording = self.session.recordDevice("recording", "speakers")
        time.sleep(1)
        self.session.endRecording("recording")
        return signals.typicalAmplitude(signals.read(recording), frequency)[0]


@pytest.fixture
def callApps(stage):
    return CallApps(stage)


@pytest.mark.parametrize("kind", INSTALLATIONS)
def test_aCallLowersTheOthersOutOfTheBox(callApps, kind):
    identifier, keys, arguments = INSTALLATIONS[kind]
    callApps.install(identifier, keys)
    with callApps.stage.fadeloom() as fadeloom:
        callApps.stage.play("pw-play", callApps.music)
        callApps.stage.waitForTap(fadeloom, "pw-cat")

        callApps.call(arguments)

        fadeloom.waitFor(f"call {identifier}")
        time.sleep(2.5)
        assert callApps.loudnessOf(1000) == pytest.approx(0.5 * 0.2, rel=0.01)


def test_anUneditedListIsMigrated(callApps):
    callApps.install("Zoom", "Exec={program} %U")
    with callApps.stage.fadeloom(settings({}, focus={"callApps": FORMER_LIST})) as fadeloom:
        callApps.call([])
        fadeloom.waitFor("call Zoom")


def test_anEditedListIsLeftAlone(callApps):
    callApps.install("Zoom", "Exec={program} %U")
    with callApps.stage.fadeloom(settings({}, focus={"callApps": FORMER_LIST[1:]})) as fadeloom:
        callApps.call([])
        fadeloom.waitFor("call-app offered Zoom")
        assert not any(line.startswith("call ") for line in fadeloom.text())
        fadeloom.command("theme dark")
        path = pathlib.Path(callApps.session.environment["XDG_CONFIG_HOME"]) / "Fadeloom/settings.json"
        stored = waitUntil(lambda: '"dark"' in path.read_text() and json.loads(path.read_text()), "the settings")
    assert stored["focus"]["callApps"] == FORMER_LIST[1:]


def test_aMeetingInABrowserIsSuggestedAndAcceptedWithOneCommand(callApps):
    with callApps.stage.fadeloom() as fadeloom:
        callApps.stage.play("pw-play", callApps.music)
        callApps.stage.waitForTap(fadeloom, "pw-cat")
        with Meeting(callApps.stage):
            fadeloom.waitFor("call-app offered chromium", seconds=30)
            assert not any(line.startswith("call ") for line in fadeloom.text())
            assert callApps.loudnessOf(1000) == pytest.approx(0.5, rel=0.01)

            assert fadeloom.command("call-app chromium on").startswith("ok")

            fadeloom.waitFor("call chromium")
            time.sleep(2.5)
            assert callApps.loudnessOf(1000) == pytest.approx(0.5 * 0.2, rel=0.01)
            assert callApps.loudnessOf(700) == pytest.approx(0.2, rel=0.05)
        fadeloom.waitFor("call none")


def test_aWebAppInARealBrowserIsItsCallAppAndNotTheBrowser(callApps):
    meeting = Meeting(callApps.stage, "--class=WebApp-Meeting")
    callApps.install("webapp-Meeting", "Exec=chromium --app=x --class=WebApp-Meeting\nStartupWMClass=WebApp-Meeting\n"
                     "X-WebApp-URL=https://meet.google.com/")
    with callApps.stage.fadeloom() as fadeloom, meeting:
        fadeloom.waitFor("call webapp-Meeting", seconds=30)
        assert not any("app appeared chromium" in line for line in fadeloom.text())
