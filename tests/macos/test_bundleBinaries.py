# SPDX-License-Identifier: MIT
"""Detection of what would keep a bundle from running on another Mac."""

import pathlib
import subprocess
import sys

import machO
import pytest

TOOL = pathlib.Path(__file__).resolve().parents[2] / "packaging" / "macos" / "bundleBinaries.py"


@pytest.fixture
def bundle(tmp_path):
    folder = tmp_path / "Fadeloom.app"
    (folder / "Contents" / "MacOS").mkdir(parents=True)
    (folder / "Contents" / "Info.plist").write_text("<plist/>")
    write(folder, "Contents/MacOS/Fadeloom", machO.universal(
        libraries=["/usr/lib/libSystem.B.dylib", "@rpath/QtCore.framework/Versions/A/QtCore",
                   "/System/Library/Frameworks/CoreAudio.framework/Versions/A/CoreAudio"],
        rpaths=["@executable_path/../Frameworks"]))
    return folder


def write(folder, name, content):
    file = folder / name
    file.parent.mkdir(parents=True, exist_ok=True)
    file.write_bytes(content)
    return file


def check(bundle, *options):
    done = subprocess.run([sys.executable, "-B", TOOL, "check", bundle, *options], text=True, capture_output=True)
    assert done.stderr == ""
    return done.returncode, done.stdout.splitlines()


def test_aBundleThatRunsEverywhereIsTaken(bundle):
    write(bundle, "Contents/Frameworks/one.dylib", machO.universal(isLong=True))
    write(bundle, "Contents/Frameworks/two.dylib", machO.universal(minimum="11.0", isOld=True))
    assert check(bundle) == (0, ["3 Mach-O files, for arm64,x86_64"])


@pytest.mark.parametrize("isLong", [False, True])
def test_aFileForOneProcessorIsNamed(bundle, isLong):
    write(bundle, "Contents/PlugIns/a.dylib", machO.thin("arm64"))
    write(bundle, "Contents/PlugIns/b.dylib", machO.fat(machO.thin("x86_64"), isLong=isLong))
    assert check(bundle) == (1, ["Contents/PlugIns/a.dylib: nothing for x86_64",
                                 "Contents/PlugIns/b.dylib: nothing for arm64"])
    assert check(bundle, "--architectures", "x86_64")[1] == ["Contents/PlugIns/a.dylib: nothing for x86_64"]


def test_aFileForALaterMacOSIsNamed(bundle):
    write(bundle, "Contents/PlugIns/a.dylib",
          machO.fat(machO.thin("arm64", minimum="15.0"), machO.thin("x86_64", minimum="14.2")))
    assert check(bundle) == (1, ["Contents/PlugIns/a.dylib (arm64): runs from macOS 15.0.0 on only"])
    assert check(bundle, "--minimum", "15.0")[0] == 0


def test_aFileThatDoesNotSayWhereItRunsIsNamed(bundle):
    write(bundle, "Contents/PlugIns/a.dylib", machO.universal(minimum=None))
    write(bundle, "Contents/PlugIns/b.dylib", machO.universal(platform=2))
    assert [line.split(": ")[1] for line in check(bundle)[1]] == \
        ["does not say from which macOS on it runs"] * 2 + ["made for another system than macOS"] * 2


def test_aLibraryOfTheBuildersMacIsNamed(bundle):
    write(bundle, "Contents/PlugIns/a.dylib",
          machO.universal(libraries=["/opt/homebrew/lib/QtCore.framework/QtCore"], rpaths=["/opt/homebrew/lib"]))
    status, lines = check(bundle)
    assert status == 1
    assert lines[:2] == [
        "Contents/PlugIns/a.dylib (arm64): needs /opt/homebrew/lib/QtCore.framework/QtCore, which is not in the bundle",
        "Contents/PlugIns/a.dylib (arm64): looks for libraries in /opt/homebrew/lib"]


@pytest.mark.parametrize("length", [10, 40, 100])
def test_aFileThatEndsTooEarlyIsNamed(bundle, length):
    write(bundle, "Contents/PlugIns/a.dylib", machO.thin(libraries=["@rpath/QtCore", "@rpath/QtGui"])[:length])
    assert check(bundle) == (1, ["Contents/PlugIns/a.dylib: ends too early"])


def test_aFatFileWhoseSlicesAreElsewhereIsNamed(bundle):
    write(bundle, "Contents/PlugIns/a.dylib", machO.universal()[:60])
    assert check(bundle)[1] == ["Contents/PlugIns/a.dylib: ends too early"]


def test_otherFilesAreSkipped(bundle):
    write(bundle, "Contents/Resources/A.class", b"\xca\xfe\xba\xbe\x00\x00\x00\x41" + b"\0" * 40)
    write(bundle, "Contents/Resources/short", b"\xca\xfe")
    assert check(bundle)[0] == 0


def test_aBundleWithoutAProgramIsWrong(tmp_path):
    assert check(tmp_path) == (1, [f"{tmp_path}: holds no program"])


def test_runPathsThatLeadOutAreListed(bundle):
    file = write(bundle, "program", machO.universal(rpaths=["/opt/Qt/lib", "@loader_path/../lib", "/opt/A/lib"]))
    done = subprocess.run([sys.executable, "-B", TOOL, "rpaths", file], text=True, capture_output=True)
    assert done.stdout.splitlines() == ["/opt/A/lib", "/opt/Qt/lib"]
