# SPDX-License-Identifier: MIT
"""An app that has chosen its own device keeps it, as long as the user selects none for it here."""

import pytest

from fadeloomProcess import app, settings
from listening import levelOn, sineFile, waitForSound

CHOOSING = {
    "pw-cat": ("pw-cat", lambda file: ["pw-cat", "-p", "--target", "headphones", file]),
    "pacat": ("pacat", lambda file: ["paplay", "--device=headphones", file]),
}


def playOnHeadphones(stage, player):
    bundleID, command = CHOOSING[player]
    stage.session.spawn("choosing", command(str(sineFile(stage))))
    return bundleID


@pytest.mark.parametrize("player", CHOOSING)
def test_anAppPlaysOnTheDeviceThatItChose(stage, player):
    bundleID = playOnHeadphones(stage, player)
    waitForSound(stage, "headphones", 0.5)

    with stage.fadeloom(settings({bundleID: app(volume=0.5)})) as fadeloom:
        fadeloom.waitFor(f"tap ready: {bundleID} → headphones")

        waitForSound(stage, "headphones", 0.25)
        assert levelOn(stage, "speakers") == 0.0


@pytest.mark.parametrize("player", CHOOSING)
def test_anAppThatStartsLaterPlaysOnTheDeviceThatItChose(stage, player):
    bundleID, _ = CHOOSING[player]
    with stage.fadeloom(settings({bundleID: app(volume=0.5)})) as fadeloom:
        playOnHeadphones(stage, player)
        fadeloom.waitFor(f"tap ready: {bundleID} → headphones")

        waitForSound(stage, "headphones", 0.25)
        assert levelOn(stage, "speakers") == 0.0


def test_anAppOnTwoDevicesPlaysOnBoth(stage):
    file = str(sineFile(stage))
    both = stage.makeApp("both")
    script = f"{both} -p --target speakers {file} & {both} -p --target headphones {file} & wait"
    with stage.fadeloom(settings({"both": app(volume=0.5)})) as fadeloom:
        stage.session.spawn("shell", ["sh", "-c", script])
        fadeloom.waitFor("tap ready: both → headphones")

        waitForSound(stage, "headphones", 0.25)
        waitForSound(stage, "speakers", 0.25)


def test_anOutputChosenHereOverridesTheAppsOwn(stage):
    with stage.fadeloom() as fadeloom:
        bundleID = playOnHeadphones(stage, "pw-cat")
        fadeloom.waitFor(f"tap ready: {bundleID} → headphones")
        waitForSound(stage, "headphones", 0.5)

        assert fadeloom.command(f"output {bundleID} speakers").startswith("ok")
        waitForSound(stage, "speakers", 0.5)
        assert levelOn(stage, "headphones") == 0.0

        assert fadeloom.command(f"output {bundleID} default").startswith("ok")
        waitForSound(stage, "headphones", 0.5)
        assert levelOn(stage, "speakers") == 0.0


def test_anAppThatChoseItsDeviceReturnsToIt(stage):
    with stage.fadeloom() as fadeloom:
        bundleID = playOnHeadphones(stage, "pw-cat")
        fadeloom.waitFor(f"tap ready: {bundleID} → headphones")
        waitForSound(stage, "headphones", 0.5)

    waitForSound(stage, "headphones", 0.5)
    assert levelOn(stage, "speakers") == 0.0


def test_anAppWithAPinnedStreamPlaysUnprocessedAndSaysSo(stage):
    bundleID, _ = CHOOSING["pw-cat"]
    with stage.fadeloom(settings({bundleID: app(volume=0.5)})) as fadeloom:
        stage.session.spawn("tied", ["pw-cat", "-p", "--target", "headphones", "-P", "node.dont-move=true",
                                     str(sineFile(stage))])
        fadeloom.waitFor(f"out of reach: {bundleID}, its stream is tied to its device")

        waitForSound(stage, "headphones", 0.5)
        assert levelOn(stage, "speakers") == 0.0
