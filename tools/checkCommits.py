#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that the subjects of commits have at most 72 characters.

Commits up to ADOPTED are older than this check. Outside of a repository there is nothing to check.
"""

import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
ADOPTED = "670d7b7dff1d41bc7f2cb77d31fc85f9f61ff16e"
LONGEST = 72


def git(*words):
    return subprocess.run(["git", *words], cwd=ROOT, text=True, capture_output=True)


def main():
    if git("cat-file", "-e", ADOPTED).returncode != 0:
        return 0
    listed = git("log", "--no-merges", "--format=%h %s", f"{ADOPTED}..HEAD")
    long = [line for line in listed.stdout.splitlines() if len(line.partition(" ")[2]) > LONGEST]
    for line in long:
        print(f"{line}: {len(line.partition(' ')[2])} characters, {LONGEST} at most")
    return 1 if listed.returncode or long else 0


if __name__ == "__main__":
    sys.exit(main())
