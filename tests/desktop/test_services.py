# SPDX-License-Identifier: MIT
"""Services around the panel: a second start, updates, the language, the About panel."""

import contextlib
import http.server
import json
import threading

from audioSession import waitUntil
from busMenu import BusMenu, findMenu
from conftest import program


@contextlib.contextmanager
def feed(**answer):
    """A local web server with this version record; yields its URL and the requests."""
    asked = []

    class Handler(http.server.BaseHTTPRequestHandler):
        def do_GET(self):
            asked.append((self.path, self.headers["User-Agent"]))
            body = json.dumps(answer).encode()
            self.send_response(200)
            self.send_header("Content-Length", str(len(body)))
            self.end_headers()
            self.wfile.write(body)

        def log_message(self, *_):
            pass

    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    try:
        yield f"http://127.0.0.1:{server.server_port}", asked
    finally:
        server.shutdown()
        server.server_close()


def test_aSecondStartOpensThePanelOfTheFirst(desk):
    desk.start()

    second = desk.session.spawn("second", [program()])

    assert second.wait(5) == 0
    desk.session.processes.pop("second")
    waitUntil(desk.panel, "the panel")
    assert desk.isRunning()


def test_aSecondStartWithoutWindowsSaysWhyItEnds(desk):
    desk.start()

    second = desk.session.spawn("second", [program(), "--headless"])

    assert second.wait(5) == 3
    desk.session.processes.pop("second")
    assert "already" in (desk.session.folder / "second.log").read_text()


def test_aNewerVersionIsOfferedInThePanelAndInAMessage(desk):
    with feed(version="9.9", build=1_000_000) as (endpoint, asked):
        desk.start(FADELOOM_UPDATE_ENDPOINT=endpoint)
        desk.open()

        desk.person.find("Update 9.9")
        assert asked == [("/version.json", "Fadeloom/0")]

        BusMenu(desk.session).choose("Check for Updates…")
        desk.person.find("Download")
        desk.person.find("Later").press()
        assert len(asked) == 2


def test_withoutAServerOnlyTheUsersCheckIsReported(desk):
    desk.start(FADELOOM_UPDATE_ENDPOINT="http://127.0.0.1:9")
    desk.open()
    assert not any(control.name.startswith("Update") for control in desk.person.controls())

    BusMenu(desk.session).choose("Check for Updates…")

    desk.person.waitForText("Check your internet connection and try again.")
    desk.session.press("Escape")


def test_theAboutPanelOpensFromTheMenu(desk):
    desk.start()

    BusMenu(desk.session).choose("About Fadeloom")

    waitUntil(lambda: any("equalizer and recording for Linux." in control.name for control in desk.person.controls()),
              "the credits")
    assert not desk.person.reads("Nothing is playing"), "it is not the panel"


def test_anotherLanguageComesWithARestart(desk):
    desk.start()
    desk.open()
    person = desk.person
    person.find("Settings").press()
    person.waitForText("Focus Mode")
    try:
        person.press("Language, System")
        person.press("Polski")
        person.press("Restart to Apply")

        waitUntil(lambda: not desk.isRunning(), "the end of the first instance")
        desk.session.processes.pop("fadeloom")
        menu = waitUntil(lambda: (menu := findMenu(desk.session)) and "Otwórz mikser" in menu.entries() and menu,
                         "the second one")
        menu.choose("Otwórz mikser")
        person.waitForText("Nic nie gra")
        menu.choose("Zakończ Fadeloom")
        waitUntil(lambda: findMenu(desk.session) is None, "the end of the second instance")
    finally:
        for file in (desk.session.folder / "config" / "Fadeloom").glob("*.ini"):
            file.unlink()
