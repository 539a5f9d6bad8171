#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""A private Wayland desktop on top of a private audio session: headless sway, a bar, a pointer and a keyboard.

    tools/swaySession.py run -- COMMAND ...      runs a command on such a desktop
"""

import contextlib
import json
import os
import subprocess
import sys

from audioSession import AudioSession, waitUntil
from waylandPointer import LEFT, WaylandPointer

SIZE = (1280, 800)  # Of each output, in pixels.
WATCHER = "org.kde.StatusNotifierWatcher"
BAR = 30


def notAsRoot():
    """sway refuses to run where it could become root: root gets a user namespace in which it is another user."""
    return ["unshare", "--user", "--map-user=1000", "--map-group=1000"] if os.geteuid() == 0 else []


class SwaySession(AudioSession):
    """Use as a context manager. `scales`: of the outputs, from left to right; `bar`: waybar or swaybar; `edge`: its
    position; `x11`: whether to start XWayland."""

    def __init__(self, scales=(1,), bar="waybar", edge="top", x11=True, **options):
        super().__init__(**options)
        self.scales, self.bar, self.edge, self.x11 = scales, bar, edge, x11
        self.pointer = None

    def start(self):
        self.environment.update(WLR_BACKENDS="headless", WLR_RENDERER="pixman", WLR_LIBINPUT_NO_DEVICES="1",
                                WLR_HEADLESS_OUTPUTS=str(len(self.scales)), XDG_SESSION_TYPE="wayland",
                                XDG_CURRENT_DESKTOP="sway", LANG="C.UTF-8", NO_AT_BRIDGE="1")
        super().start()
        self._startSway()
        self._startBar()
        self.pointer = WaylandPointer(self.folder / "run" / self.environment["WAYLAND_DISPLAY"], self.extent)
        self.spawn("keyboard", ["wtype", "-s", "3600000", "-k", "F20"])  # Keeps the seat's keyboard between the keys.

    def stop(self):
        if self.pointer is not None:
            self.pointer.close()
        super().stop()

    @property
    def extent(self):
        """Of all outputs together, in logical pixels."""
        return sum(width for _, _, width, _ in self.outputs()), max(height for _, _, _, height in self.outputs())

    def outputs(self):
        """x, y, width, height of each, in logical pixels."""
        places, x = [], 0
        for scale in self.scales:
            width, height = round(SIZE[0] / scale), round(SIZE[1] / scale)
            places.append((x, 0, width, height))
            x += width
        return places

    def _startSway(self):
        lines = [f"output HEADLESS-{number + 1} resolution {SIZE[0]}x{SIZE[1]} position {place[0]} 0 scale {scale}"
                 for number, (scale, place) in enumerate(zip(self.scales, self.outputs()))]
        lines += ["output * bg #5577aa solid_color", f"exec env > {self.folder}/sway.env", f"xwayland {'enable' if self.x11 else 'disable'}"]
        if self.bar == "swaybar":
            lines += ["bar {", f"position {self.edge}", "tray_output *", "}"]
        (self.folder / "sway.conf").write_text("\n".join(lines) + "\n")
        self.spawn("sway", [*notAsRoot(), "sway", "-c", str(self.folder / "sway.conf")])
        told = self.folder / "sway.env"
        waitUntil(lambda: told.exists() and told.read_text().endswith("\n"), "sway", 20)
        values = dict(line.split("=", 1) for line in told.read_text().splitlines() if "=" in line)
        for name in ("WAYLAND_DISPLAY", "SWAYSOCK") + (("DISPLAY",) if self.x11 else ()):
            self.environment[name] = values[name]

    def _startBar(self):
        if self.bar == "waybar":
            file = self.folder / "waybar.json"
            file.write_text(json.dumps({"layer": "top", "position": self.edge, "height": BAR, "modules-right": ["tray"],
                                        "tray": {"icon-size": 18, "spacing": 8}}))
            self.spawn("waybar", ["waybar", "-c", str(file)])
        waitUntil(lambda: self.ownsName(WATCHER), "the bar's tray", 15)

    def ownsName(self, name):
        """Whether this name has an owner on the message bus."""
        answer = self.run("dbus-send", "--session", "--print-reply=literal", "--dest=org.freedesktop.DBus",
                          "/org/freedesktop/DBus", "org.freedesktop.DBus.NameHasOwner", f"string:{name}", check=False)
        return "true" in answer

    # Observation and input, in logical pixels

    def click(self, x, y, button=LEFT):
        self.pointer.click(x, y, button)

    def press(self, key):
        self.run("wtype", "-k", key)

    def windows(self):
        """Every window that sway manages, with its name and position; the panel is not one of them."""
        found, nodes = [], [json.loads(self.run("swaymsg", "-t", "get_tree", "-r"))]
        while nodes:
            node = nodes.pop()
            nodes += node.get("nodes", []) + node.get("floating_nodes", [])
            if node.get("pid") and node.get("type") in ("con", "floating_con"):
                found.append(node)
        return found

    def layers(self):
        """The layer-shell surfaces: namespace, layer, and position on their output."""
        return [layer for output in json.loads(self.run("swaymsg", "-t", "get_outputs", "-r"))
                for layer in output.get("layer_shell_surfaces", [])]

    def screenshot(self, file, area=None):
        """Saves a screenshot as PNG, in physical pixels; with `area`, only x, y, width, height."""
        cut = ["-g", "{0},{1} {2}x{3}".format(*area)] if area else []
        self.run("grim", *cut, str(file))

    def pixels(self, output=0):
        """The contents of an output, as rows of red, green and blue, in physical pixels."""
        import numpy  # Not needed by the session itself.
        done = subprocess.run(["grim", "-t", "ppm", "-o", f"HEADLESS-{output + 1}", "-"], env=self.environment,
                              capture_output=True, timeout=20, check=True)
        magic, size, depth, rows = done.stdout.split(b"\n", 3)
        width, height = map(int, size.split())
        return numpy.frombuffer(rows, numpy.uint8).reshape(height, width, 3).astype(int)


def main(arguments):
    if len(arguments) < 3 or arguments[0] != "run" or arguments[1] != "--":
        print(__doc__, file=sys.stderr)
        return 2
    with contextlib.suppress(KeyboardInterrupt), SwaySession() as session:
        return subprocess.run(arguments[2:], env={**os.environ, **session.environment}).returncode


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
