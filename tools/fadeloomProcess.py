# SPDX-License-Identifier: MIT
"""The program itself in a private audio session: its settings, its output, its commands."""

import json
import subprocess
import threading
import time

from audioSession import SessionError, waitUntil


def programOf(pid):
    """The pid of the program whose guardian is `pid`; `pid` itself if there is no guardian."""
    with open(f"/proc/{pid}/task/{pid}/children") as children:
        return int((children.read().split() or [pid])[0])


class FadeloomProcess:
    """`fadeloom --headless` with these settings. Use as a context manager, which quits it at the end."""

    def __init__(self, session, program, settings=None, name="fadeloom", wrapper=()):
        """`wrapper`: a command that starts the program, which is appended to its arguments."""
        self.session = session
        self.program = program
        self.wrapper = wrapper
        self.name = name
        self.folder = session.folder / "config" / "Fadeloom"
        self.settingsFile = self.folder / "settings.json"
        self.lines = []
        self.process = None
        if settings is not None:
            self.folder.mkdir(parents=True, exist_ok=True)
            self.settingsFile.write_text(json.dumps(settings))

    def __enter__(self):
        self.start()
        return self

    def __exit__(self, *_):
        if self.name in self.session.processes:
            self.quit()

    def start(self):
        self.process = self.session.spawn(self.name, [*self.wrapper, str(self.program), "--headless"], stdin=subprocess.PIPE,
                                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, bufsize=1)
        threading.Thread(target=self._read, args=(self.process.stdout,), daemon=True).start()

    def programID(self):
        """The process that does the work; the one that was started is its guardian."""
        return programOf(self.process.pid)

    def _read(self, stream):
        for line in stream:
            self.lines.append((time.monotonic(), line.rstrip("\n")))

    def text(self):
        return [line for _, line in list(self.lines)]

    def waitFor(self, part, seconds=8.0, after=0):
        """Waits for a line that contains `part`, starting at line number `after`; returns its number and its time."""
        def search():
            for number, (moment, line) in enumerate(list(self.lines)[after:], after):
                if part in line:
                    return number + 1, moment
            return None
        try:
            return waitUntil(search, part, seconds)
        except SessionError as error:
            raise SessionError(f"{error}; it said:\n" + "\n".join(self.text())) from None

    def command(self, line, seconds=5.0):
        """Sends one command and returns its reply."""
        count = len(self.lines)
        self.process.stdin.write(line + "\n")

        def answer():
            return next((said for said in self.text()[count:] if said.startswith(("ok", "error"))), None)
        return waitUntil(answer, f"an answer to {line}", seconds)

    def quit(self):
        return self.session.end(self.name)


def app(**values):
    """One app's settings, with the defaults filled in."""
    return {"volume": 1.0, "muted": False, "eqEnabled": False, "eqPreamp": 0.0, "eqPresetName": "Flat",
            "eqGains": [0.0] * 10, **values}


def settings(apps=None, **values):
    return {"apps": apps or {}, "eqAutoHeadroom": False, "focus": {"enabled": False}, **values}
