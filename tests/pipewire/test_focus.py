# SPDX-License-Identifier: MIT
"""The focused app, on a real X server and a real headless sway; and a bar that shows it."""

import contextlib
import json
import os
import shutil
import socket
import threading

import pytest

from audioSession import waitUntil
from fadeloomProcess import app, settings
from listening import sineFile
from test_control import ctl


def startX(stage):
    """An X server with a window manager."""
    read, write = os.pipe()
    stage.session.spawn("Xvfb", ["Xvfb", "-displayfd", str(write), "-screen", "0", "640x480x24", "-nolisten", "tcp"],
                        pass_fds=(write,))
    os.close(write)
    with os.fdopen(read) as number:
        stage.session.environment["DISPLAY"] = ":" + number.readline().strip()
    stage.session.spawn("openbox", ["openbox", "--sm-disable"])
    return "x11"


def startSway(stage):
    """Headless sway. It does not run as root, and sees another user id."""
    configuration = stage.session.folder / "sway.conf"
    configuration.write_text("output HEADLESS-1 resolution 640x200\nfocus_on_window_activation focus\n")
    stage.session.spawn("sway", ["bwrap", "--unshare-user", "--uid", "1000", "--gid", "1000", "--dev-bind", "/", "/",
                                 "sway", "-c", str(configuration)],
                        environment={"WLR_BACKENDS": "headless", "WLR_LIBINPUT_NO_DEVICES": "1", "WLR_RENDERER": "pixman"})
    run = stage.session.folder / "run"

    def sockets():
        return list(run.glob("sway-ipc.*.sock")), [each for each in run.glob("wayland-?")]
    ipc, display = waitUntil(lambda: all(sockets()) and sockets(), "sway")
    stage.session.environment["SWAYSOCK"] = str(ipc[0])
    stage.session.environment["WAYLAND_DISPLAY"] = display[0].name
    return "wlshm"


def openWindow(stage, program, picture):
    """A player with a window, which is a separate app. Returns its name in the session."""
    player = stage.folder / program
    shutil.copy(shutil.which("mpv"), player)
    stage.session.spawn(program, [str(player), "--no-config", "--ao=pulse", f"--vo={picture}", "--force-window=immediate",
                                  "--loop", str(sineFile(stage))])
    return program


@pytest.mark.parametrize("start", [startX, startSway])
def test_theAppInFrontIsMeant(stage, start):
    picture = start(stage)
    with stage.fadeloom(settings({"first": app(), "second": app()})) as fadeloom:
        openWindow(stage, "first", picture)
        stage.waitForTap(fadeloom, "first")
        waitUntil(lambda: ctl(stage, "volume", "@focused", "0.5") == (0, "volume first 0.5\n", ""), "the first window")
        openWindow(stage, "second", picture)
        stage.waitForTap(fadeloom, "second")
        waitUntil(lambda: ctl(stage, "volume", "@focused") == (0, "1\n", ""), "the second window")

        assert ctl(stage, "volume", "@focused", "-25%") == (0, "volume second 0.75\n", "")
        stage.session.end("second")
        waitUntil(lambda: ctl(stage, "volume", "@focused") == (0, "0.5\n", ""), "the first window again")
        stage.session.end("first")
        waitUntil(lambda: ctl(stage, "volume", "@focused")[0] == 5, "no window")


def test_noDesktopIsSaid(stage):
    with stage.fadeloom(settings()) as fadeloom:
        fadeloom.waitFor("default speakers")
        sentence = "fadeloomctl: this desktop does not tell which application is in front\n"
        assert ctl(stage, "mute", "@focused", "on") == (5, "", sentence)
        stage.session.environment["SWAYSOCK"] = str(stage.folder / "none")
        stage.session.environment["DISPLAY"] = ":9999"
        assert ctl(stage, "mute", "@focused", "on") == (5, "", sentence)


@pytest.mark.parametrize("reply", [
    b"", b"\n", b"x" * 40, b"i3-ipc" + b"\xff" * 8, b"i3-ipc\x02\0\0\0\x04\0\0\0[]", b'{"Ok":{"FocusedWindow":null}}\n',
    b"i3-ipc\x14\0\0\0\x04\0\0\0" + b'{"focused":true,"x":', b'{"Err":"no"}\n',
])
def test_whateverADesktopAnswersNothingBreaks(stage, reply):
    with stage.fadeloom(settings()) as fadeloom, socket.socket(socket.AF_UNIX) as desktop:
        fadeloom.waitFor("default speakers")
        path = stage.folder / "desktop"
        desktop.bind(str(path))
        desktop.listen()

        def answer():
            with contextlib.suppress(OSError):  # It may be queried only once.
                for _ in range(2):
                    connection, _ = desktop.accept()
                    connection.recv(100)
                    connection.send(reply)
                    connection.close()
        threading.Thread(target=answer, daemon=True).start()
        stage.session.environment.update({"SWAYSOCK": str(path), "NIRI_SOCKET": str(path)})
        status, said, sentence = ctl(stage, "volume", "@focused")
        assert (status, said) == (5, "") and "in front" in sentence


def test_niriIsQueriedWithItsProtocol(stage):
    """With its documented protocol; niri itself is not tested."""
    with stage.fadeloom(settings({"pw-cat": app(volume=0.5)})) as fadeloom, socket.socket(socket.AF_UNIX) as desktop:
        stage.play("pw-play", sineFile(stage))
        stage.waitForTap(fadeloom, "pw-cat")
        process = next(name for name in stage.session.processes if name.startswith("player"))
        window = {"id": 1, "title": "x", "app_id": "x", "pid": stage.session.processes[process].pid, "is_focused": True}
        path = stage.folder / "niri"
        desktop.bind(str(path))
        desktop.listen()
        asked = []

        def answer():
            connection, _ = desktop.accept()
            asked.append(connection.recv(100))
            connection.send(json.dumps({"Ok": {"FocusedWindow": window}}).encode() + b"\n")
        threading.Thread(target=answer, daemon=True).start()
        stage.session.environment["NIRI_SOCKET"] = str(path)
        assert ctl(stage, "volume", "@focused") == (0, "0.5\n", "")
        assert asked == [b'"FocusedWindow"\n']
