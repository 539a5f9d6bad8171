#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks the length of every file: one that exceeds its limit contains a second concept.

A file that was longer already may keep its length, but not grow. Once it is within the limit, its entry must be removed.
"""

import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
# Path prefix, suffixes, and maximum number of lines; the first match counts.
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
    "tests/platform/pipewire/FeedbackLoopTest.cpp": 265,
}


def most(path):
    """The maximum number of lines of a file; None for a kind without a limit."""
    for beginning, endings, lines in MEASURES:
        if path.startswith(beginning) and path.endswith(endings):
            return lines
    return None


def main():
    listed = subprocess.run(["git", "ls-files", "src", "tests", "benchmarks"], cwd=ROOT, text=True, capture_output=True,
                            check=True)
    failures = [f"tools/checkSizes.py: {path} no longer exists" for path in LARGER if not (ROOT / path).is_file()]
    for path in listed.stdout.splitlines():
        limit = most(path)
        if limit is None or not (ROOT / path).is_file():
            continue
        count = len((ROOT / path).read_text(encoding="utf-8").splitlines())
        if count > LARGER.get(path, limit):
            failures.append(f"{path}: {count} lines, {LARGER.get(path, limit)} at most")
        elif path in LARGER and count <= limit:
            failures.append(f"tools/checkSizes.py: {path} is within its limit now, remove its entry")
    print("\n".join(failures))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
