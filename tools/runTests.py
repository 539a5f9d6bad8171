#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Builds and runs the test suites that `./test` names, and prints the totals in the last line."""

import argparse
import concurrent.futures
import os
import pathlib
import platform
import subprocess
import sys
import time
import xml.etree.ElementTree as ElementTree

import renderInstructions

ROOT = pathlib.Path(__file__).resolve().parent.parent
RESULTS = ROOT / "build" / "results"
SOME_FAILED = 1  # pytest's exit status; it has another one if no test ran.
SPECIAL = ("pipewire", "week", "desktop", "instructions", "sanitizers", "macos", "fuzz", "checks",
           "trixie", "mutations")
OF_LINUX = ("src/platform/linux", "src/platform/pipewire", "src/platform/qtdesktop", "src/platform/sndfile",
            "src/app/linux", "src/ctl")
# The programs used by the suites with real players.
PLAYED = ("fadeloom", "fadeloomctl", "pipewireContractTests", "pipewireRealTimeTests")
SHORT_SANITIZERS = {"asan": ("engine", "settings", "shell", "platform/sndfile"), "tsan": ("engine", "platform/sndfile")}
SANITIZER_OPTIONS = {
    "ASAN_OPTIONS": "detect_leaks=1:strict_string_checks=1",
    "UBSAN_OPTIONS": "halt_on_error=1:print_stacktrace=1",
    "TSAN_OPTIONS": "halt_on_error=1",
}
# The suites with real players, with their arguments for pytest.
PLAYERS = {
    "pipewire": ("tests/pipewire", "--ignore=tests/pipewire/test_week.py"),
    "week": ("tests/pipewire/test_week.py",),
    "desktop": ("tests/desktop",),
}
LONG_FORMS = ("engine", "platform/sndfile")  # Folders with test suites named LongForm.


class Tally:
    """Accumulates the results of suites and the names of failed tests."""

    def __init__(self):
        self.passed = 0
        self.skipped = 0
        self.failures = []

    def addJUnit(self, suite, file, status):
        """Adds the results of a suite; one without results counts as one failure."""
        try:
            cases = list(ElementTree.parse(file).iter("testcase"))
        except (OSError, ElementTree.ParseError):
            cases = []
        failed = [case for case in cases if case.find("failure") is not None or case.find("error") is not None]
        skipped = [case for case in cases if case.find("skipped") is not None]
        self.passed += len(cases) - len(failed) - len(skipped)
        self.skipped += len(skipped)
        self.failures += [f"{suite}: {case.get('classname', '')}.{case.get('name')}" for case in failed]
        if not cases:
            self.failures.append(f"{suite}: ran no test")
        elif status != 0 and not failed:
            self.failures.append(f"{suite}: ended with status {status}")

    def addAll(self, other):
        self.passed += other.passed
        self.skipped += other.skipped
        self.failures += other.failures

    def add(self, name, isPassed):
        if isPassed:
            self.passed += 1
        else:
            self.failures.append(name)

    def conclude(self):
        for failure in self.failures:
            print(f"FAILED {failure}")
        tail = f", {self.skipped} skipped" if self.skipped else ""
        print(f"{self.passed} passed, {len(self.failures)} failed{tail}")
        return 1 if self.failures else 0


def run(*command, quiet=False, **options):
    """Runs a command in the project's root; with `quiet`, its output is printed only if it fails."""
    command = [str(word) for word in command]
    if not quiet:
        return subprocess.run(command, cwd=ROOT, **options).returncode
    done = subprocess.run(command, cwd=ROOT, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **options)
    if done.returncode != 0:
        print(done.stdout)
    return done.returncode


def testsOf(folder):
    """The name of the test program of a folder of src/."""
    return folder.replace("/", "_") + "Tests"


def programOf(preset, folder):
    return ROOT / "build" / preset / "src" / folder / testsOf(folder)


def testedFolders():
    """The folders of src/ that have tests, for Linux."""
    tests = ROOT / "tests"
    return [str(made.parent.relative_to(ROOT / "src")) for made in sorted((ROOT / "src").rglob("CMakeLists.txt"))
            if "TESTS" in made.read_text(encoding="utf-8") and (tests / made.parent.relative_to(ROOT / "src")).is_dir()]


def build(preset, *targets):
    """Configures and builds a preset, or only these targets; exits if that fails."""
    started = time.monotonic()
    chosen = ["--target", *targets] if targets else []
    if run("cmake", "--preset", preset, quiet=True) or run("cmake", "--build", "--preset", preset, *chosen, quiet=True):
        print(f"FAILED to build {preset}\n0 passed, 1 failed")
        sys.exit(1)
    print(f"Built {preset} in {time.monotonic() - started:.0f} s", flush=True)


def useIdleTimeOnly():
    """Restricts this thread and its children to otherwise unused CPU time."""
    os.sched_setscheduler(0, os.SCHED_IDLE, os.sched_param(0))


def results(name):
    RESULTS.mkdir(parents=True, exist_ok=True)
    file = RESULTS / f"{name}.xml"
    file.unlink(missing_ok=True)
    return file


def runUnits(tally, labels):
    """The unit tests and the ones on the simulated platform; `labels` are folders of src/, empty for all."""
    file = results("units")
    pattern = "^(" + "|".join(labels) + ")$" if labels else "."
    status = run("ctest", "--preset", "test", "--output-junit", file, "-L", pattern, quiet=True)
    tally.addJUnit("units", file, status)


def runProgram(tally, name, program, *options, under=(), **environment):
    """Runs a test program, with all its tests in one process; `under` is a command to run it with."""
    file = results(name)
    status = run(*under, program, f"--gtest_output=xml:{file}", *options, quiet=True,
                 env={**os.environ, "QT_QPA_PLATFORM": "offscreen", **environment})
    tally.addJUnit(name, file, status)


def runLongForms(tally, labels):
    """The unit tests that take minutes and gigabytes, in a temporary folder that is not in memory."""
    for folder in LONG_FORMS:
        if labels and folder not in labels:
            continue
        runProgram(tally, testsOf(folder) + "LongForm", programOf("test", folder), "--gtest_filter=*LongForm.*",
                   TMPDIR=os.environ.get("TMPDIR", "/var/tmp"))


def runPipeWire(tally):
    """The contract and the callback, in private audio sessions."""
    for name in ("pipewireContractTests", "pipewireRealTimeTests"):
        runProgram(tally, name, ROOT / "build/test/tests/pipewire" / name,
                   under=("/usr/bin/python3", "tools/audioSession.py", "run", "--"))


def runPlayers(tally, suite):
    """A suite with real players. Players may fail on a busy machine through no fault of ours: failed tests are retried
    once, and named."""
    first = Tally()
    status = runPyTest(first, suite, *PLAYERS[suite])
    if first.failures and status == SOME_FAILED:
        for failure in first.failures:
            print(f"Once more: {failure}", flush=True)
        first.failures = []
        runPyTest(first, suite, *PLAYERS[suite], "--last-failed", name=f"{suite}-again")
    tally.addAll(first)


def runPyTest(tally, suite, *options, name=None):
    name = name or suite
    file = results(name)
    started = time.monotonic()
    status = run("/usr/bin/python3", "-B", "-m", "pytest", "-q", "-W", "ignore::DeprecationWarning",
                 "-o", f"cache_dir={RESULTS / 'pytest' / suite}", f"--junitxml={file}", *options,
                 quiet=True, env={**os.environ, "FADELOOM": str(ROOT / "build/test/fadeloom")})
    print(f"Ran {name} in {time.monotonic() - started:.0f} s", flush=True)
    tally.addJUnit(name, file, status)
    return status


def compilerOf(preset):
    """The first line of `--version` of the preset's compiler."""
    cache = (ROOT / "build" / preset / "CMakeCache.txt").read_text(encoding="utf-8")
    path = next(line.split("=", 1)[1] for line in cache.splitlines() if line.startswith("CMAKE_CXX_COMPILER:"))
    return subprocess.run([path, "--version"], text=True, capture_output=True).stdout.splitlines()[0]


def runInstructions(tally):
    """Instructions per frame of the render path: at most those stored, plus a tolerance of a few percent."""
    why = renderInstructions.whyIncomparable(compilerOf("test"))
    if why:
        print(f"instructions: not compared, {why}")
        return
    expected = renderInstructions.stored()["instructions"]
    for form, case, count in renderInstructions.counts(ROOT / "build/test/benchmarks/renderDriver"):
        isPassed = count <= expected[form][case] * renderInstructions.SLACK
        if not isPassed:
            print(f"{form} {case}: {count:.1f} instructions per frame, stored: {expected[form][case]}")
        tally.add(f"instructions: {form} {case}", isPassed)


def runSanitizers(tally, isLong):
    """The unit tests under the sanitizers; in the short form only the folders where memory and threads matter."""
    for preset, short in SHORT_SANITIZERS.items():
        folders = testedFolders() if isLong else short
        build(preset, *(testsOf(folder) for folder in folders))
        for folder in folders:
            runProgram(tally, f"{preset}-{testsOf(folder)}", programOf(preset, folder), "--gtest_filter=-*LongForm.*",
                       **SANITIZER_OPTIONS)


def runMacOS(tally):
    """The program for macOS on doubles of the platform, its scripts, and its compilation for both Mac architectures."""
    if platform.machine() != "x86_64":
        print(f"macos: the doubles implement message dispatch for x86_64, not for {platform.machine()}")
        tally.add(f"macos: cannot be run on {platform.machine()}", False)
        return
    build("macos", "macosTests", "macosHomeTests")
    for name in ("macosTests", "macosHomeTests"):
        runProgram(tally, name, ROOT / "build/macos/tests/macos" / name, **SANITIZER_OPTIONS,
                   LSAN_OPTIONS=f"suppressions={ROOT / 'tests/macos/leaksOfQt.txt'}")

    tally.add("macos: bundle", run("/usr/bin/python3", "tools/checkBundle.py", quiet=True) == 0)
    runPyTest(tally, "macosScripts", "tests/macos")

    # What does not compile leaves no object file.
    started = time.monotonic()
    run("cmake", "--build", "--preset", "macos", "--target", "macosObjects", "--", "-k", "0", quiet=True)
    print(f"Compiled for a Mac in {time.monotonic() - started:.0f} s", flush=True)
    objects = ROOT / "build/macos/tests/macos/objects"
    missing = set(sources(".cpp", ".mm", below=["src"])) - {
        source for source in sources(".cpp", ".mm", below=OF_LINUX)}
    for line in (objects / "batches").read_text(encoding="utf-8").splitlines():
        triple, batch, *batched = line.split()
        missing -= set(batched)
        tally.add(f"macos: {batch} compiles for {triple}: {' '.join(batched)}",
                  (objects / triple / f"{batch}.o").is_file())
    for source in sorted(missing):
        tally.add(f"macos: {source} is compiled for a Mac", False)


def runFuzz(tally, isLong):
    """Fuzzes the parsers: for half a minute in total, or ten minutes each."""
    corpora = {"settings": "settings", "feed": "feed", "words": "words", "command": "commands",
               "desktopEntry": "entries", "processFiles": "processes", "socket": "lines"}
    if isLong:
        corpora["graph"] = "graphs"  # Takes a minute to build; its corpus is replayed by the unit tests.
    seconds = 600 if isLong else 30 // len(corpora)
    folder = ROOT / "build" / "fuzz"
    # A fuzzer that runs for seconds should build fast; one that runs for minutes should run fast.
    flags, isUnity = ("-O1 -g1", "OFF") if isLong else ("-O0 -g1", "ON")
    isBuilt = run("cmake", "-G", "Ninja", "-B", folder, "-DCMAKE_CXX_COMPILER=clang++-19", "-DFADELOOM_FUZZ=ON",
                  "-DFADELOOM_SANITIZE=fuzzer-no-link,address,undefined", "-DCMAKE_BUILD_TYPE=RelWithDebInfo",
                  f"-DCMAKE_CXX_FLAGS_RELWITHDEBINFO={flags}", f"-DCMAKE_UNITY_BUILD={isUnity}", quiet=True) == 0
    for name, corpus in corpora.items():
        found = folder / "found" / name
        found.mkdir(parents=True, exist_ok=True)
        isPassed = isBuilt and run("cmake", "--build", folder, "--target", f"{name}Fuzz", quiet=True) == 0 and run(
            folder / f"tests/fuzz/{name}Fuzz", "-max_len=4096", f"-max_total_time={seconds}",
            f"-artifact_prefix={folder}/", found, f"tests/fuzz/corpus/{corpus}", quiet=True) == 0
        tally.add(f"fuzz: {name}", isPassed)


def sources(*suffixes, below=("src", "tests", "benchmarks")):
    listed = subprocess.run(["git", "ls-files", *below], cwd=ROOT, text=True, capture_output=True)
    return [name for name in listed.stdout.split("\n") if name.endswith(suffixes)]


def runChecks(tally, isLong):
    """Static checks of the sources."""
    tally.add("checks: formatting",
              run("clang-format-19", "--dry-run", "-Werror", *sources(".cpp", ".h", ".mm"), quiet=True) == 0)
    for name, tool in (("layers", "checkLayers"), ("conventions", "checkConventions"), ("commits", "checkCommits"),
                       ("sizes", "checkSizes"), ("views", "checkQml"), ("manual pages", "checkManPages")):
        tally.add(f"checks: {name}", run("/usr/bin/python3", f"tools/{tool}.py", quiet=True) == 0)
    runPyTest(tally, "tools", "tests/tools")
    if not isLong:
        return
    # Needs the compile commands of the non-unity build, one per source.
    looked = [name for name in sources(".cpp", below=["src"]) if "macos" not in name.lower()]
    tally.add("checks: static analysis", run("cmake", "--preset", "dev", quiet=True) == 0 and
              run("xargs", "-P", "2", "-n", "4", "clang-tidy-19", "--quiet", "--extra-arg=-Wno-unknown-warning-option",
                  "-p", "build/dev", quiet=True, input="\n".join(looked)) == 0)


def runTrixie(tally):
    """The suites with real players on Debian 13, with its newer session manager."""
    tally.add("trixie: pipewire", run("tools/onTrixie", "platform/pipewire", "pipewire") == 0)


def runMutations(tally, isLong):
    """Small faults, planted one at a time: the tests of a folder notice 95 in 100. The same ones each time."""
    for folder in ("engine", "settings", "control", "shell", "ui"):
        tally.add(f"mutations: {folder}", run("tools/mutate", "--folder", folder, "--count", 100 if isLong else 20,
                                              "--seed", 1, quiet=True) == 0)


def runWithoutPlayers(tally, isLong):
    """The suites without audio, which can wait."""
    build("test")
    runSanitizers(tally, isLong)
    runMacOS(tally)
    runFuzz(tally, isLong)
    runInstructions(tally)
    runChecks(tally, isLong)


def runEverything(tally, isLong):
    """Every suite. Real players leave most of the CPU time to others, and are not disturbed by processes with idle
    priority."""
    build("test", *PLAYED)
    beside, week = Tally(), Tally()
    with concurrent.futures.ThreadPoolExecutor(1, initializer=useIdleTimeOnly) as idle, \
            concurrent.futures.ThreadPoolExecutor(1) as second:
        rest = idle.submit(runWithoutPlayers, beside, isLong)
        runPipeWire(tally)
        runPlayers(tally, "pipewire")
        days = second.submit(runPlayers, week, "week")  # It mostly waits for audio.
        runPlayers(tally, "desktop")
        days.result()
        rest.result()
    tally.addAll(week)
    tally.addAll(beside)
    runUnits(tally, [])
    if isLong:
        runLongForms(tally, [])


def runSome(tally, suites, folders, isLong):
    """The named suites; `folders` are those among them that are folders of src/."""
    if not set(suites) <= {"macos", "trixie", "mutations"}:  # They have separate builds.
        build("test")
    if folders:
        runUnits(tally, folders)
        if isLong:
            runLongForms(tally, folders)
    if "pipewire" in suites:
        runPipeWire(tally)
    for suite in PLAYERS:
        if suite in suites:
            runPlayers(tally, suite)
    if "instructions" in suites:
        runInstructions(tally)
    if "checks" in suites:
        runChecks(tally, isLong)
    if "sanitizers" in suites:
        runSanitizers(tally, isLong)
    if "macos" in suites:
        runMacOS(tally)
    if "fuzz" in suites:
        runFuzz(tally, isLong)
    if "trixie" in suites:
        runTrixie(tally)
    if "mutations" in suites:
        runMutations(tally, isLong)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--long", action="store_true", help="the long form of the slow suites")
    parser.add_argument("suites", nargs="*", help="folders of src/, or " + ", ".join(SPECIAL))
    arguments = parser.parse_args()
    folders = [suite for suite in arguments.suites if suite not in SPECIAL]
    unknown = [folder for folder in folders if not (ROOT / "src" / folder / "CMakeLists.txt").is_file()]
    if unknown:
        parser.error("no suite is called " + ", ".join(unknown))

    tally = Tally()
    if arguments.long:
        os.environ["FADELOOM_LONG"] = "1"  # For child processes that take no such option.
    if not arguments.suites:
        runEverything(tally, arguments.long)
    else:
        runSome(tally, arguments.suites, folders, arguments.long)
    return tally.conclude()


if __name__ == "__main__":
    sys.exit(main())
