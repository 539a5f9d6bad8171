# SPDX-License-Identifier: MIT
"""The mixer on the session bus, through gdbus, busctl and Python's GLib, with a real player."""

import os
import pathlib
import subprocess
import xml.etree.ElementTree as ElementTree

import gi
import pytest

from audioSession import waitUntil
from fadeloomProcess import app, settings
from listening import sineFile, waitForSound
from sessionBus import NAME, PLAYER, PROPERTIES, ROOT, SPEAKERS, Bus
from test_control import ctl, sandboxOf

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

FILE = pathlib.Path(__file__).resolve().parents[2] / "packaging/linux/dbus/com.fadeloom.app.Mixer1.xml"


@pytest.fixture(scope="module")
def playing(sharedStage):
    with sharedStage.fadeloom(settings({"pw-cat": app()})) as fadeloom:
        sharedStage.play("pw-play", sineFile(sharedStage))
        sharedStage.waitForTap(fadeloom, "pw-cat")
        yield sharedStage


@pytest.fixture
def bus(playing):
    return Bus(playing.session)


def shape(node):
    """An interface without its comments."""
    return [(child.tag, child.get("name"), child.get("type"), child.get("access"), child.get("direction"),
             child.get("value"), shape(child)) for child in node]


def test_introspectionIsTheFile(bus):
    described = {interface.get("name"): shape(interface) for interface in ElementTree.parse(FILE).getroot()}
    assert len(described) == 3
    for path, name in ((ROOT, "Mixer1"), (PLAYER, "App1"), (SPEAKERS, "Output1")):
        text = bus.call(path, "org.freedesktop.DBus.Introspectable", "Introspect")[0]
        shown = {interface.get("name"): shape(interface) for interface in ElementTree.fromstring(text).findall("interface")}
        assert shown[f"{NAME}.{name}"] == described[f"{NAME}.{name}"]
    children = ElementTree.fromstring(bus.call(ROOT, "org.freedesktop.DBus.Introspectable", "Introspect")[0]).findall("node")
    assert {child.get("name") for child in children} >= {"apps", "outputs"}


def test_everyPropertyIsReadAndManaged(bus):
    objects = bus.call(ROOT, "org.freedesktop.DBus.ObjectManager", "GetManagedObjects")[0]
    assert set(objects) == {PLAYER, SPEAKERS, ROOT + "/outputs/headphones"}
    for interface in ElementTree.parse(FILE).getroot():
        name = interface.get("name")
        path = {"Mixer1": ROOT, "App1": PLAYER, "Output1": SPEAKERS}[name.split(".")[-1]]
        whole = bus.connection.call_sync(NAME, path, PROPERTIES, "GetAll", GLib.Variant("(s)", (name,)), None,
                                         Gio.DBusCallFlags.NONE, 5000, None)
        values = {entry.get_child_value(0).unpack(): entry.get_child_value(1).get_variant()
                  for entry in (whole.get_child_value(0).get_child_value(i)
                                for i in range(whole.get_child_value(0).n_children()))}
        declared = {each.get("name"): each.get("type") for each in interface.findall("property")}
        assert {key: value.get_type_string() for key, value in values.items()} == declared
        for key, value in values.items():
            assert bus.call(path, PROPERTIES, "Get", GLib.Variant("(ss)", (name, key)))[0] == value.unpack()
    assert objects[PLAYER][f"{NAME}.App1"]["Id"] == "pw-cat"
    assert objects[PLAYER][f"{NAME}.App1"]["Output"] == SPEAKERS


WRITES = [
    (ROOT, "Mixer1", "DefaultOutput", "o", ROOT + "/outputs/headphones", SPEAKERS),
    (ROOT, "Mixer1", "VolumeLimit", "d", 1.5, 1.0), (ROOT, "Mixer1", "AutoHeadroom", "b", True, False),
    (ROOT, "Mixer1", "DuckingEnabled", "b", True, False), (ROOT, "Mixer1", "DuckLevel", "d", 0.4, 0.2),
    (PLAYER, "App1", "Volume", "d", 0.5, 1.0), (PLAYER, "App1", "Muted", "b", True, False),
    (PLAYER, "App1", "OutputUid", "s", "headphones", ""), (PLAYER, "App1", "EqualizerEnabled", "b", True, False),
    (PLAYER, "App1", "EqualizerGains", "ad", [3.0] + [0.0] * 9, [0.0] * 10), (PLAYER, "App1", "EqualizerPreamp", "d", 2.5, 0.0),
    (PLAYER, "App1", "Preset", "s", "Rock", "Flat"),
]


def test_allThatIsWritableIsTried():
    declared = {(interface.get("name").split(".")[-1], each.get("name")) for interface in ElementTree.parse(FILE).getroot()
                for each in interface.findall("property") if each.get("access") == "readwrite"}
    assert declared == {(interface, name) for _, interface, name, *_ in WRITES}


@pytest.mark.parametrize("path, interface, name, signature, value, former", WRITES)
def test_whatIsWrittenIsAnnouncedOnce(bus, path, interface, name, signature, value, former):
    bus.set(path, interface, name, signature, value)
    bus.waitFor(lambda: bus.changes(path, name), name)
    assert bus.get(path, interface, name) == value
    bus.set(path, interface, name, signature, former)
    bus.waitFor(lambda: len(bus.changes(path, name)) >= 2, name)
    assert bus.changes(path, name) == [value, former]
    assert bus.get(path, interface, name) == former


def test_manyChangesAreFewSignals(bus):
    for step in range(200):
        bus.connection.call(NAME, PLAYER, f"{NAME}.App1", "ChangeVolume", GLib.Variant("(d)", (-0.001,)), None,
                            Gio.DBusCallFlags.NONE, 5000, None, None)
    bus.waitFor(lambda: bus.changes(PLAYER, "Volume")[-1:] == [0.8], "the last volume")
    assert len(bus.changes(PLAYER, "Volume")) < 50
    bus.set(PLAYER, "App1", "Volume", "d", 1.0)


def test_mistakesHaveNamesAndChangeNothing(bus):
    app1, mixer1, error = f"{NAME}.App1", f"{NAME}.Mixer1", "org.freedesktop.DBus.Error."

    def setting(path, interface, name, value):
        return bus.error(path, PROPERTIES, "Set", GLib.Variant("(ssv)", (interface, name, value)))
    assert setting(PLAYER, app1, "Volume", GLib.Variant("s", "loud")) == error + "InvalidArgs"
    assert setting(PLAYER, app1, "Volume", GLib.Variant("d", float("nan"))) == error + "InvalidArgs"
    assert setting(PLAYER, app1, "EqualizerGains", GLib.Variant("ad", [1.0])) == error + "InvalidArgs"
    assert setting(PLAYER, app1, "EqualizerGains", GLib.Variant("ad", [13.0] * 10)) == error + "InvalidArgs"
    assert setting(PLAYER, app1, "EqualizerPreamp", GLib.Variant("d", 13.0)) == error + "InvalidArgs"
    assert setting(PLAYER, app1, "Preset", GLib.Variant("s", "Nothing")) == error + "InvalidArgs"
    assert setting(PLAYER, app1, "Id", GLib.Variant("s", "x")) == error + "PropertyReadOnly"
    assert setting(PLAYER, app1, "Loudness", GLib.Variant("d", 1.0)) == error + "UnknownProperty"
    assert setting(PLAYER, mixer1, "VolumeLimit", GLib.Variant("d", 1.0)) == error + "UnknownInterface"
    assert setting(ROOT, mixer1, "VolumeLimit", GLib.Variant("d", 3.0)) == error + "InvalidArgs"
    assert setting(ROOT, mixer1, "DuckLevel", GLib.Variant("d", -1.0)) == error + "InvalidArgs"
    assert setting(ROOT, mixer1, "DefaultOutput", GLib.Variant("o", "/")) == error + "InvalidArgs"
    assert bus.error(ROOT + "/apps/none", PROPERTIES, "GetAll", GLib.Variant("(s)", (app1,))) == error + "UnknownObject"
    assert bus.error(PLAYER, app1, "Louder") == error + "UnknownMethod"
    assert bus.error(PLAYER, app1, "ChangeVolume", GLib.Variant("(s)", ("x",))) == error + "InvalidArgs"
    assert bus.get(PLAYER, "App1", "Volume") == 1
    bus.set(PLAYER, "App1", "Volume", "d", 7.0)
    assert bus.get(PLAYER, "App1", "Volume") == 1, "what is too loud becomes the limit"


def test_commandsAreRun(bus, playing):
    def run(*words):
        return GLib.Variant("(as)", (words,))
    mixer1 = f"{NAME}.Mixer1"
    assert bus.call(ROOT, mixer1, "Run", run("volume", "pw-cat", "-50%")) == ("volume pw-cat 0.5",)
    waitForSound(playing, "speakers", 0.25)
    assert bus.call(ROOT, mixer1, "Run", run("volume", "pw-cat", "1")) == ("volume pw-cat 1",)
    errors = {("louder",): "Usage", ("volume", "nobody"): "UnknownName", ("limit", "3"): "Refused",
              ("recordings", "/tmp"): "Denied", ("export",): "Denied", ("restore", "{}"): "Denied"}
    for words, name in errors.items():
        assert bus.error(ROOT, mixer1, "Run", run(*words)) == f"{NAME}.Error.{name}"
    assert bus.call(ROOT, mixer1, "FindApp", GLib.Variant("(s)", ("PW-CAT",))) == (PLAYER,)
    assert bus.error(ROOT, mixer1, "FindApp", GLib.Variant("(s)", ("nobody",))) == f"{NAME}.Error.UnknownName"
    assert bus.call(PLAYER, f"{NAME}.App1", "ToggleMuted") == (True,)
    assert bus.call(PLAYER, f"{NAME}.App1", "ToggleMuted") == (False,)
    assert bus.call(PLAYER, f"{NAME}.App1", "StartRecording") == ()
    bus.waitFor(lambda: bus.changes(PLAYER, "Recording") == [True], "the recording")
    assert bus.call(PLAYER, f"{NAME}.App1", "StopRecording") == ()


def test_levelsGoToSubscribersAlone(bus, playing):
    listener = Bus(playing.session)
    bus.call(ROOT, f"{NAME}.Mixer1", "SubscribeLevels")
    bus.waitFor(lambda: any(name == "Levels" and arguments[0].get(PLAYER, 0) > 0.8
                            for _, _, name, arguments in bus.signals), "its level")
    listener.turn()
    assert "Levels" not in [name for _, _, name, _ in listener.signals]
    bus.connection.close_sync(None)  # Disconnecting unsubscribes.
    waitUntil(lambda: "level" not in ctl(playing, "list", "apps")[1], "no measuring")


def test_whatComesAndGoesIsAnnounced(playing, bus):
    file = sineFile(playing)
    process, _ = playing.play("paplay", file)
    path = ROOT + "/apps/pacat"
    bus.waitFor(lambda: any(name == "InterfacesAdded" and arguments[0] == path
                            and arguments[1][f"{NAME}.App1"]["Id"] == "pacat"
                            for _, _, name, arguments in bus.signals), "the app")
    playing.session.end(process)
    bus.waitFor(lambda: (ROOT, "ObjectManager", "InterfacesRemoved", (path, [f"{NAME}.App1"])) in bus.signals, "its end")


def test_theUsualToolsReachIt(playing):
    def tool(*words):
        return subprocess.run(words, env=playing.session.environment, capture_output=True, text=True, timeout=20)
    call = ["gdbus", "call", "--session", "--dest", NAME, "--object-path", ROOT, "--method"]
    assert tool(*call, f"{NAME}.Mixer1.Run", "['volume', 'pw-cat']").stdout == "('volume pw-cat 1',)\n"
    busctl = ["busctl", "--user", f"--address={playing.session.environment['DBUS_SESSION_BUS_ADDRESS']}"]
    assert tool(*busctl, "set-property", NAME, PLAYER, f"{NAME}.App1", "Volume", "d", "0.5").returncode == 0
    assert tool(*busctl, "get-property", NAME, PLAYER, f"{NAME}.App1", "Volume").stdout == "d 0.5\n"
    assert tool(*busctl, "set-property", NAME, PLAYER, f"{NAME}.App1", "Volume", "d", "1").returncode == 0
    tree = tool(*busctl, "tree", NAME).stdout
    assert PLAYER in tree and SPEAKERS in tree
    assert "EqualizerGains" in tool(*busctl, "introspect", NAME, PLAYER).stdout


def test_aSandboxedCallerMayNotDoEverything(playing):
    run = ["gdbus", "call", "--session", "--dest", NAME, "--object-path", ROOT, "--method", f"{NAME}.Mixer1.Run"]

    def inSandbox(*words):
        return subprocess.run([*sandboxOf(playing), *words], env=playing.session.environment, capture_output=True, text=True,
                              timeout=20)
    assert inSandbox(*run, "['volume', 'pw-cat', '0.5']").stdout == "('volume pw-cat 0.5',)\n"
    for words in ("['quit']", "['record', 'pw-cat', 'start']"):
        assert "com.fadeloom.app.Error.Denied" in inSandbox(*run, words).stderr
    limit = inSandbox("gdbus", "call", "--session", "--dest", NAME, "--object-path", ROOT, "--method", f"{PROPERTIES}.Set",
                      f"{NAME}.Mixer1", "VolumeLimit", "<2.0>")
    assert "com.fadeloom.app.Error.Denied" in limit.stderr
    assert ctl(playing, "volume", "pw-cat", "1")[0] == 0


def test_aDesktopFindsAnApplication(playing):
    """Headless there is no panel, which must be reported rather than ignored."""
    call = ["gdbus", "call", "--session", "--dest", NAME, "--object-path", "/com/fadeloom/app", "--method"]

    def error(*words):
        return subprocess.run([*call, *words], env=playing.session.environment, capture_output=True, text=True,
                              timeout=20).stderr
    assert f"{NAME}.Error.NoPanel" in error("org.freedesktop.Application.Activate", "{}")
    assert f"{NAME}.Error.NoPanel" in error("org.freedesktop.Application.Open", "[]", "{}")
    assert f"{NAME}.Error.NoPanel" in error("org.freedesktop.Application.ActivateAction", "toggle", "[]", "{}")
    assert "Error.Unknown" in error("org.freedesktop.Application.ActivateAction", "fly", "[]", "{}")
    assert error(f"{NAME}.Ping") == ""


def test_aCallOverTheBusStartsIt(stage):
    """With the installed file, for our program instead of the installed one."""
    source = FILE.parent / "com.fadeloom.app.service.in"
    services = stage.session.folder / "data" / "dbus-1" / "services"
    services.mkdir(parents=True)
    program = f"/usr/bin/env QT_QPA_PLATFORM=offscreen {os.environ['FADELOOM']}"
    (services / "com.fadeloom.app.service").write_text(
        source.read_text().replace("@programFolder@/fadeloom", program))
    bus = Bus(stage.session)
    bus.connection.call_sync("org.freedesktop.DBus", "/", "org.freedesktop.DBus", "ReloadConfig", None, None,
                             Gio.DBusCallFlags.NONE, 5000, None)

    assert bus.get(ROOT, "Mixer1", "Permission") == "granted"
    assert set(bus.call(ROOT, "org.freedesktop.DBus.ObjectManager", "GetManagedObjects")[0]) == {
        SPEAKERS, ROOT + "/outputs/headphones"}
    assert bus.call("/com/fadeloom/app", "org.freedesktop.Application", "Activate", GLib.Variant("(a{sv})", ({},))) == ()

    assert bus.call(ROOT, f"{NAME}.Mixer1", "Run", GLib.Variant("(as)", (["quit"],))) == ("quit",)
    waitUntil(lambda: ctl(stage, "status")[0] == 4, "its end")
