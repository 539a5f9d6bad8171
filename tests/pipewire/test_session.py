# SPDX-License-Identifier: MIT
"""What the program stores on disk in a real session: settings, presets, its login entry."""

import json
import time

import pytest

import signals
from fadeloomProcess import app, settings


def storedSettings(fadeloom):
    return json.loads(fadeloom.settingsFile.read_text())


@pytest.fixture
def playing(stage):
    """A started program with one app in its mixer."""
    file = stage.folder / "tone.wav"
    signals.write(file, signals.sine(1000, 0.1, 60))
    with stage.fadeloom(settings({"pw-cat": app()})) as fadeloom:
        stage.play("pw-play", file)
        stage.waitForTap(fadeloom, "pw-cat")
        time.sleep(0.7)
        yield fadeloom


def test_quittingRightAfterAChangeSavesIt(playing):
    assert playing.command("volume pw-cat 0.37").startswith("ok")
    started = time.monotonic()
    assert playing.quit() == 0

    assert time.monotonic() - started < 2
    assert storedSettings(playing)["apps"]["pw-cat"]["volume"] == 0.37


def test_presetsAreKeptInTheOrderOfTheLanguage(stage):
    stage.session.environment["LC_ALL"] = "pl_PL.UTF-8"
    names = ["Żabka", "zima", "Łąka", "lato", "Ćma", "STRASSE", "Ιθάκη", "🎧 wieczór"]
    file = stage.folder / "tone.wav"
    signals.write(file, signals.sine(1000, 0.1, 60))
    with stage.fadeloom(settings({"pw-cat": app()})) as fadeloom:
        stage.play("pw-play", file)
        stage.waitForTap(fadeloom, "pw-cat")
        for name in names:
            assert fadeloom.command(f'save-preset pw-cat "  {name} "') == f"ok save-preset pw-cat {word(name)}"
        # One that differs only in case replaces the old one.
        assert fadeloom.command('save-preset pw-cat "straße"').startswith("ok")
        assert fadeloom.command('save-preset pw-cat "rock"') == \
            "error “rock” is a built-in preset name. Choose another name."
        assert fadeloom.quit() == 0

    kept = [preset["name"] for preset in storedSettings(fadeloom)["userPresets"]]
    letters = [name for name in kept if name not in ("🎧 wieczór", "Ιθάκη")]
    assert letters == ["Ćma", "lato", "Łąka", "straße", "zima", "Żabka"]
    assert set(kept) == {*letters, "🎧 wieczór", "Ιθάκη"}


def word(text):
    return f'"{text}"' if " " in text else text


def test_theLoginEntryComesAndGoes(playing):
    entry = playing.session.folder / "config" / "autostart" / "com.fadeloom.app.desktop"

    assert playing.command("login on") == "ok login on"
    assert str(playing.program) in entry.read_text()
    assert playing.command("login off") == "ok login off"
    assert not entry.exists()


def test_aFolderForTheLoginThatCannotBeWrittenIsSaid(playing):
    folder = playing.session.folder / "config" / "autostart"
    folder.write_text("a file where the folder should be")

    answer = playing.command("login on")

    assert answer.startswith("error Launch at login: ")
    playing.waitFor('message "Launch at login: ')
    assert folder.read_text() == "a file where the folder should be"


def test_anEntryThatTheUserTookAwayIsSeen(stage):
    folder = stage.folder / "config" / "autostart"
    with stage.fadeloom(settings()) as fadeloom:
        fadeloom.waitFor("default")
        assert fadeloom.command("login on") == "ok login on"
        assert fadeloom.quit() == 0
    (folder / "com.fadeloom.app.desktop").unlink()

    with stage.fadeloom(settings()) as fadeloom:
        fadeloom.waitFor("default")
        assert fadeloom.command("login on") == "ok login on"
        assert (folder / "com.fadeloom.app.desktop").exists()
