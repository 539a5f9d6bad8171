#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds the views against qmlformat and qmllint. With --write, it formats them instead.

qmllint needs the module's types, which the build of `test` writes. Neither tool may say anything.
"""

import argparse
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
TOOLS = pathlib.Path("/usr/lib/qt6/bin")
MODULES = ROOT / "build/test/qml"


def formatted(file):
    """The file as qmlformat writes it, without three faults of the one of Qt 6.4."""
    text = subprocess.run([TOOLS / "qmlformat", file], text=True, capture_output=True, check=True).stdout
    text = re.sub(r"^pragma ComponentBehavior$", "pragma ComponentBehavior: Bound", text, flags=re.MULTILINE)
    text = re.sub(r"^(pragma .*)\n(?=import)", r"\1\n\n", text, flags=re.MULTILINE)
    return re.sub(r"  \{$", " {", text, flags=re.MULTILINE)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--write", action="store_true", help="format the views in place")
    isWriting = parser.parse_args().write
    views = sorted((ROOT / "src").rglob("*.qml"))

    failures = 0
    for view in views:
        text = formatted(view)
        if text == view.read_text(encoding="utf-8"):
            continue
        if isWriting:
            view.write_text(text, encoding="utf-8")
        else:
            failures += 1
            print(f"{view.relative_to(ROOT)}: not as qmlformat writes it; tools/checkQml.py --write does")
    if isWriting:
        return 0
    lint = subprocess.run([TOOLS / "qmllint", "-I", MODULES, *views],
                          text=True, capture_output=True)
    print(lint.stdout + lint.stderr, end="")
    return 1 if failures or lint.returncode != 0 or "Warning:" in lint.stdout + lint.stderr else 0


if __name__ == "__main__":
    sys.exit(main())
