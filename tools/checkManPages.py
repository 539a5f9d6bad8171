#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds the manual pages against mandoc's warnings, and every command of the interpreter against its documents."""

import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
PAGES = ROOT / "packaging" / "linux" / "man"
TABLE = ROOT / "src" / "commands" / "CommandTable.cpp"
COMMAND = re.compile(r'Command\{"([a-z-]+)"')


def undocumented(commands):
    """Commands that a document does not name, as sentences."""
    page = (PAGES / "fadeloomctl.1").read_text()
    table = (ROOT / "docs" / "commands.md").read_text()
    for command in commands:
        if not re.search(rf"^\.It (Cm [a-z-]+ , )?(Cm )?{command}\b", page, re.M):
            yield f"fadeloomctl.1 has no {command}"
        if not re.search(rf"`{command}[ `]", table):
            yield f"docs/commands.md has no {command}"


def main():
    pages = sorted(map(str, PAGES.glob("*.[1-8]")))
    isWellFormed = subprocess.run(["mandoc", "-Tlint", "-W", "warning", *pages], check=False).returncode == 0
    commands = COMMAND.findall(TABLE.read_text())
    faults = list(undocumented(commands))
    for fault in faults:
        print(fault)
    return 0 if pages and commands and isWellFormed and not faults else 1


if __name__ == "__main__":
    sys.exit(main())
