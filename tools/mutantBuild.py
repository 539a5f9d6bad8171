# SPDX-License-Identifier: MIT
"""Builds test programs with one source changed, and leaves the checkout as it is.

A copy of the sources is built once, below build/mutations. A changed source is then compiled by the command of the
original, and linked before the library that has the original: of two objects, a linker takes the first one that has
what it needs. A changed header is found before the original, by everything that includes it.
"""

import json
import os
import pathlib
import shlex
import shutil
import subprocess

ROOT = pathlib.Path(__file__).resolve().parent.parent
HOME = ROOT / "build" / "mutations"
SOURCE = HOME / "source"
BUILD = HOME / "build"
# Sources of a folder in a unit of their own, or one change would compile eight of them; containers that check indices.
APART = HOME / "apart.cmake"
OPTIONS = ("-DCMAKE_BUILD_TYPE=RelWithDebInfo", "-DCMAKE_CXX_FLAGS_RELWITHDEBINFO=-O0 -g0 -D_GLIBCXX_ASSERTIONS",
           "-DCMAKE_UNITY_BUILD=ON", "-DCMAKE_UNITY_BUILD_BATCH_SIZE=8", f"-DCMAKE_PROJECT_INCLUDE={APART}",
           "-DCMAKE_CXX_COMPILER_LAUNCHER=", "-DFADELOOM_WARNINGS_AS_ERRORS=OFF")
LINKER = ["-fuse-ld=lld"] if shutil.which("ld.lld") else []  # Several times as fast.


def listed():
    """What is tracked or about to be, without what is ignored."""
    names = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=ROOT, text=True,
                           capture_output=True, check=True).stdout.splitlines()
    return {name for name in names if (ROOT / name).is_file()}


def copySources():
    """Brings the copy up to date; what is the same keeps its time."""
    wanted = listed()
    for name in wanted:
        source, copy = ROOT / name, SOURCE / name
        if copy.is_file() and copy.read_bytes() == source.read_bytes():
            continue
        copy.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(source, copy)
    for copy in SOURCE.rglob("*"):
        if copy.is_file() and str(copy.relative_to(SOURCE)) not in wanted:
            copy.unlink()


def build(folders, programs):
    """Builds the test programs from a fresh copy; what went wrong, or nothing."""
    copySources()
    APART.write_text(f"cmake_language(DEFER CALL set_target_properties {' '.join(folders)} PROPERTIES UNITY_BUILD OFF)\n"
                     "cmake_language(DEFER CALL target_compile_options engine PRIVATE -O1)  # Its tests render for hours.\n",
                     encoding="utf-8")
    commands = [["cmake", "-G", "Ninja", "-S", SOURCE, "-B", BUILD, *OPTIONS],
                ["cmake", "--build", BUILD, "--target", *programs]]
    for command in commands:
        done = subprocess.run(command, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        if done.returncode != 0:
            return done.stdout
    return None


def ninja(*words):
    return subprocess.run(["ninja", "-C", BUILD, *words], text=True, capture_output=True, check=True).stdout


class Program:
    """A test program of the copy, and how to make it with one source changed."""

    def __init__(self, folder, name):
        self.folder = folder
        self.path = BUILD / "src" / folder / name
        # The link comes first, the listing of tests after it.
        linked = shlex.split(ninja("-t", "commands", "-s", f"src/{folder}/{name}").split(" && ")[1])
        self.link = [word for word in linked if word]
        libraries = {os.path.dirname(word) for word in self.link if word.endswith(".a") and word.startswith("src/")}
        self.compile = {}
        for entry in json.loads((BUILD / "compile_commands.json").read_text(encoding="utf-8")):
            words = shlex.split(entry["command"])
            place = words[words.index("-o") + 1]
            if place in self.link or place.split("/CMakeFiles/")[0] in libraries and "Tests.dir" not in place:
                self.compile[place] = words
        self.includers = self._readIncluders()

    def _readIncluders(self):
        """For each of our headers, the objects that it is compiled into."""
        includers, current = {}, None
        for line in ninja("-t", "deps").splitlines():
            if not line.startswith(" "):
                current = line.split(":")[0]
            elif current in self.compile and not line.lstrip().startswith("/usr"):
                header = os.path.relpath(os.path.realpath(BUILD / line.strip()), SOURCE)
                if current not in includers.setdefault(header, []):
                    includers[header].append(current)
        return includers

    def objectsOf(self, path):
        if path.endswith(".h"):
            return self.includers.get(path, [])
        return [place for place, words in self.compile.items() if words[-1] == str(SOURCE / path)]

    def make(self, path, text, folder):
        """The program with `text` in the place of the source `path`, made in `folder`; none when that does not compile."""
        overlay = folder / "overlay"
        shutil.rmtree(overlay, ignore_errors=True)
        changed = overlay / os.path.relpath(path, "src")
        changed.parent.mkdir(parents=True)
        changed.write_text(f'#line 1 "{SOURCE / path}"\n{text}', encoding="utf-8")
        made = {}
        for number, place in enumerate(self.objectsOf(path)):
            made[place] = str(folder / f"{number}.o")
            if not self._compile(self.compile[place], path, changed, overlay, made[place]):
                return None
        program = folder / "tests"
        program.unlink(missing_ok=True)
        return program if made and self._link(made, program) else None

    def _compile(self, words, path, changed, overlay, output):
        source = words[-1] if path.endswith(".h") else str(changed)
        words = [words[0], "-w", f"-I{overlay}", *words[1:-1], source]
        words[words.index("-o") + 1] = output
        return succeeds(words, BUILD)

    def _link(self, made, program):
        words = [made.get(word, word) for word in self.link]
        words[words.index("-o") + 1] = str(program)
        first = next(index for index, word in enumerate(words) if word.endswith(".a"))
        ours = [output for place, output in made.items() if place not in self.link]
        return succeeds([*words[:first], *ours, *words[first:], *LINKER], BUILD)


def succeeds(command, folder):
    return subprocess.run(command, cwd=folder, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0
