#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Counts the lines of every file: one that has grown beyond its measure holds a second idea.

A file that is larger from before may keep its size, and may not grow. Once it is short enough, its entry has to go.
"""

import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
# What a path begins with, its endings, and the most lines; the first that fits counts.
MEASURES = (
    ("tests/", (".cpp", ".h", ".mm", ".py"), 250),
    ("", (".h",), 150),
    ("", (".qml",), 150),
    ("", (".cpp", ".mm"), 300),
)
LARGER = {
    "src/control/AudioController.h": 194,
    "tests/app/ProgramTest.cpp": 261,
    "tests/base/AtomicFileTest.cpp": 298,
    "tests/control/CallStory.cpp": 260,
    "tests/macos/doubles/AudioCalls.mm": 260,
    "tests/macos/doubles/Runtime.cpp": 283,
    "tests/platform/linux/FileManagerTest.cpp": 270,
    "tests/platform/pipewire/StreamCirclesTest.cpp": 265,
}


def most(path):
    """The most lines that a file may have; none for a kind that is not measured."""
    for beginning, endings, lines in MEASURES:
        if path.startswith(beginning) and path.endswith(endings):
            return lines
    return None


def main():
    listed = subprocess.run(["git", "ls-files", "src", "tests", "benchmarks"], cwd=ROOT, text=True, capture_output=True,
                            check=True)
    failures = [f"tools/checkSizes.py: {path} is not there any more" for path in LARGER if not (ROOT / path).is_file()]
    for path in listed.stdout.splitlines():
        limit = most(path)
        if limit is None or not (ROOT / path).is_file():
            continue
        count = len((ROOT / path).read_text(encoding="utf-8").splitlines())
        if count > LARGER.get(path, limit):
            failures.append(f"{path}: {count} lines, {LARGER.get(path, limit)} at most")
        elif path in LARGER and count <= limit:
            failures.append(f"tools/checkSizes.py: {path} is short enough now, its entry has to go")
    print("\n".join(failures))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
