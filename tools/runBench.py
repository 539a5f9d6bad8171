#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Builds and runs the benchmarks that `./bench` names; prints tables and leaves build/bench/results.json."""

import argparse
import json
import os
import pathlib
import platform
import resource
import shutil
import subprocess
import sys
import tempfile

import renderInstructions

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "bench"
PROGRAMS = BUILD / "benchmarks"
PARTS = ("render", "cycle", "apps", "equalizer", "poll", "peers", "instructions")

# The minimum speedup over the plain implementation: (case, frames per block), by kernels. SLACK is the tolerance for a
# busy machine.
TARGETS = {
    "AVX2": {("eq10", 512): 5, ("eq10", 64): 3.5, ("eq3", 512): 7, ("off", 512): 40, ("eq10_silence", 512): 40,
             ("eq10_limiting", 512): 3.5},
    "baseline": {("eq10", 512): 3},
}
PEER_TARGETS = {"ffmpeg": 6, "sox": 15}
SLACK = 0.85
SHOWN_BLOCKS = (64, 512)

# The other programs get ten peaking filters at our frequencies, with our Q and the gains of benchmarks/CycleStage.h.
FREQUENCIES = (32, 64, 125, 250, 500, 1000, 2000, 4000, 8000, 16000)
GAINS = (6, -4, 3, -2, 7, -6, 4, 2, -3, 5)
PEER_SECONDS = 180
RATE = 48000


def processor():
    if pathlib.Path("/proc/cpuinfo").exists():
        for line in pathlib.Path("/proc/cpuinfo").read_text(encoding="utf-8").splitlines():
            if line.startswith(("model name", "CPU part")):
                return line.split(":", 1)[1].strip()
    return platform.processor() or platform.machine()


def build():
    for command in (["cmake", "--preset", "bench"], ["cmake", "--build", "--preset", "bench"]):
        done = subprocess.run(command, cwd=ROOT, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        if done.returncode:
            sys.exit(done.stdout)


def benchmark(program, *options):
    """The JSON output of a benchmark program: its context and a list of runs."""
    done = subprocess.run([PROGRAMS / program, "--benchmark_format=json", *options], text=True, check=True,
                          capture_output=True)
    return json.loads(done.stdout)


def names(program):
    """The names of a program's benchmarks, in their order."""
    done = subprocess.run([PROGRAMS / program, "--benchmark_list_tests"], text=True, check=True, capture_output=True)
    return [line.split("/iterations:")[0] for line in done.stdout.splitlines()]


def bestOf(runs):
    """The best of several runs by benchmark: the minimum of each counter that ends in _ns."""
    best = {}
    for run in runs:
        if run.get("error_occurred"):
            sys.exit(f"{run['name']}: {run['error_message']}")
        if run["run_type"] != "iteration":
            continue
        times = best.setdefault(run["run_name"].split("/iterations:")[0], {})
        for name, value in run.items():
            if name.endswith("_ns"):
                times[name[:-3]] = min(value, times.get(name[:-3], value))
    return best


def isMissed(ratio, target):
    return target is not None and ratio < target * SLACK


def cell(time, ratio, target=None):
    mark = "" if target is None else (" !" if isMissed(ratio, target) else f" ({target:g})")
    return f"{time:8.2f} {ratio:6.1f}x{mark:7}"


def runRender(results):
    """The render path: the plain implementation, and the speedup of the vector code."""
    found = benchmark("RenderRatio", "--benchmark_repetitions=3", "--benchmark_enable_random_interleaving=true")
    results["compiler"] = found["context"]["compiler"]
    best = bestOf(found["benchmarks"])
    forms = sorted((form for form in next(iter(best.values())) if form != "plain"), reverse=True)
    print(f"\nRender path: ns per stereo frame, and speedup over plain, with the target in brackets.\n"
          f"  {'case':18}{'block':>6}{'plain':>9}" + "".join(f"{form:>14}{'':10}" for form in forms))
    failures = 0
    for name in names("RenderRatio"):
        times = best[name]
        case, frames = name.removeprefix("render/ratio/").split("/")
        ratios = {form: times["plain"] / times[form] for form in forms}
        results["render"][name] = {"ns": times, "ratio": ratios}
        targets = {form: TARGETS[form].get((case, int(frames))) for form in forms}
        failures += sum(isMissed(ratios[form], targets[form]) for form in forms)
        if int(frames) in SHOWN_BLOCKS:
            print(f"  {case:18}{frames:>6}{times['plain']:9.2f}"
                  + "".join(cell(times[form], ratios[form], targets[form]) for form in forms))
    return failures


def runCycle(results):
    """Whole cycles of a renderer, 512 frames each."""
    best = bestOf(benchmark("RenderCycle", "--benchmark_repetitions=3")["benchmarks"])
    print(f"\nWhole cycles of 512 frames: ns per stereo frame\n  {'':28}{'plain':>9}{'best':>9}")
    for name, times in best.items():
        results["cycle"][name] = times
        print(f"  {name.removeprefix('cycle/'):28}{times['plain']:9.2f}"
              f"{cell(times['best'], times['plain'] / times['best'])}")
    return 0


def runApps(results):
    """Many renderers with ten bands each."""
    print("\nMany apps, ten bands each, cycles of 512 frames\n"
          f"  {'apps':>6}{'us a cycle':>14}{'% of a core at 48 kHz':>24}")
    for run in benchmark("RenderMany")["benchmarks"]:
        apps = run["name"].split(":")[1]
        results["apps"][apps] = run["cpu_time"]
        print(f"  {apps:>6}{run['cpu_time'] / 1000:14.1f}{100 * run['cpu_time'] * RATE / 512 / 1e9:24.2f}")
    return 0


def runEqualizer(results):
    """The cost of moving a slider on the main thread."""
    print("\nAn equalizer change: us")
    for run in benchmark("EqualizerChange")["benchmarks"]:
        results["equalizer"][run["name"]] = run["cpu_time"]
        print(f"  {run['name']:28}{run['cpu_time'] / 1000:9.2f}")
    return 0


def runPoll(results):
    """The cost of the controller's poll."""
    print("\nA poll on the simulated system: us")
    for run in benchmark("PollCost")["benchmarks"]:
        processes = run["name"].split(":")[1]
        results["poll"][processes] = run["cpu_time"]
        print(f"  {processes:>6} processes{run['cpu_time']:12.1f}")
    return 0


def cpuSeconds(command):
    """The minimum user and system time of three runs."""
    best = None
    for _ in range(3):
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        seconds = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
        best = seconds if best is None else min(best, seconds)
    return best


def peerCommands(sound):
    """(name, program, command without filters, command with them) of the installed programs to compare with."""
    if shutil.which("ffmpeg"):
        for precision, samples in (("f64", "dblp"), ("f32", "fltp")):
            filters = ",".join(f"equalizer=f={f}:t=q:w=1.41:g={g}:r={precision}" for f, g in zip(FREQUENCIES, GAINS))
            start = ["ffmpeg", "-nostdin", "-threads", "1", "-filter_threads", "1", "-f", "f32le", "-ar", str(RATE),
                     "-ac", "2", "-i", sound, "-af"]
            end = ["-f", "null", "-"]
            yield (f"ffmpeg equalizer x10, {precision}", "ffmpeg", [*start, f"aformat={samples},anull", *end],
                   [*start, f"aformat={samples},{filters}", *end])
    if shutil.which("sox"):
        start = ["sox", "-t", "f32", "-r", str(RATE), "-c", "2", sound, "-n"]
        filters = [word for f, g in zip(FREQUENCIES, GAINS) for word in ("equalizer", str(f), "1.41q", str(g))]
        yield "SoX equalizer x10", "sox", start, [*start, *filters]


def writeSound(path):
    """Quiet noise and a sine, stereo, as raw 32-bit floats."""
    import array
    import math
    import random
    randomNumbers = random.Random(1)
    second = array.array("f", (0.01 * (math.sin(0.05 * (i // 2)) + randomNumbers.uniform(-1, 1))
                               for i in range(2 * RATE)))
    with open(path, "wb") as file:
        for _ in range(PEER_SECONDS):
            second.tofile(file)


def runPeers(results):
    """Other programs with the same ten sections, minus a run without them."""
    ours = bestOf(benchmark("RenderRatio", "--benchmark_filter=/eq10/512/")["benchmarks"])["render/ratio/eq10/512"]
    form = min(ours, key=ours.get)
    folder = "/dev/shm" if os.path.isdir("/dev/shm") else None
    failures = 0
    print(f"\nOthers with the same ten bands: CPU ns per stereo frame, minus a run without filters,\n"
          f"{PEER_SECONDS} s of sound from memory, best of 3. Ours is the whole path, blocks of 512, {form}:"
          f" {ours[form]:.2f} ns")
    with tempfile.TemporaryDirectory(dir=folder) as temporary:
        sound = os.path.join(temporary, "sound.raw")
        writeSound(sound)
        for name, program, without, filtered in peerCommands(sound):
            time = (cpuSeconds(filtered) - cpuSeconds(without)) / (PEER_SECONDS * RATE) * 1e9
            ratio = time / ours[form]
            options = " ".join(word.replace(sound, "sound.raw") for word in filtered)
            results["peers"][name] = {"ns": time, "ratio": ratio, "command": options}
            failures += isMissed(ratio, PEER_TARGETS[program])
            print(f"  {name:28}{cell(time, ratio, PEER_TARGETS[program])}\n    {options}")
    return failures


def runInstructions(results):
    """Instructions per frame of the render path."""
    print("\nInstructions per stereo frame, blocks of 512")
    for form, case, count in renderInstructions.counts(PROGRAMS / "renderDriver"):
        results["instructions"][f"{form} {case}"] = count
        print(f"  {form:10}{case:18}{count:9.1f}")
    return 0


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("parts", nargs="*", metavar="PART", help=", ".join(PARTS))
    chosen = parser.parse_args().parts
    unknown = [part for part in chosen if part not in PARTS]
    if unknown:
        parser.error("no part is called " + ", ".join(unknown))

    build()
    runs = {"render": runRender, "cycle": runCycle, "apps": runApps, "equalizer": runEqualizer, "poll": runPoll,
            "peers": runPeers, "instructions": runInstructions}
    context = benchmark("RenderRatio", "--benchmark_filter=/off/64/")["context"]
    results = {"processor": processor(), "compiler": context["compiler"], **{part: {} for part in PARTS}}
    print(f"{results['processor']}, {results['compiler']}", flush=True)
    failures = sum(runs[part](results) for part in PARTS if not chosen or part in chosen)
    (BUILD / "results.json").write_text(json.dumps(results, indent=2) + "\n", encoding="utf-8")
    print(f"\n{BUILD / 'results.json'}")
    if failures:
        print(f"{failures} missed their target (!)")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
