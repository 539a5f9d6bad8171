# SPDX-License-Identifier: MIT
"""Programs and modules that forward the audio of others: each gives a session a sink "effect" that plays to a
device."""

import pathlib
import sys

from audioSession import waitUntil

HALF = 0.5  # The gain of the effects that have one.

FILTER = """
{ name = libpipewire-module-filter-chain
  args = {
    node.description = "Effect"
    media.name = "Effect"
    filter.graph = {
      nodes = [
        { type = builtin label = copy name = left } { type = builtin label = copy name = right }
        { type = builtin label = mixer name = leftSum control = { "Gain 1" = 0.25 "Gain 2" = 0.25 } }
        { type = builtin label = mixer name = rightSum control = { "Gain 1" = 0.25 "Gain 2" = 0.25 } } ]
      links = [
        { output = "left:Out" input = "leftSum:In 1" } { output = "left:Out" input = "leftSum:In 2" }
        { output = "right:Out" input = "rightSum:In 1" } { output = "right:Out" input = "rightSum:In 2" } ]
      inputs = [ "left:In" "right:In" ] outputs = [ "leftSum:Out" "rightSum:Out" ] }
    audio.channels = 2 audio.position = [ FL FR ]
    capture.props = { node.name = "effect" media.class = Audio/Sink session.suspend-timeout-seconds = 0 }
    playback.props = { node.name = "effect.out" node.passive = true TARGET }
  } }"""

LOOPBACK = """
{ name = libpipewire-module-loopback
  args = {
    audio.position = [ FL FR ]
    capture.props = { node.name = "effect" media.class = Audio/Sink session.suspend-timeout-seconds = 0 }
    playback.props = { node.name = "effect.out" TARGET }
  } }"""

PROGRAM = """
context.properties = { log.level = 2 }
context.spa-libs = { audio.convert.* = audioconvert/libspa-audioconvert support.* = support/libspa-support }
context.modules = [
  { name = libpipewire-module-rt args = { } flags = [ ifexists nofail ] }
  { name = libpipewire-module-protocol-native }
  { name = libpipewire-module-client-node }
  { name = libpipewire-module-adapter }
  MODULE
]
"""


def toSpeakers(module, target='target.object = "speakers"'):
    return module.replace("TARGET", target)


def startFilterChain(session):
    """A filter chain in a separate process."""
    file = session.folder / "filter.conf"
    file.write_text(PROGRAM.replace("MODULE", toSpeakers(FILTER)))
    session.spawn("effect", ["pipewire", "-c", str(file)])
    return HALF


def startLoopback(session):
    capture = "{ media.class=Audio/Sink node.name=effect session.suspend-timeout-seconds=0 }"
    session.spawn("effect", ["pw-loopback", "-m", "[ FL FR ]", "--capture-props", capture,
                             "--playback-props", "{ target.object=speakers node.name=effect.out }"])
    return 1.0


def startLoopbackWithoutTarget(session):
    """Follows the default, which may be its own sink: the session manager then uses the next best device."""
    session.unplug("headphones")
    capture = "{ media.class=Audio/Sink node.name=effect session.suspend-timeout-seconds=0 }"
    session.spawn("effect", ["pw-loopback", "-m", "[ FL FR ]", "--capture-props", capture,
                             "--playback-props", "{ node.name=effect.out }"])
    return 1.0


def startRemap(session):
    session.run("pactl", "load-module", "module-remap-sink", "sink_name=effect", "master=speakers")
    return 1.0


def startCombine(session):
    session.run("pactl", "load-module", "module-combine-sink", "sink_name=effect", "slaves=speakers,headphones")
    return 1.0


def startPulseLoopback(session):
    """A virtual sink whose monitor a module plays to the speakers."""
    session.plug("effect", "Effect")
    session.run("pactl", "load-module", "module-loopback", "source=effect.monitor", "sink=speakers")
    return 1.0


def startJackClient(session):
    """A JACK client, linked manually between a virtual sink and the speakers."""
    session.plug("effect", "Effect")
    client = pathlib.Path(__file__).with_name("jackEffect.py")
    session.spawn("jack", ["pw-jack", sys.executable, "-B", str(client)])
    for side in ("FL", "FR"):
        for output, input in ((f"effect:monitor_{side}", f"jackEffect:in_{side}"),
                              (f"jackEffect:out_{side}", f"speakers:playback_{side}")):
            waitUntil(lambda: session.isDone("pw-link", output, input), f"the link from {output}")
    return HALF


EFFECTS = {
    "filterChain": startFilterChain,
    "loopback": startLoopback,
    "loopbackWithoutTarget": startLoopbackWithoutTarget,
    "remap": startRemap,
    "combine": startCombine,
    "pulseLoopback": startPulseLoopback,
    "jack": startJackClient,
}


def start(session, name):
    """Starts an effect and waits until its sink exists; returns its gain."""
    gain = EFFECTS[name](session)
    waitUntil(lambda: session.nodeId("effect", ports=True), f"the sink of {name}")
    return gain


def configureServer(session, module):
    """Adds a module to the configuration of a server that has not been started yet."""
    folder = pathlib.Path(session.environment["XDG_CONFIG_HOME"]) / "pipewire" / "pipewire.conf.d"
    folder.mkdir(parents=True, exist_ok=True)
    (folder / "effect.conf").write_text(f"context.modules = [ {toSpeakers(module)} ]\n")


def startEasyEffects(session):
    """As a service, on a virtual screen. Its output is another sink, to which it moves every stream."""
    session.spawn("screen", ["Xvfb", "-displayfd", "1", "-nolisten", "tcp", "-screen", "0", "640x480x24"])
    log = session.folder / "screen.log"
    number = waitUntil(lambda: [line for line in log.read_text().splitlines() if line.isdigit()], "the X server")[0]
    session.spawn("easyeffects", ["easyeffects", "--gapplication-service"], environment={
        "DISPLAY": f":{number}", "GSETTINGS_BACKEND": "memory", "GDK_BACKEND": "x11", "GSK_RENDERER": "cairo"})
    waitUntil(lambda: session.nodeId("easyeffects_sink", ports=True), "the sink of EasyEffects", 20)
