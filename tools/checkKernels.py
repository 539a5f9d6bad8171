#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Rejects kernel translation units that export anything but their function table.

    tools/checkKernels.py NM LIBRARY

A unit compiled for newer processors must share no function with the others: of two copies of an inline function the
linker keeps one for the whole program, possibly the one that older processors cannot run.
"""

import re
import subprocess
import sys

UNIT = re.compile(r"^(RenderKernels\w+)\.cpp\.\w+:$")
TABLE = re.compile(r"\w*\d+(baseline|avx2)Kernels\w*$")


def main():
    nm, library = sys.argv[1:]
    listed = subprocess.run([nm, "--extern-only", "--defined-only", library], check=True, text=True,
                            capture_output=True)
    tables = {}
    failures = []
    unit = None
    for line in listed.stdout.splitlines():
        if line.endswith(":"):
            found = UNIT.match(line)
            unit = found and found.group(1)
        elif unit and line.split():
            symbol = line.split()[-1]
            if TABLE.match(symbol):
                tables[unit] = symbol
            else:
                failures.append(f"{unit} shares {symbol}")
    if not tables:
        failures.append(f"{library} has no kernels")
    print("\n".join(failures))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
