# SPDX-License-Identifier: MIT
"""A connection to a session's message bus, and the mixer's objects on it."""

import gi
import pytest

from audioSession import waitUntil

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

NAME = "com.fadeloom.app"
ROOT = "/com/fadeloom/app/Mixer1"
PLAYER = ROOT + "/apps/pw_2dcat"
SPEAKERS = ROOT + "/outputs/speakers"
PROPERTIES = "org.freedesktop.DBus.Properties"


class Bus:
    """A private connection, and all signals received on it."""

    def __init__(self, session):
        self.connection = Gio.DBusConnection.new_for_address_sync(
            session.environment["DBUS_SESSION_BUS_ADDRESS"],
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)
        self.signals = []
        self.connection.signal_subscribe(NAME, None, None, None, None, Gio.DBusSignalFlags.NONE, self._keep)

    def _keep(self, _connection, _sender, path, interface, name, arguments):
        self.signals.append((path, interface.split(".")[-1], name, arguments.unpack()))

    def turn(self):
        while GLib.MainContext.default().iteration(False):
            pass

    def call(self, path, interface, method, arguments=None):
        reply = self.connection.call_sync(NAME, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE, 5000, None)
        return reply.unpack()

    def set(self, path, interface, name, signature, value):
        self.call(path, PROPERTIES, "Set", GLib.Variant("(ssv)", (f"{NAME}.{interface}", name, GLib.Variant(signature, value))))

    def get(self, path, interface, name):
        return self.call(path, PROPERTIES, "Get", GLib.Variant("(ss)", (f"{NAME}.{interface}", name)))[0]

    def error(self, *arguments):
        with pytest.raises(GLib.Error) as raised:
            self.call(*arguments)
        return Gio.dbus_error_get_remote_error(raised.value)

    def changes(self, path, name):
        """The announced values of a property."""
        self.turn()
        return [changed[name] for where, _, signal, values in self.signals
                if where == path and signal == "PropertiesChanged" for changed in [values[1]] if name in changed]

    def waitFor(self, condition, what):
        def turned():
            self.turn()
            return condition()
        return waitUntil(turned, what)
