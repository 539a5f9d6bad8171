#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Measures the icon and the panel on a private desktop: time to the first frame, wakeups, CPU time, memory.

    tools/panelCosts.py PROGRAM [--rows 10] [--seconds 20]
"""

import argparse
import ctypes
import pathlib
import shutil
import statistics
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

import signals  # noqa: E402
from audioSession import SessionError, waitUntil  # noqa: E402
from desktopSession import SIZE, DesktopSession  # noqa: E402
from fadeloomProcess import programOf  # noqa: E402
from processUse import cpuSeconds, memory, wakeups  # noqa: E402

STARTS = 7


def watch(pid, seconds):
    """Wakeups per second of the busiest thread and of all, and CPU usage in percent."""
    before, used, started = wakeups(pid), cpuSeconds(f"/proc/{pid}/stat"), time.monotonic()
    time.sleep(seconds)
    elapsed = time.monotonic() - started
    each = {name: (count - before.get(name, 0)) / elapsed for name, count in wakeups(pid).items()}
    return each, (cpuSeconds(f"/proc/{pid}/stat") - used) / elapsed * 100


def tell(what, pid, seconds):
    each, cpu = watch(pid, seconds)
    resident, private = memory(pid)
    busiest = max(each, key=each.get)
    print(f"  {what:42} {sum(each.values()):6.1f} wakeups/s (of {busiest.split()[0]} {each[busiest]:.1f}), "
          f"{cpu:5.2f} % of a processor, {resident:.0f} MB resident, {private:.0f} MB private", flush=True)


def openPanel(session):
    """Asks the running program to open its panel."""
    return session.run("dbus-send", "--session", "--print-reply", "--dest=com.fadeloom.app", "/com/fadeloom/app",
                       "com.fadeloom.app.Open", check=False)


class Eye:
    """Polls one pixel of a display, up to a thousand times a second."""

    def __init__(self, display):
        self.x11 = ctypes.CDLL("libX11.so.6")
        for function in ("XOpenDisplay", "XGetImage"):
            getattr(self.x11, function).restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x11.XGetPixel.restype = ctypes.c_ulong
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(display.encode()))
        self.root = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.display))

    def colour(self, x, y):
        image = ctypes.c_void_p(self.x11.XGetImage(self.display, self.root, x, y, 1, 1, ctypes.c_ulong(0xFFFFFF), 2))
        value = self.x11.XGetPixel(image, 0, 0)
        self.x11.XDestroyImage(image)
        return value


PLACE = (SIZE[0] - 30, 120)  # The panel is in the upper right corner.


def firstFrame(session, eye):
    """Milliseconds from the request to open the panel to its first frame."""
    empty = eye.colour(*PLACE)
    started = time.monotonic()
    waitUntil(lambda: openPanel(session), "the program", interval=0)
    waitUntil(lambda: eye.colour(*PLACE) != empty, "the first frame", interval=0.001)
    return (time.monotonic() - started) * 1000


def firstFrames(session, program, eye):
    """The same for STARTS new processes: requested immediately, after a second, and a second time."""
    empty = eye.colour(*PLACE)
    times = []
    for _ in range(STARTS):
        session.spawn("start", [str(program)])
        atOnce = firstFrame(session, eye)
        session.end("start")
        waitUntil(lambda: eye.colour(*PLACE) == empty, "the desktop")
        session.spawn("start", [str(program)])
        waitUntil(lambda: session.ownsName("com.fadeloom.app"), "the program")
        time.sleep(1)
        first = firstFrame(session, eye)
        session.press("Escape")
        waitUntil(lambda: eye.colour(*PLACE) == empty, "the panel to close")
        times.append((atOnce, first, firstFrame(session, eye)))
        session.end("start")
        waitUntil(lambda: eye.colour(*PLACE) == empty, "the desktop")
    return [sorted(column) for column in zip(*times)]


def measure(session, program, rows, seconds):
    del session.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"]  # There is no screen reader here.
    session.startXfcePanel()
    session.spawn("fadeloom", [str(program)])
    pid = programOf(session.processes["fadeloom"].pid)
    waitUntil(lambda: session.ownsName("com.fadeloom.app"), "the program")
    time.sleep(6)
    print(f"The program is {pathlib.Path(program).stat().st_size / 1e6:.1f} MB.")
    tell("icon only, nothing plays", pid, seconds)

    tone = session.folder / "tone.wav"
    signals.write(tone, signals.sine(440, 0.05, 6 * seconds + 60))
    for number in range(rows):
        copy = session.folder / f"player{number}"
        shutil.copy(shutil.which("pw-cat"), copy)
        session.spawn(copy.name, [str(copy), "--playback", str(tone)])
        time.sleep(0.2)
    time.sleep(6)
    tell(f"icon only, {rows} applications play", pid, seconds)
    openPanel(session)
    time.sleep(3)
    tell(f"panel open, {rows} rows with meters", pid, seconds)
    session.press("Escape")
    waitUntil(lambda: not session.windows("^Fadeloom$"), "the panel to close")
    time.sleep(1)
    tell(f"panel closed, {rows} applications play", pid, seconds)
    session.end("fadeloom")
    eye = Eye(session.environment["DISPLAY"])
    what = ("start of the process", "first opening", "another opening")
    for name, times in zip(what, firstFrames(session, program, eye)):
        print(f"  from {name} to the first frame: {statistics.median(times):.0f} ms ({times[0]:.0f} to {times[-1]:.0f})")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program")
    parser.add_argument("--rows", type=int, default=10)
    parser.add_argument("--seconds", type=int, default=20)
    arguments = parser.parse_args()
    try:
        with DesktopSession() as session:
            measure(session, pathlib.Path(arguments.program).resolve(), arguments.rows, arguments.seconds)
    except SessionError as error:
        print(f"The session failed: {error}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
