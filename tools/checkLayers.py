#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks every include of src/ against the layering, and that external headers are included only by their adapters.

The build already rejects includes of folders that are not listed in addFolder. This check rejects what the build cannot
detect: a dependency in the wrong direction, "../", an adapter used outside app, and Qt, PipeWire, Wayland, libsndfile or
Apple headers outside their adapters.
"""

import pathlib
import re
import sys

ORDER = ["base", "platform", "engine", "settings", "log", "control", "shell", "commands", "ui", "app"]
ADAPTERS = ["platform/simulated", "platform/linux", "platform/sndfile", "platform/pipewire", "platform/qt",
            "platform/qtdesktop", "platform/macos"]
INCLUDE = re.compile(r'^\s*#\s*(?:include|import)\s+([<"])([^>"]+)[>"]')
QT = re.compile(r"^(Q[A-Z]\w+|Qt\w+/.*|q[a-z]+\.h)$")
FOREIGN = {
    "Qt": (QT, ("platform/qt", "platform/qtdesktop", "platform/linux", "ui", "app")),
    "PipeWire": (re.compile(r"^(pipewire|spa)/"), ("platform/pipewire",)),
    "Wayland": (re.compile(r"^(wayland-client|viewporter-|wlr-layer-shell-)"), ("platform/qtdesktop",)),
    "libsndfile": (re.compile(r"^sndfile\.hh?$"), ("platform/sndfile",)),
    "Apple": (re.compile(r"^((CoreAudio|AudioToolbox|CoreFoundation|Foundation|AppKit|Cocoa|ServiceManagement|"
                         r"UniformTypeIdentifiers|dispatch)/|os/(?!lock\.h$)|Block\.h$)"), ("platform/macos",)),
    "the system lock's": (re.compile(r"^os/lock\.h$"), ("base",)),  # Used on the IO thread, so it is inline.
}


def folderOf(path):
    """The folder of src/ that contains a path."""
    for adapter in ADAPTERS:
        if path.startswith(adapter + "/"):
            return adapter
    return path.split("/")[0]


def complaint(folder, bracket, included):
    if ".." in included:
        return "reaches out of its folder"
    for name, (pattern, homes) in FOREIGN.items():
        if pattern.match(included) and folder not in homes:
            return f"{name} headers belong to {', '.join(homes)}"
    if bracket == "<":
        return None
    target = folderOf(included)
    if target == folder or target == "base" or (target == "platform" and folder != "base"):
        return None
    if target in ADAPTERS:
        isForQt = (folder, target) == ("platform/qtdesktop", "platform/qt")
        return None if folder == "app" or isForQt else "only app names an adapter"
    if folder in ADAPTERS:
        return None if target == "engine" else "an adapter uses platform, and engine types"
    if target not in ORDER:
        return f"no folder is called {target}"
    return None if ORDER.index(target) < ORDER.index(folder) else f"{folder} may not use {target}"


def main():
    root = pathlib.Path(__file__).resolve().parent.parent / "src"
    failures = []
    for file in sorted(root.rglob("*")):
        if file.suffix not in (".h", ".cpp", ".mm"):
            continue
        path = file.relative_to(root).as_posix()
        for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
            found = INCLUDE.match(line)
            why = found and complaint(folderOf(path), found.group(1), found.group(2))
            if why:
                failures.append(f"src/{path}:{number}: {found.group(2)}: {why}")
    print("\n".join(failures))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
