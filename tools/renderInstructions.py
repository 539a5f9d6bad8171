#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Counts the instructions per frame of the render path, and compares them with the stored counts.

    tools/renderInstructions.py DRIVER          prints them, and those of benchmarks/instructions.json
    tools/renderInstructions.py DRIVER --store  stores them

The count does not depend on the load of the machine. It does not show everything: a recursion through memory has no more
instructions than one in registers, which ./bench does measure. DRIVER: the program renderDriver.
"""

import json
import pathlib
import platform
import re
import subprocess
import sys

STORED = pathlib.Path(__file__).resolve().parent.parent / "benchmarks" / "instructions.json"
FORMS = ("plain", "baseline", "AVX2")
CASES = ("off", "off_full_scale", "eq10", "eq10_limiting", "eq3", "eq10_silence")
ROUNDS = 2
FRAMES_OF_A_ROUND = 16 * 512
SLACK = 1.05


def collected(driver, form, case, rounds):
    """All instructions of one run, or None if the processor does not support the implementation."""
    done = subprocess.run(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", driver, form, case,
                           str(rounds)], text=True, capture_output=True)
    found = re.search(r"Collected : (\d+)", done.stderr)
    if done.returncode == 2:
        return None
    if done.returncode or not found:
        raise RuntimeError(f"renderDriver {form} {case}: {done.stderr}")
    return int(found.group(1))


def perFrame(driver, form, case):
    """Instructions per frame, as the difference between runs of different length, so that startup does not count."""
    few = collected(driver, form, case, ROUNDS)
    many = collected(driver, form, case, 3 * ROUNDS)
    return None if few is None else (many - few) / (2 * ROUNDS * FRAMES_OF_A_ROUND)


def counts(driver):
    """(form, case, instructions per frame) of all that this processor supports."""
    for form in FORMS:
        for case in CASES:
            count = perFrame(driver, form, case)
            if count is not None:
                yield form, case, count


def stored():
    return json.loads(STORED.read_text(encoding="utf-8"))


def whyIncomparable(compiler):
    """Why the stored counts do not apply here, or None. `compiler`: the first line of its `--version`."""
    if platform.machine() != stored()["processor"]:
        return f"they are stored for {stored()['processor']}"
    major = re.search(r"\b(\d+)\.\d+\.\d+", compiler)
    if "clang" in compiler.lower() or not major or f"GCC {major.group(1)}" != stored()["compiler"]:
        return f"they are stored for {stored()['compiler']}"
    return None


def main():
    driver, *options = sys.argv[1:]
    found = {}
    for form, case, count in counts(driver):
        found.setdefault(form, {})[case] = round(count, 2)
        before = stored()["instructions"].get(form, {}).get(case) if STORED.exists() else None
        print(f"{form:10}{case:16}{count:8.1f}   stored: {before}")
    if options == ["--store"]:
        STORED.write_text(json.dumps({"compiler": "GCC 12", "processor": "x86_64", "instructions": found}, indent=2)
                          + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
