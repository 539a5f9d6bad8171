# SPDX-License-Identifier: MIT
"""The icon's menu, as exported on D-Bus for the desktop's panel."""

import time

import dbus


class BusMenu:
    """The menu of the tray's current icon; raises StopIteration if there is none."""

    def __init__(self, session):
        bus = dbus.bus.BusConnection(session.environment["DBUS_SESSION_BUS_ADDRESS"])
        watcher = bus.get_object("org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher")
        items = watcher.Get("org.kde.StatusNotifierWatcher", "RegisteredStatusNotifierItems",
                            dbus_interface="org.freedesktop.DBus.Properties")
        name, _, path = next(item for item in items if "StatusNotifierItem" in item).partition("/")
        self.item = bus.get_object(name, "/" + path)
        menu = self.property("Menu")
        self.menu = dbus.Interface(bus.get_object(name, menu), "com.canonical.dbusmenu")

    def property(self, name):
        return self.item.Get("org.kde.StatusNotifierItem", name, dbus_interface="org.freedesktop.DBus.Properties")

    def entries(self):
        """Its current contents: label -> (id, is checked)."""
        self.menu.AboutToShow(0)
        time.sleep(0.2)
        _, (_, _, children) = self.menu.GetLayout(0, -1, [])
        return {str(properties["label"]).replace("_", ""): (int(number), bool(properties.get("toggle-state", 0)))
                for number, properties, _ in children if "label" in properties}

    def choose(self, label):
        self.menu.Event(self.entries()[label][0], "clicked", "", 0)


def findMenu(session):
    """The menu of our icon, or None while the tray has no such icon."""
    try:
        menu = BusMenu(session)
        return menu if menu.property("Status") == "Active" else None
    except (dbus.DBusException, StopIteration):  # No tray yet, or no icon in it.
        return None
