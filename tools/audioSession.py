#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""A private audio session: its own PipeWire, WirePlumber and pipewire-pulse, with two virtual devices.

Nothing outside is touched: the session has its own runtime, state and home directories and its own message bus, needs
no audio hardware, and terminates all its processes. Used by the tests on the real graph and by the demo.

    tools/audioSession.py run -- COMMAND ...      runs a command inside a session
"""

import contextlib
import json
import os
import pathlib
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import time


class SessionError(RuntimeError):
    """The session did not start, or a process in it did not do what was awaited."""


def waitUntil(condition, what, seconds=10.0, interval=0.02):
    """Polls until `condition` returns a truthy value and returns it; raises SessionError after `seconds`."""
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise SessionError(f"waited {seconds:g} s in vain for {what}")
        time.sleep(interval)


def allowRealTime():
    """Gives this process's audio threads real-time priority, as RealtimeKit does on a desktop; without permission to do
    so, they compete with everything else."""
    with contextlib.suppress(ValueError, OSError):
        resource.setrlimit(resource.RLIMIT_RTPRIO, (95, 95))


class AudioSession:
    """Use as a context manager. `folder` holds the session's files and logs; if none is given, a temporary one is
    created, and removed at the end. `serverLog`: PipeWire's log level, in PIPEWIRE_DEBUG syntax."""

    def __init__(self, folder=None, defaultSinks=True, serverLog="2"):
        self.ownsFolder = folder is None
        self.folder = pathlib.Path(folder or tempfile.mkdtemp(prefix="audio-session-"))
        self.defaultSinks = defaultSinks
        self.serverLog = serverLog
        self.processes = {}
        self.environment = self._makeEnvironment()
        self._keepAwayFromHardware()

    def _makeEnvironment(self):
        keep = ("PATH", "LANG", "LC_ALL", "TERM", "XDG_DATA_DIRS", "ASAN_OPTIONS", "TSAN_OPTIONS", "UBSAN_OPTIONS")
        environment = {name: os.environ[name] for name in keep if name in os.environ}
        for name, folder in {"XDG_RUNTIME_DIR": "run", "XDG_STATE_HOME": "state", "HOME": "home",
                             "XDG_CONFIG_HOME": "config", "XDG_DATA_HOME": "data", "XDG_CACHE_HOME": "cache"}.items():
            path = self.folder / folder
            path.mkdir(parents=True, exist_ok=True)
            environment[name] = str(path)
        (self.folder / "run").chmod(0o700)
        environment["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={self.folder}/run/bus"
        environment["PULSE_RUNTIME_PATH"] = str(self.folder / "run" / "pulse")
        return environment

    def __enter__(self):
        try:
            self.start()
        except BaseException:
            self.stop()
            raise
        return self

    def __exit__(self, *_):
        self.stop()

    def _keepAwayFromHardware(self):
        """Makes the session manager ignore hardware: the machine's own session owns it, and without systemd's seats it
        would not even start."""
        config = pathlib.Path(self.environment["XDG_CONFIG_HOME"]) / "wireplumber"
        lua = {  # WirePlumber 0.4
            "main.lua.d": "alsa_monitor.enabled = false\nv4l2_monitor.enabled = false\n"
                          "libcamera_monitor.enabled = false\n",
            "bluetooth.lua.d": "bluez_monitor.enabled = false\n",
        }
        for folder, text in lua.items():
            (config / folder).mkdir(parents=True, exist_ok=True)
            (config / folder / "80-no-hardware.lua").write_text(text)
        conf = config / "wireplumber.conf.d"  # 0.5 and later
        conf.mkdir(parents=True, exist_ok=True)
        features = ("hardware.audio", "hardware.bluetooth", "hardware.video-capture", "monitor.alsa-midi",
                    "support.logind", "support.reserve-device")
        (conf / "80-no-hardware.conf").write_text(
            "wireplumber.profiles = { main = { " + " ".join(f"{name} = disabled" for name in features) + " } }\n")

    # Processes

    def spawn(self, name, command, **options):
        """Starts a process in the session; its output goes to `<folder>/<name>.log` unless redirected."""
        if "stdout" not in options:
            log = open(self.folder / f"{name}.log", "ab")
            options.setdefault("stdout", log)
            options.setdefault("stderr", log)
        options.setdefault("stdin", subprocess.DEVNULL)
        environment = {**self.environment, **options.pop("environment", {})}
        process = subprocess.Popen(command, env=environment, start_new_session=True, preexec_fn=allowRealTime,
                                   **options)
        self.processes[name] = process
        return process

    def end(self, name, signalNumber=signal.SIGTERM, seconds=5.0):
        """Terminates a process by its id and returns its exit status."""
        process = self.processes.pop(name)
        if process.poll() is None:
            process.send_signal(signalNumber)
        try:
            return process.wait(seconds)
        except subprocess.TimeoutExpired:
            process.kill()
            return process.wait()

    def run(self, *command, check=True, seconds=20, **options):
        """Runs a command inside the session to completion and returns its standard output as text."""
        done = subprocess.run(command, env=self.environment, text=True, capture_output=True, timeout=seconds, **options)
        if check and done.returncode != 0:
            raise SessionError(f"{' '.join(command)} ended with {done.returncode}: {done.stderr.strip()}")
        return done.stdout

    def isDone(self, *command):
        """Runs a command inside the session and returns whether it succeeded."""
        return subprocess.run(command, env=self.environment, capture_output=True, timeout=20).returncode == 0

    # Lifecycle

    def start(self):
        self.spawn("dbus", ["dbus-daemon", "--session", "--nofork", "--nopidfile",
                            f"--address={self.environment['DBUS_SESSION_BUS_ADDRESS']}"])
        waitUntil(lambda: (self.folder / "run" / "bus").exists(), "the message bus")
        self.startServer()
        self.startSessionManager()
        self.startPulse()
        if self.defaultSinks:
            self.plug("speakers", "Speakers")
            self.plug("headphones", "Headphones")
            self.setDefault("speakers")

    def startServer(self):
        self.spawn("pipewire", ["pipewire"], environment={"PIPEWIRE_DEBUG": self.serverLog})
        waitUntil(lambda: (self.folder / "run" / "pipewire-0").exists(), "the PipeWire socket")

    def startSessionManager(self):
        self.spawn("wireplumber", ["wireplumber"])
        try:
            waitUntil(lambda: "Found" in self.run("pw-metadata", check=False), "the session manager")
        except SessionError as error:
            raise SessionError(f"{error}; it said:\n{(self.folder / 'wireplumber.log').read_text()[-2000:]}") from None

    def startPulse(self):
        self.spawn("pipewire-pulse", ["pipewire-pulse"])
        waitUntil(lambda: (self.folder / "run" / "pulse" / "native").exists(), "the pulse socket")

    def stop(self):
        for name in reversed(list(self.processes)):
            with contextlib.suppress(ProcessLookupError):
                self.end(name, seconds=3.0)
        self._endOrphans()
        if self.ownsFolder:
            shutil.rmtree(self.folder, ignore_errors=True)

    def _endOrphans(self):
        """Kills what the session's processes have left behind: everything with this session's runtime folder."""
        mark = f"XDG_RUNTIME_DIR={self.environment['XDG_RUNTIME_DIR']}".encode()
        for folder in pathlib.Path("/proc").glob("[0-9]*"):
            with contextlib.suppress(OSError):
                if mark in (folder / "environ").read_bytes().split(b"\0"):
                    os.kill(int(folder.name), signal.SIGKILL)

    # Devices

    def plug(self, name, description=None, position="FL FR", mediaClass="Audio/Sink", suspendAfter=0):
        """Adds a virtual device and waits until its ports exist.

        `suspendAfter`: seconds; 0 is never, because WirePlumber 0.4 crashes if a device is removed while its suspend
        timeout is running.
        """
        properties = (f"{{ factory.name=support.null-audio-sink node.name={json.dumps(name)} "
                      f"node.description={json.dumps(description or name)} media.class={mediaClass} "
                      f"object.linger=true session.suspend-timeout-seconds={suspendAfter} audio.position=[{position}] }}")
        self.run("pw-cli", "create-node", "adapter", properties)
        return waitUntil(lambda: self.nodeId(name, ports=True), f"the device {name}")

    def unplug(self, name):
        self.run("pw-cli", "destroy", str(self.nodeId(name)))
        waitUntil(lambda: self.nodeId(name) is None, f"{name} to go")

    def setDefault(self, name):
        self.run("pw-metadata", "0", "default.configured.audio.sink", json.dumps({"name": name}), "Spa:String:JSON")
        waitUntil(lambda: self.defaultSink() == name, f"{name} to be the default")

    def defaultSink(self):
        for thing in self.dump():
            if thing["props"].get("metadata.name") == "default":
                for entry in thing.get("metadata", []):
                    if entry["key"] == "default.audio.sink":
                        return entry["value"]["name"]
        return None

    # Recording

    def record(self, name, *ports, quantum=None):
        """Records these ports, one channel each, as 32-bit float until `endRecording`; returns the file's path.

        The session manager is not involved: our recorders are linked explicitly and stay so.
        """
        channels = ",".join(f"AUX{i}" for i in range(len(ports)))
        file = self.folder / f"{name}.wav"
        latency = ["--latency", f"{quantum}/48000"] if quantum else []
        recorder = self.folder / "recorder"  # A separate program, so that it is not the same application as pw-play.
        if not recorder.exists():
            shutil.copy(shutil.which("pw-cat"), recorder)
        self.spawn(name, [str(recorder), "--record", "-P", f"{{ node.autoconnect=false node.name={name} }}", "--target", "0",
                          "--channels", str(len(ports)), "--channel-map", channels, "--format", "f32",
                          *latency, str(file)])
        for i, port in enumerate(ports):
            waitUntil(lambda: self.isDone("pw-link", port, f"{name}:input_AUX{i}"), f"the recorder on {port}")
        return file

    def recordDevice(self, name, device, channels=("FL", "FR"), **options):
        """Records what a device plays."""
        return self.record(name, *(f"{device}:monitor_{channel}" for channel in channels), **options)

    def endRecording(self, name):
        self.end(name, signal.SIGINT)

    # The graph

    def links(self):
        """Every link as (output port, input port), by their full names."""
        things = {thing["id"]: thing for thing in self.dump()}
        nodeName = {i: thing["props"].get("node.name", "?") for i, thing in things.items()}

        def portName(port):
            props = things[port]["props"] if port in things else {}
            return f"{nodeName.get(props.get('node.id'), '?')}:{props.get('port.name', '?')}"

        return [(portName(thing["info"]["output-port-id"]), portName(thing["info"]["input-port-id"]))
                for thing in things.values() if thing["type"].endswith(":Link") and thing.get("info")]

    def setQuantum(self, frames):
        """Forces the quantum of the graph; 0 lets the server choose again."""
        self.run("pw-metadata", "-n", "settings", "0", "clock.force-quantum", str(frames))

    def setRate(self, rate):
        """Forces the sample rate of the graph; 0 lets the server choose again."""
        self.run("pw-metadata", "-n", "settings", "0", "clock.force-rate", str(rate))

    def dump(self):
        """Every object of the graph: id, type, its properties as `props`, and the rest of pw-dump's output."""
        try:
            things = json.loads(self.run("pw-dump", check=False, seconds=3))
        except (json.JSONDecodeError, subprocess.TimeoutExpired):
            return []  # The graph changed during the dump; callers that wait for something retry.
        for thing in things:
            thing["props"] = thing.get("info", {}).get("props") or thing.get("props") or {}
        return things

    def nodes(self):
        return [thing for thing in self.dump() if thing["type"].endswith(":Node")]

    def nodeId(self, name, ports=False):
        things = self.dump()
        for thing in things:
            if thing["type"].endswith(":Node") and thing["props"].get("node.name") == name:
                if ports and not any(port["type"].endswith(":Port") and port["props"].get("node.id") == thing["id"]
                                     for port in things):
                    return None
                return thing["id"]
        return None


def main(arguments):
    if len(arguments) < 3 or arguments[0] != "run" or arguments[1] != "--":
        print(__doc__, file=sys.stderr)
        return 2
    with AudioSession() as session:
        return subprocess.run(arguments[2:], env={**os.environ, **session.environment}).returncode


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
