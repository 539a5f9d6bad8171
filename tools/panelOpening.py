#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Measures the time from a click on the icon to the panel's first frame, on a headless Wayland desktop.

    tools/panelOpening.py build/release/fadeloom [times]
"""

import pathlib
import re
import statistics
import sys
import time

from audioSession import waitUntil
from swaySession import BAR, SwaySession

LINE = re.compile(r"\[ *(\d+)\.(\d{3})\] +-> (\w+)@(\d+)\.(\w+)\((.*)\)")
MICROSECONDS = 2 ** 32  # After which the compositor's timestamps wrap around.


def now():
    return int(time.time() * 1e6) % MICROSECONDS


def firstPicture(lines):
    """When the surface that was placed last got its first frame, in microseconds; None if it has not."""
    surface, hasPicture = None, False
    for line in lines:
        found = LINE.match(line)
        if found is None:
            continue
        whole, part, _, number, request, arguments = found.groups()
        if request == "get_layer_surface":
            surface, hasPicture = arguments.split(", ")[1].split("@")[1], False
        elif number == surface and request == "attach":
            hasPicture = not arguments.startswith("nil")
        elif number == surface and request == "commit" and hasPicture:
            return int(whole) * 1000 + int(part)
    return None


def openings(session, program, times):
    """Starts the program and opens its panel the given number of times; the milliseconds of each."""
    session.spawn("fadeloom", [str(pathlib.Path(program).resolve()), "--simulate"], environment={"WAYLAND_DEBUG": "client"})
    log = session.folder / "fadeloom.log"
    time.sleep(4)  # Until the icon is there.
    taken = []
    for _ in range(times):
        seen = log.stat().st_size
        session.pointer.move(session.outputs()[0][2] - 18, BAR // 2)
        clicked = now()
        session.pointer.press()
        session.pointer.release()
        picture = waitUntil(lambda: firstPicture(log.read_bytes()[seen:].decode(errors="replace").splitlines()),
                            "the panel's picture", interval=0.1)
        taken.append((picture - clicked) % MICROSECONDS / 1000)
        time.sleep(0.3)
        session.press("Escape")
        time.sleep(0.5)
    return taken


def main(arguments):
    if not arguments:
        print(__doc__, file=sys.stderr)
        return 2
    with SwaySession() as session:
        first, *later = openings(session, arguments[0], int(arguments[1]) if len(arguments) > 1 else 20)
    print(f"first {first:.0f} ms; then median {statistics.median(later):.0f} ms, worst {max(later):.0f} ms")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
