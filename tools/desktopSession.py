#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""A private desktop on top of a private audio session: a virtual X server, a window manager, a tray.

    tools/desktopSession.py run -- COMMAND ...      runs a command on such a desktop
"""

import contextlib
import os
import pathlib
import subprocess
import sys

from audioSession import AudioSession, waitUntil

SIZE = (1280, 800)
WATCHER = "org.kde.StatusNotifierWatcher"

# A panel along the top edge, with the status icons at its right end.
XFCE_PANEL = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="length" type="uint" value="100"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="size" type="uint" value="28"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/>
        <value type="int" value="2"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="separator">
      <property name="expand" type="bool" value="true"/>
      <property name="style" type="uint" value="0"/>
    </property>
    <property name="plugin-2" type="string" value="systray"/>
  </property>
</channel>
"""


class DesktopSession(AudioSession):
    """Use as a context manager."""

    def start(self):
        self._startDisplay()
        super().start()  # Services activated by the message bus inherit the display.
        self.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        self.environment["LANG"] = "C.UTF-8"
        self._startAccessibility()
        self.spawn("openbox", ["openbox", "--sm-disable"])

    def _startDisplay(self):
        read, write = os.pipe()
        self.spawn("Xvfb", ["Xvfb", "-displayfd", str(write), "-screen", "0", f"{SIZE[0]}x{SIZE[1]}x24", "-nolisten", "tcp"],
                   pass_fds=(write,))
        os.close(write)
        with os.fdopen(read) as number:
            self.environment["DISPLAY"] = ":" + number.readline().strip()

    def _startAccessibility(self):
        """Call before starting any program: one that starts earlier would not see it."""
        launcher = next(path for folder in ("/usr/libexec", "/usr/lib/at-spi2-core")
                        if (path := pathlib.Path(folder) / "at-spi-bus-launcher").exists())
        self.spawn("at-spi", [str(launcher), "--launch-immediately"])
        waitUntil(lambda: self.ownsName("org.a11y.Bus"), "the accessibility bus")

    def ownsName(self, name):
        """Whether this name has an owner on the message bus."""
        answer = self.run("dbus-send", "--session", "--print-reply=literal", "--dest=org.freedesktop.DBus",
                          "/org/freedesktop/DBus", "org.freedesktop.DBus.NameHasOwner", f"string:{name}", check=False)
        return "true" in answer

    # Trays

    def startXfcePanel(self):
        """A StatusNotifier tray."""
        folder = pathlib.Path(self.environment["XDG_CONFIG_HOME"]) / "xfce4" / "xfconf" / "xfce-perchannel-xml"
        folder.mkdir(parents=True, exist_ok=True)
        (folder / "xfce4-panel.xml").write_text(XFCE_PANEL)
        self.spawn("tray", ["xfce4-panel", "--disable-wm-check"])
        waitUntil(lambda: self.ownsName(WATCHER), "the tray")

    def startTrayer(self):
        """An XEmbed tray: icons are windows in it."""
        self.spawn("tray", ["trayer", "--edge", "top", "--align", "right", "--widthtype", "request", "--height", "24"])
        waitUntil(lambda: self.windows("^panel$|^trayer$"), "the tray")

    def endTray(self):
        self.end("tray")
        waitUntil(lambda: not self.ownsName(WATCHER), "the tray to go")

    # Observation and input

    def windows(self, name):
        """The ids of the visible windows whose name matches."""
        return self.run("xdotool", "search", "--onlyvisible", "--name", name, check=False).split()

    def geometry(self, window):
        """x, y, width, height of a window, in pixels."""
        text = self.run("xdotool", "getwindowgeometry", "--shell", window)
        values = dict(line.split("=") for line in text.split())
        return tuple(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))

    def click(self, x, y, button=1, key=None):
        """Clicks at a position, with `key` held."""
        self.run("xdotool", "mousemove", str(x), str(y))
        held = ["keydown", key] if key else []
        released = ["keyup", key] if key else []
        self.run("xdotool", *held, "click", str(button), *released)

    def press(self, *keys):
        self.run("xdotool", "key", *keys)

    def screenshot(self, file, area=None):
        """Saves a screenshot as PNG; with `area`, only x, y, width, height."""
        crop = ["-crop", "{2}x{3}+{0}+{1}".format(*area), "+repage"] if area else []
        self.run("import", "-window", "root", *crop, str(file))

    def pixels(self):
        """The screen contents, as rows of red, green and blue."""
        import numpy  # Not needed by the session itself.
        done = subprocess.run(["import", "-window", "root", "-depth", "8", "rgb:-"], env=self.environment,
                              capture_output=True, timeout=20, check=True)
        return numpy.frombuffer(done.stdout, numpy.uint8).reshape(SIZE[1], SIZE[0], 3).astype(int)


def main(arguments):
    if len(arguments) < 3 or arguments[0] != "run" or arguments[1] != "--":
        print(__doc__, file=sys.stderr)
        return 2
    with contextlib.suppress(KeyboardInterrupt), DesktopSession() as session:
        session.startXfcePanel()
        return subprocess.run(arguments[2:], env={**os.environ, **session.environment}).returncode


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
