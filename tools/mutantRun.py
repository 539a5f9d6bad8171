# SPDX-License-Identifier: MIT
"""Runs a test program that has a fault in it, and judges whether the tests notice."""

import dataclasses
import os
import pathlib
import re
import resource
import signal
import subprocess
import time

import mutantBuild

FAILED = re.compile(r"^\[  FAILED  \] ([\w/]+\.[\w/]+)", re.MULTILINE)
RUNS = re.compile(r"^\[ RUN      \] (\S+)", re.MULTILINE)
LIMITS = {resource.RLIMIT_CORE: 0, resource.RLIMIT_FSIZE: 2 << 30, resource.RLIMIT_AS: 16 << 30}


@dataclasses.dataclass
class Result:
    mutation: object
    outcome: str  # killed, survived, broken
    by: str = ""

    def text(self):
        each = self.mutation
        lead = f"{self.outcome} {self.by}".strip()
        return f"{lead}: {each.path}:{each.line}\n    {each.before}\n    {each.after}"


def runTests(program, folder, wanted, limit):
    """What the program prints, its status, and the seconds that it takes; no status when it takes too long."""
    folder.mkdir(parents=True, exist_ok=True)
    started = time.monotonic()
    process = subprocess.Popen(
        [program, "--gtest_fail_fast", f"--gtest_filter={wanted}"], cwd=folder, text=True, errors="replace",
        stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, start_new_session=True,
        env={**os.environ, "QT_QPA_PLATFORM": "offscreen"},
        preexec_fn=lambda: [resource.setrlimit(each, (most, most)) for each, most in LIMITS.items()])
    try:
        printed, _ = process.communicate(timeout=limit)
        status = process.returncode
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        printed, _ = process.communicate()
        status = None
    return printed, status, time.monotonic() - started


class Tests:
    """The tests of a folder. Their first run, without a fault, says how long they may take."""

    def __init__(self, program):
        self.program = program
        self.limit = None
        printed, status, self.seconds = runTests(program.path, mutantBuild.HOME / "work" / program.folder,
                                                 "-*LongForm.*", 600)
        self.names = RUNS.findall(printed)
        self.failures = sorted(set(FAILED.findall(printed))) or ([] if status == 0 else [printed[-2000:]])
        self.suites = sorted({name.split(".")[0] for name in self.names})
        self.killers = {}  # By source: the tests that noticed its last faults.

    def judge(self, mutation, folder):
        """Plants the fault in `folder` and runs the tests: those first that are most likely to notice."""
        text = (mutantBuild.SOURCE / mutation.path).read_text(encoding="utf-8")
        program = self.program.make(mutation.path, mutation.applied(text), folder)
        if program is None:
            return Result(mutation, "broken")
        likely = [*self.killers.get(mutation.path, ()), *self.suitesOf(mutation.path)]
        parts = [":".join(likely) + "-*LongForm.*"] if likely else []
        parts.append("-" + ":".join(["*LongForm.*", *likely]))
        for wanted in parts:
            by = self.notices(program, folder / "run", wanted)
            if by:
                self.remember(mutation.path, by)
                return Result(mutation, "killed", by)
        return Result(mutation, "survived")

    def notices(self, program, folder, wanted):
        """The test that fails twice, for one may stumble by itself; or what else befell the program."""
        limit = 5 * self.seconds + 20
        printed, status, _ = runTests(program, folder, wanted, limit)
        if status == 0:
            return ""
        if status is None:
            return "timeout"
        failed = FAILED.findall(printed) or RUNS.findall(printed)[-1:]
        if not failed:
            return f"status {status}"
        _, again, _ = runTests(program, folder, failed[0], limit)
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
