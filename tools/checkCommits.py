#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks the subjects of commits: "folder: Imperative sentence" of at most 72 characters, without a full stop.

Commits up to ADOPTED are older than this check. Outside of a repository there is nothing to check.
"""

import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
ADOPTED = "79b95d14392518a22154026200e5d7cb37726052"
LONGEST = 72
SUBJECT = re.compile(r"[\w./*-]+(, [\w./*-]+)*: \S.*[^.]$")


def complaint(subject):
    """Why a subject is not acceptable, or None."""
    if len(subject) > LONGEST:
        return f"{len(subject)} characters, {LONGEST} at most"
    return None if SUBJECT.match(subject) else "not of the form \"folder: Imperative sentence\""


def git(*words):
    return subprocess.run(["git", *words], cwd=ROOT, text=True, capture_output=True)


def main():
    if git("cat-file", "-e", ADOPTED).returncode != 0:
        return 0
    listed = git("log", "--no-merges", "--format=%h %s", f"{ADOPTED}..HEAD")
    found = [(line, complaint(line.partition(" ")[2])) for line in listed.stdout.splitlines()]
    for line, why in found:
        if why:
            print(f"{line}: {why}")
    return 1 if listed.returncode or any(why for _, why in found) else 0


if __name__ == "__main__":
    sys.exit(main())
