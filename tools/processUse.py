# SPDX-License-Identifier: MIT
"""Resource usage of a process."""

import os
import pathlib


def cpuSeconds(stat):
    """CPU time of a process or thread so far, in seconds."""
    fields = pathlib.Path(stat).read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def cpuOfThreads(pid):
    """The same of each thread of a process, by its id."""
    return {task.name: cpuSeconds(task / "stat") for task in pathlib.Path(f"/proc/{pid}/task").iterdir()}


def wakeups(pid):
    """The number of voluntary context switches of each thread so far: name -> count."""
    counts = {}
    for task in pathlib.Path(f"/proc/{pid}/task").iterdir():
        lines = dict(line.split(":\t", 1) for line in (task / "status").read_text().splitlines() if ":\t" in line)
        counts[f"{lines['Name']} {task.name}"] = int(lines["voluntary_ctxt_switches"])
    return counts


def memory(pid):
    """Resident and private memory, in megabytes."""
    lines = dict(line.split(":", 1) for line in pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()[1:])
    private = sum(int(lines[name].split()[0]) for name in ("Private_Clean", "Private_Dirty"))
    return int(lines["Rss"].split()[0]) / 1024, private / 1024
