#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Demonstrates Fadeloom without any audio hardware.

A private PipeWire session with two virtual devices; two real players, one native and one through PulseAudio; Fadeloom
with settings that turn one down and boost, equalize and reroute the other; then it records an app, and an app makes a
call. The audio at the devices is recorded before and after, and the measured levels are printed. Finally the program is
started in the tray of a virtual desktop, and its panel is opened. The recording and a picture of the panel are left in
build/demo/.

    tools/demo.py PROGRAM
"""

import pathlib
import shlex
import shutil
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

import signals  # noqa: E402
from audioSession import SessionError, waitUntil  # noqa: E402
from desktopSession import DesktopSession  # noqa: E402
from fadeloomProcess import FadeloomProcess, app, settings  # noqa: E402

DEVICES = ("speakers", "headphones")
MUSIC = 440  # Hz, played by pw-play.
RADIO = 1000  # Hz, played by paplay.
QUANTUM = 1024
SILENCE = -60  # dB; the noise and the limiter contribute less than this at a player's frequency.

SETTINGS = settings({
    "pw-cat": app(volume=0.5),
    "pacat": app(volume=2.0, outputUID="headphones", eqEnabled=True, eqPresetName="Vocal",
                 eqGains=[-2, -2, -1, 1, 3, 3, 3, 2, 1, 0]),
}, volumeLimit=2.0, focus={"enabled": True, "duckLevel": 0.2, "callApps": ["talk"]})
RESULTS = pathlib.Path(__file__).resolve().parent.parent / "build" / "demo"

PLAYERS = (
    ("pw-play, native, 440 Hz", MUSIC, "volume 50 %"),
    ("paplay, PulseAudio, 1 kHz", RADIO, "volume 200 %, preset Vocal, on the headphones"),
)


def measure(session, name):
    """Each player's level on each device in dB, from one second of the devices' output."""
    files = {device: session.recordDevice(f"{name}-{device}", device) for device in DEVICES}
    time.sleep(1.5)
    for device in DEVICES:
        session.endRecording(f"{name}-{device}")
    levels = {}
    for device, file in files.items():
        recorded = signals.read(file)
        for _, frequency, _ in PLAYERS:
            second = recorded[-signals.RATE - 4096:-4096]  # Whole periods of both.
            levels[device, frequency] = float(signals.decibels(signals.amplitude(second, frequency).max()))
    return levels


def measureDelay(session, name, port):
    """The latency from a player to the device, in frames."""
    file = session.record(name, port, "speakers:monitor_FL", quantum=QUANTUM)
    time.sleep(0.8)
    session.endRecording(name)
    recorded = signals.read(file)[2048:]
    return signals.delay(recorded[:, 0], recorded[:, 1])


def show(levels):
    print(f"  {'':26}" + "".join(f"{device:>14}" for device in DEVICES))
    for name, frequency, _ in PLAYERS:
        row = [levels[device, frequency] for device in DEVICES]
        print(f"  {name:26}" + "".join(f"{level:11.2f} dB" if level > SILENCE else f"{'silent':>14}" for level in row))


def recordRadio(fadeloom):
    """Records paplay for two seconds with the program's own recorder; returns the level in the file in dB."""
    count = len(fadeloom.lines)
    fadeloom.command("record pacat start")
    time.sleep(2)
    fadeloom.command("record pacat stop")
    fadeloom.waitFor("recording saved", after=count)
    said = next(line for line in fadeloom.text()[count:] if line.startswith("recording saved"))
    time.sleep(0.7)
    RESULTS.mkdir(parents=True, exist_ok=True)
    kept = RESULTS / "recording.wav"
    shutil.copy(shlex.split(said)[2], kept)
    rate, recorded = signals.readWave24(kept)
    level = float(signals.decibels(signals.amplitude(recorded[:rate] / 2.0**23, RADIO).max()))
    print(f"  {kept.relative_to(RESULTS.parent.parent)}: {len(recorded) / rate:.1f} seconds, {level:.2f} dB, at paplay's own level, before volume")
    return level


def call(session, fadeloom):
    """A call app plays nothing and captures from a microphone; returns by how much the music is ducked in dB."""
    before = measure(session, "before-call")
    talk = session.folder / "talk"
    shutil.copy(shutil.which("pw-cat"), talk)
    signals.write(session.folder / "silence.wav", signals.sine(MUSIC, 0, 30))
    session.plug("microphone", mediaClass="Audio/Source/Virtual")
    session.spawn("talk-play", [str(talk), "--playback", str(session.folder / "silence.wav")])
    fadeloom.waitFor("tap ready: talk")
    session.spawn("talk-listen", [str(talk), "--record", "--target", "microphone", str(session.folder / "talk.wav")])
    fadeloom.waitFor("call talk")
    time.sleep(2.5)
    during = measure(session, "during-call")
    session.end("talk-listen")
    fadeloom.waitFor("call none")
    session.end("talk-play")
    return during["speakers", MUSIC] - before["speakers", MUSIC]


def showPanel(session, program):
    """Starts the program with its icon, and a second time, which opens the panel; saves a picture of it."""
    session.startXfcePanel()
    session.spawn("panel", [str(program)])
    waitUntil(lambda: session.ownsName("com.fadeloom.app"), "the program")
    session.run(str(program))
    window = waitUntil(lambda: session.windows("^Fadeloom$"), "the panel")[0]
    time.sleep(2)  # The levels appear once audio has passed through the taps.
    picture = RESULTS / "panel.png"
    session.screenshot(picture, session.geometry(window))
    session.end("panel")
    print(f"\nIts panel, with both players: {picture.relative_to(RESULTS.parent.parent)}")


def demonstrate(session, program):
    session.setQuantum(QUANTUM)
    music = signals.sine(MUSIC, 0.25, 60) + signals.noise(0.02, 60)  # The noise is for measuring the delay.
    signals.write(session.folder / "music.wav", music)
    signals.write(session.folder / "radio.wav", signals.sine(RADIO, 0.4, 60))
    session.spawn("music", ["pw-play", str(session.folder / "music.wav")])
    session.spawn("radio", ["paplay", "--latency-msec=20", str(session.folder / "radio.wav")])
    waitUntil(lambda: session.nodeId("paplay") and session.nodeId("pw-play"), "the players")
    time.sleep(0.5)

    print("\nTwo players in a private audio session, both on the speakers:")
    before = measure(session, "before")
    show(before)
    direct = measureDelay(session, "direct", "pw-play:output_FL")

    with FadeloomProcess(session, program, SETTINGS) as fadeloom:
        fadeloom.waitFor("tap ready: pw-cat")
        fadeloom.waitFor("tap ready: pacat")
        time.sleep(0.7)
        print("\nFadeloom is started with settings for both:")
        for name, _, what in PLAYERS:
            print(f"  {name:26}  {what}")
        print("\nIts output:")
        for line in fadeloom.text():
            print(f"  {line}")
        print("\nWhat arrives at the devices now:")
        after = measure(session, "after")
        show(after)
        tapped = measureDelay(session, "tapped", "pw-play:output_FL")
        print("\nIt records paplay:")
        recorded = recordRadio(fadeloom)
        print("\nA call app captures from a microphone:")
        lowered = call(session, fadeloom)
        print(f"  pw-play is ducked by {-lowered:.2f} dB: a fifth of the amplitude is 13.98 dB.")
        fadeloom.quit()

    change = after["speakers", MUSIC] - before["speakers", MUSIC]
    print(f"\n  pw-play is {change:+.2f} dB: half the amplitude is -6.02 dB.")
    print("  paplay has moved from the speakers to the headphones, its peaks limited to -1 dB (0.891).")
    print(f"  Added delay: {tapped - direct} frames, at {QUANTUM} frames per cycle.")

    time.sleep(0.7)
    print("\nFadeloom has ended; the players play directly again:")
    end = measure(session, "end")
    show(end)
    showPanel(session, program)
    isRight = (abs(change + 6.02) < 0.05 and tapped == direct and after["speakers", RADIO] < SILENCE
               and abs(after["headphones", RADIO] + 1) < 0.1 and abs(recorded - signals.decibels(0.4)) < 0.05
               and abs(lowered + 13.98) < 0.1
               and abs(end["speakers", RADIO] - before["speakers", RADIO]) < 0.05)
    print("\nEverything is as expected." if isRight else "\nSomething is not as expected.")
    return 0 if isRight else 1


def main(arguments):
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    try:
        with DesktopSession() as session:
            return demonstrate(session, pathlib.Path(arguments[0]).resolve())
    except SessionError as error:
        print(f"The demo session failed: {error}", file=sys.stderr)
        return 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
