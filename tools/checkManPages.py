#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks the manual pages with mandoc, and that every command and settings key is documented."""

import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
PAGES = ROOT / "packaging" / "linux" / "man"
TABLE = ROOT / "src" / "commands" / "CommandTable.cpp"
SETTINGS = ROOT / "src" / "settings" / "SettingsEncoding.cpp"
KEY = re.compile(r'\{"([A-Za-z]+)", |object\["([A-Za-z]+)"\]')
COMMAND = re.compile(r'Command\{"([a-z-]+)"')


def undocumented(commands):
    """Commands missing from a document, as sentences."""
    page = (PAGES / "fadeloomctl.1").read_text()
    table = (ROOT / "docs" / "commands.md").read_text()
    for command in commands:
        if not re.search(rf"^\.It (Cm [a-z-]+ , )?(Cm )?{command}\b", page, re.M):
            yield f"fadeloomctl.1 has no {command}"
        if not re.search(rf"`{command}[ `]", table):
            yield f"docs/commands.md has no {command}"


def undocumentedKeys():
    """Settings keys missing from the manual page, as sentences."""
    keys = {key for match in KEY.findall(SETTINGS.read_text()) for key in match if key}
    page = (PAGES / "fadeloom-settings.5").read_text()
    assert keys, f"no keys in {SETTINGS}"
    for key in sorted(keys):
        if not re.search(rf"^\.(It )?Cm ([a-zA-Z]+ , )?{key}\b", page, re.M):
            yield f"fadeloom-settings.5 has no {key}"


def main():
    pages = sorted(map(str, PAGES.glob("*.[1-8]")))
    isWellFormed = subprocess.run(["mandoc", "-Tlint", "-W", "warning", *pages], check=False).returncode == 0
    commands = COMMAND.findall(TABLE.read_text())
    faults = [*undocumented(commands), *undocumentedKeys()]
    for fault in faults:
        print(fault)
    return 0 if pages and commands and isWellFormed and not faults else 1


if __name__ == "__main__":
    sys.exit(main())
