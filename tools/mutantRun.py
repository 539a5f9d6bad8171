# SPDX-License-Identifier: MIT
"""Runs a test program that has a fault in it, and judges whether the tests notice."""

import ctypes
import dataclasses
import os
import pathlib
import re
import resource
import signal
import subprocess

import mutantBuild

FAILED = re.compile(r"^\[  FAILED  \] ([\w/]+\.[\w/]+)", re.MULTILINE)
RUNS = re.compile(r"^\[ RUN      \] (\S+)", re.MULTILINE)
TIMES = re.compile(r"^\[       OK \] ([^\s,]+).*\((\d+) ms\)", re.MULTILINE)
PATIENCE = 900  # Seconds for a program that waits: a machine that is busy with something else is no fault.
LIMITS = {resource.RLIMIT_CORE: 0, resource.RLIMIT_FSIZE: 2 << 30, resource.RLIMIT_AS: 16 << 30}

DIE_WITH_PARENT = 1  # PR_SET_PDEATHSIG


def confine(seconds):
    """Before a test program starts: a fault may take time and memory without end, also when we have gone."""
    for each, most in LIMITS.items():
        resource.setrlimit(each, (most, most))
    resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds + 5))  # A signal that says why, then the end.
    ctypes.CDLL(None).prctl(DIE_WITH_PARENT, signal.SIGKILL)


@dataclasses.dataclass
class Result:
    mutation: object
    outcome: str  # killed, survived, broken
    by: str = ""

    def text(self):
        each = self.mutation
        lead = f"{self.outcome} {self.by}".strip()
        return f"{lead}: {each.path}:{each.line}\n    {each.before}\n    {each.after}"


def runTests(program, folder, wanted, seconds):
    """What the program prints and its status; none when it takes more than these seconds of a processor's time."""
    folder.mkdir(parents=True, exist_ok=True)
    process = subprocess.Popen(
        [program, "--gtest_fail_fast", f"--gtest_filter={wanted}"], cwd=folder, text=True, errors="replace",
        stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, start_new_session=True,
        env={**os.environ, "QT_QPA_PLATFORM": "offscreen"}, preexec_fn=lambda: confine(seconds))
    try:
        printed, _ = process.communicate(timeout=PATIENCE)
        return printed, None if process.returncode == -signal.SIGXCPU else process.returncode
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        return process.communicate()[0], None


def secondsUsed():
    use = resource.getrusage(resource.RUSAGE_CHILDREN)
    return use.ru_utime + use.ru_stime


class Tests:
    """The tests of a folder. Their first run, without a fault, says how long they may take."""

    def __init__(self, program):
        self.program = program
        before = secondsUsed()
        printed, status = runTests(program.path, mutantBuild.HOME / "work" / program.folder, "-*LongForm.*", PATIENCE)
        self.seconds = secondsUsed() - before
        self.names = RUNS.findall(printed)
        self.failures = sorted(set(FAILED.findall(printed))) or ([] if status == 0 else [printed[-2000:]])
        times = {name: int(time) for name, time in TIMES.findall(printed)}
        self.slow = [name for name, time in times.items() if time > max(200, sum(times.values()) / 20)]
        self.suites = sorted({name.split(".")[0] for name in self.names})
        self.killers = {}  # By source: the tests that noticed its last faults.

    def judge(self, mutation, folder):
        """Plants the fault in `folder` and runs the tests: those first that are most likely to notice, the slow ones
        last."""
        text = (mutantBuild.SOURCE / mutation.path).read_text(encoding="utf-8")
        program = self.program.make(mutation.path, mutation.applied(text), folder)
        if program is None:
            return Result(mutation, "broken")
        likely = ":".join([*self.killers.get(mutation.path, ()), *self.suitesOf(mutation.path)])
        slow = ":".join(["*LongForm.*", *self.slow])
        parts = [f"{likely}-{slow}"] if likely else []
        parts.append(f"-{likely}:{slow}")
        if self.slow:
            parts.append(":".join(self.slow))
        for wanted in parts:
            by = self.notices(program, folder / "run", wanted)
            if by:
                self.remember(mutation.path, by)
                return Result(mutation, "killed", by)
        return Result(mutation, "survived")

    def notices(self, program, folder, wanted):
        """The test that fails twice, for one may stumble by itself; or what else befell the program."""
        limit = int(5 * self.seconds) + 10
        printed, status = runTests(program, folder, wanted, limit)
        if status == 0:
            return ""
        if status is None:
            return "timeout"
        failed = FAILED.findall(printed) or RUNS.findall(printed)[-1:]
        if not failed:
            return f"status {status}"
        _, again = runTests(program, folder, failed[0], limit)
        if again != 0:
            return failed[0]
        print(f"only once: {failed[0]}", flush=True)
        return self.notices(program, folder, wanted + (":" if "-" in wanted else "-") + failed[0])

    def remember(self, path, by):
        if by in self.names:
            former = [name for name in self.killers.get(path, []) if name != by]
            self.killers[path] = [by, *former][:5]

    def suitesOf(self, path):
        """Suites whose names begin as the source's does, or end so without what its kin have in common."""
        stem = pathlib.PurePath(path).stem
        part = stem.removeprefix("AudioController") or stem
        return [f"{suite}.*" for suite in self.suites if suite.startswith((stem, part))]
