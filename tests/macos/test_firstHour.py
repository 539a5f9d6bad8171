# SPDX-License-Identifier: MIT
"""The first hour without a Mac: its tools are replaced by small scripts that leave the same results."""

import os
import pathlib
import shutil
import subprocess

import machO
import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]

PROGRAM = r"""#!/bin/sh
case "$*" in
    --version) echo "fadeloom 0.1.0" ;;
    "--headless --simulate") echo "log tap ready: com.example.player"; cat >/dev/null ;;
    "--headless")
        if [ -e "$LOCK" ]; then echo "fadeloom: it is running already" >&2; exit 3; fi
        echo $$ >"$LOCK"; trap 'rm -f "$LOCK"; exit 0' TERM
        for i in $(seq 100); do sleep 0.1; done ;;
    --render-screenshots*) mkdir -p "$2"; for i in 1 2 3 4 5; do echo png >"$2/$i.png"; done ;;
esac
"""
COREAUDIO = r"""#!/bin/sh
echo "left out *TapContract*: without the permission to capture, taps deliver silence"
echo "answer privacy: 2"
echo "answer stereo pairs: Speakers 1+2; "
"""
TOOLS = {
    "uname": 'case "$1" in -m) echo arm64 ;; *) echo "${SYSTEM:-Darwin}" ;; esac',
    "sw_vers": "echo 15.1",
    "xcrun": "echo /usr/bin/clang",
    "brew": 'case "$1" in --prefix) echo "$FAKE_QT" ;; list) [ "$2" != googletest ] ;; esac',
    "plutil": "true",
    "codesign": "true",
    "sleep": 'exec /bin/sleep 0.3',
    "cmake": r"""
case "$*" in
    "--build build/mac")
        [ -z "$BUILD_FAILS" ] || { echo "error: no such header"; exit 1; }
        echo "a.cpp:1: warning: something"; echo "b.cpp:1: warning: something"
        mkdir -p build/mac/Fadeloom.app/Contents/MacOS
        cp "$FAKE_PROGRAM" build/mac/Fadeloom.app/Contents/MacOS/Fadeloom ;;
    "--build build/mac-test"*)
        for tests in base engine platform/simulated; do
            mkdir -p build/mac-test/src/$tests
            printf '#!/bin/sh\nexit 0\n' >build/mac-test/src/$tests/$(echo $tests | tr / _)Tests
            chmod +x build/mac-test/src/$tests/*Tests
        done
        mkdir -p build/mac-test/tests/coreaudio
        cp "$FAKE_COREAUDIO" build/mac-test/tests/coreaudio/coreaudioTests ;;
esac""",
}


@pytest.fixture
def mac(tmp_path):
    """A copy of what the script needs, and fake tools."""
    root = tmp_path / "fadeloom"
    for name in ("packaging/macos", "docs"):
        shutil.copytree(ROOT / name, root / name)
    tools = tmp_path / "tools"
    tools.mkdir()
    scripts = {tools / name: "#!/bin/sh\n" + text + "\n" for name, text in TOOLS.items()}
    scripts |= {tmp_path / "program": PROGRAM, tmp_path / "coreaudio": COREAUDIO}
    for file, text in scripts.items():
        file.write_text(text)
        file.chmod(0o755)
    qt = tmp_path / "qt"
    (qt / "lib").mkdir(parents=True)
    (qt / "lib" / "QtCore").write_bytes(machO.universal())

    def run(expected, **variables):
        environment = {**os.environ, "PATH": f"{tools}:{os.environ['PATH']}", "FAKE_QT": str(qt),
                       "FAKE_PROGRAM": str(tmp_path / "program"), "FAKE_COREAUDIO": str(tmp_path / "coreaudio"),
                       "LOCK": str(tmp_path / "lock"), **variables}
        done = subprocess.run([root / "packaging/macos/firstHour", tmp_path / "out"], env=environment, text=True,
                              capture_output=True, timeout=60)
        assert done.returncode == expected, done.stdout + done.stderr
        return (tmp_path / "out" / "report.txt").read_text().splitlines()

    run.qt = qt
    return run


def linesOf(report, name):
    return [line for line in report if line.startswith(name + ":")]


def test_everyStepIsInTheReport(mac):
    report = mac(0)
    for name in ("tools", "packages", "configure", "build", "plist", "sign", "version", "simulated", "pictures",
                 "twice", "configureTests", "buildTests", "units_base", "units_platform_simulated", "coreaudio"):
        assert len(linesOf(report, name)) == 1 and "passed" in linesOf(report, name)[0], (name, report)
    assert linesOf(report, "warnings of the build") == ["warnings of the build: 2"]
    assert linesOf(report, "system") == ["system: macOS 15.1 on arm64"]
    assert linesOf(report, "units_ui") == ["units_ui: not tried, they were not built"]
    assert "Everything that a Mac can try by itself has passed." in report


def test_whatTheMacHasAnsweredIsInTheReport(mac):
    report = mac(0)
    assert linesOf(report, "privacy") == ["privacy: 2"]
    assert linesOf(report, "stereo pairs") == ["stereo pairs: Speakers 1+2; "]
    assert linesOf(report, "left out *TapContract*") == [
        "left out *TapContract*: without the permission to capture, taps deliver silence"]


def test_whatNeedsHandsIsListedFromTheDocument(mac):
    report = mac(0)
    listed = [line for line in report if line.startswith("  [ ] ")]
    assert len(listed) == (ROOT / "docs/macos.md").read_text().count("| by hand: ")
    assert len(listed) > 5


def test_aStepThatFailsEndsNothing(mac):
    report = mac(1, BUILD_FAILS="1")
    assert "FAILED" in linesOf(report, "build")[0]
    assert "FAILED" in linesOf(report, "version")[0]
    assert "passed" in linesOf(report, "units_base")[0]
    assert any(line.endswith(" steps have failed.") for line in report)


def test_aQtForOneArchitectureIsReported(mac):
    (mac.qt / "lib" / "QtGui").write_bytes(machO.thin("arm64"))
    report = mac(0)
    assert "only arm64" in linesOf(report, "processors")[0]


def test_elsewhereItSaysThatThisIsNotAMac(mac):
    report = mac(2, SYSTEM="Linux")
    assert "This is no Mac." in report


@pytest.mark.parametrize("script", ["firstHour", "package"])
def test_theScriptsAreClean(script):
    done = subprocess.run(["shellcheck", ROOT / "packaging/macos" / script], text=True, capture_output=True)
    assert done.returncode == 0, done.stdout
