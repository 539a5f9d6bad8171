# SPDX-License-Identifier: MIT
"""Programs that watch events, replies as JSON, export and restore, and completions."""

import json
import os
import socket
import subprocess
import threading
import time

from audioSession import waitUntil
from fadeloomProcess import app, settings
from listening import sineFile
from test_control import CTL, ctl


class Watcher:
    """A fadeloomctl that watches events."""

    def __init__(self, stage, *words):
        self.process = subprocess.Popen([str(CTL), *words], stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                                        env=stage.session.environment)
        self.lines = []
        threading.Thread(target=self._read, daemon=True).start()

    def _read(self):
        for line in self.process.stdout:
            self.lines.append(line.rstrip("\n"))

    def waitFor(self, part):
        waitUntil(lambda: any(part in line for line in self.lines), part)
        return next(line for line in self.lines if part in line)

    def end(self):
        self.process.terminate()
        self.process.wait(5)


def test_answersAreJsonToo(stage):
    with stage.fadeloom(settings({"pw-cat": app(volume=0.5)})) as fadeloom:
        stage.play("pw-play", sineFile(stage))
        stage.waitForTap(fadeloom, "pw-cat")

        whole = json.loads(ctl(stage, "--json", "list")[1])
        assert [(entry["id"], entry["volume"], entry["playing"], entry["output"]) for entry in whole["apps"]] == [
            ("pw-cat", 0.5, True, "speakers")]
        assert whole["default"] == "speakers" and whole["limit"] == 1
        assert {output["uid"] for output in whole["outputs"]} == {"speakers", "headphones"}
        assert list(json.loads(ctl(stage, "--json", "list", "outputs")[1])) == ["outputs"]
        assert "Rock" in [preset["name"] for preset in json.loads(ctl(stage, "--json", "list", "presets")[1])["presets"]]
        assert json.loads(ctl(stage, "--json", "volume", "pw-cat", "-10%")[1])["apps"][0]["volume"] == 0.4
        status, said, sentence = ctl(stage, "--json", "volume", "nobody")
        assert (status, said, sentence) == (5, "", "fadeloomctl: unknown app nobody\n")
        assert ctl(stage, "list", "apps")[1].splitlines()[1].startswith("app pw-cat pw-cat playing volume 0.4 ")


def test_watchersReceiveEventsUntilTheEnd(stage):
    fadeloom = stage.fadeloom(settings({"pw-cat": app()}))
    with fadeloom:
        fadeloom.waitFor("default speakers")
        text, values, bar, levels = (Watcher(stage, *words) for words in (
            ["watch"], ["--json", "watch"], ["--waybar", "watch", "pw-cat"], ["--json", "watch", "levels"]))
        stage.play("pw-play", sineFile(stage))
        text.waitFor("app playing pw-cat")
        assert ctl(stage, "volume", "pw-cat", "0.5")[0] == 0

        text.waitFor("app changed pw-cat volume 0.5")
        assert json.loads(values.lines[0])["event"] == "state"
        changed = values.waitFor('"changed":{"volume"')
        assert json.loads(changed) == {"event": "app", "id": "pw-cat", "changed": {"volume": 0.5}}
        shown = json.loads(bar.waitFor('"50%"'))
        assert shown["percentage"] == 50 and shown["class"] == ["playing"] and shown["tooltip"] == "pw-cat → Speakers"
        waitUntil(lambda: 0.8 < json.loads(levels.lines[-1])["levels"].get("pw-cat", 0) <= 1, "its level")

    assert [watcher.process.wait(5) for watcher in (text, values, bar)] == [4, 4, 4]
    assert text.lines[-1] == "end"
    assert json.loads(values.lines[-1]) == {"event": "end"}
    assert json.loads(bar.lines[-1])["text"] == ""
    assert levels.process.wait(5) == 4


def test_aWatcherOutlivesTheProgramIfItIsToWait(stage):
    watcher = Watcher(stage, "--wait", "watch")
    for _ in range(2):
        with stage.fadeloom(settings()):
            waitUntil(lambda: "default speakers" in watcher.lines, "the state")
        waitUntil(lambda: watcher.lines[-1] == "end", "the end")
        watcher.lines.clear()
    assert watcher.process.poll() is None
    watcher.end()


def test_aWatcherThatNobodyReadsEndsAlsoWhileItWaits(stage):
    process = subprocess.Popen([str(CTL), "--wait", "watch"], stdout=subprocess.PIPE, env=stage.session.environment)
    try:
        time.sleep(0.2)
        assert process.poll() is None
        process.stdout.close()
        assert process.wait(2) == 4
    finally:
        process.kill()


def test_fiftyWatchAndTheOneThatDoesNotReadIsDropped(stage):
    with stage.fadeloom(settings({"pw-cat": app()})) as fadeloom:
        fadeloom.waitFor("default speakers")
        readers = [Watcher(stage, "watch") for _ in range(50)]
        deaf = socket.socket(socket.AF_UNIX)
        deaf.connect(stage.session.environment["XDG_RUNTIME_DIR"] + "/fadeloom.socket")
        deaf.send(b"Watch json\n")
        waitUntil(lambda: all("default speakers" in reader.lines for reader in readers), "all of them")

        def step(number):
            assert fadeloom.command(f"volume pw-cat 0.{number}").startswith("ok")
            waitUntil(lambda: all(f"app changed pw-cat volume 0.{number}" in reader.lines for reader in readers), number)
        step(5)
        assert fadeloom.command("list").startswith("ok list")
        for reader in readers:
            reader.end()
        deaf.close()


def test_allSettingsAreExportedAndRestored(stage):
    with stage.fadeloom(settings({"pw-cat": app(volume=0.25)})) as fadeloom:
        fadeloom.waitFor("default speakers")
        file = stage.folder / "mine.json"

        assert ctl(stage, "export", str(file)) == (0, "", "")
        assert json.loads(file.read_text())["apps"]["pw-cat"]["volume"] == 0.25
        assert file.stat().st_mode & 0o777 == 0o600
        assert json.loads(ctl(stage, "export")[1]) == json.loads(file.read_text())
        ctl(stage, "volume", "pw-cat", "1")
        file.write_text(json.dumps(json.loads(file.read_text()), indent=2))
        assert ctl(stage, "restore", str(file))[0] == 0
        assert ctl(stage, "volume", "pw-cat")[1] == "0.25\n"

        assert ctl(stage, "restore", str(stage.folder / "none"))[0] == 1
        assert ctl(stage, "restore", "-", text="{")[0] == 1
        assert ctl(stage, "export", str(stage.folder / "none" / "x"))[0] == 1
        assert ctl(stage, "volume", "pw-cat")[1] == "0.25\n"


def test_completionsAreTheCurrentObjects(stage):
    with stage.fadeloom(settings({"pw-cat": app()})) as fadeloom:
        stage.play("pw-play", sineFile(stage))
        stage.waitForTap(fadeloom, "pw-cat")

        assert ctl(stage, "complete", "--", "vol") == (0, "volume\tan app's volume\n", "")
        assert ctl(stage, "complete", "--", "volume", "pw") == (0, "pw-cat\tpw-cat\n", "")
        assert ctl(stage, "complete", "--", "output", "pw-cat", "hea")[1] == "headphones\tHeadphones\n"
        assert ctl(stage, "complete", "--", "preset", "pw-cat", "Bass B")[1].startswith("Bass Boost\t")
    assert ctl(stage, "complete", "--", "vol")[0] == 4


def test_theProgramItselfTakesAVerb(stage):
    own = os.environ["FADELOOM"]
    with stage.fadeloom(settings({"pw-cat": app(volume=0.5)})) as fadeloom:
        fadeloom.waitFor("default speakers")

        def program(*words):
            done = subprocess.run([own, *words], capture_output=True, text=True, timeout=20, env=stage.session.environment)
            return done.returncode, done.stdout

        assert program("volume", "pw-cat", "-25%") == (0, "volume pw-cat 0.25\n")
        assert program("volume", "pw-cat") == (0, "0.25\n")
        assert program("louder") == (2, "")
