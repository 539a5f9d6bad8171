# SPDX-License-Identifier: MIT
"""Configures the build as on a Mac, with a toolchain that makes CMake treat this machine as one."""

import json
import pathlib
import plistlib
import subprocess

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]


def configure(folder, *options):
    done = subprocess.run(["cmake", "-Wno-dev", "-G", "Ninja", "-S", ROOT, "-B", folder, "--toolchain",
                           ROOT / "tests/macos/toolchain/Darwin.cmake", *options], text=True, capture_output=True,
                          timeout=120)
    assert done.returncode == 0, done.stderr[-3000:]


def targets(folder):
    listed = subprocess.run(["ninja", "-C", folder, "-t", "targets", "all"], text=True, capture_output=True).stdout
    return {line.split(":")[0] for line in listed.splitlines()}


def commandsOf(folder, target):
    return subprocess.run(["ninja", "-C", folder, "-t", "commands", target], text=True, capture_output=True).stdout


def optionsOf(preset):
    """The variables of a preset and of those that it inherits from."""
    presets = {each["name"]: each for each in json.loads((ROOT / "CMakePresets.json").read_text())["configurePresets"]}
    values = {}
    while preset:
        values = {**presets[preset].get("cacheVariables", {}), **values}
        preset = presets[preset].get("inherits")
    return [f"-D{name}={value}" for name, value in values.items()]


@pytest.fixture(scope="module")
def bundleBuild(tmp_path_factory):
    folder = tmp_path_factory.mktemp("mac")
    configure(folder, *optionsOf("mac"))
    return folder


def test_theBundleHasItsPartsAndItsDeclarations(bundleBuild):
    made = targets(bundleBuild)
    for part in ("MacOS/Fadeloom", "Resources/AppIcon.icns", "Resources/MenuBarIcon@2x.png",
                 "Resources/pl.lproj/InfoPlist.strings"):
        assert f"Fadeloom.app/Contents/{part}" in made
    declared = plistlib.loads((bundleBuild / "Fadeloom.app/Contents/Info.plist").read_bytes())
    assert declared["LSMinimumSystemVersion"] == "14.2"
    assert declared["CFBundleExecutable"] == "Fadeloom"
    assert declared["NSMicrophoneUsageDescription"]


def test_itIsForBothProcessorsAndItsWarningsEndNothing(bundleBuild):
    commands = commandsOf(bundleBuild, "fadeloom")
    assert "-arch arm64 -arch x86_64" in commands
    assert "-mmacosx-version-min=14.2" in commands
    assert "-Werror" not in commands
    kernels = [line for line in commands.splitlines() if "RenderKernelsAVX2.cpp.o -c" in line]
    assert len(kernels) == 1 and "-Xarch_x86_64 -mavx2" in kernels[0]


def test_nothingOfLinuxIsBuilt(bundleBuild):
    commands = commandsOf(bundleBuild, "all")
    for folder in ("platform/linux", "platform/pipewire", "platform/sndfile", "platform/qtdesktop", "app/linux"):
        assert f"src/{folder}/" not in commands


def test_theTestsOfAMacAreThere(tmp_path):
    configure(tmp_path, *optionsOf("mac-test"), "-DCMAKE_OSX_ARCHITECTURES=arm64")
    made = targets(tmp_path)
    assert {"coreaudioTests", "baseTests", "engineTests", "settingsTests", "controlTests", "uiTests"} <= made
    assert not any("pipewire" in each for each in made)
    assert "-fobjc-arc" in commandsOf(tmp_path, "coreaudioTests")
