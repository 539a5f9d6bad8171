# SPDX-License-Identifier: MIT
"""A user of the private desktop: sees the display, uses mouse and keyboard, or a screen reader."""

import contextlib

import gi
import numpy

from audioSession import waitUntil

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

# What can be pressed, moved or typed in. Qt 6.4 exposes most of them as buttons.
ACTIVE = (Atspi.Role.PUSH_BUTTON, Atspi.Role.CHECK_BOX, Atspi.Role.SLIDER, Atspi.Role.RADIO_BUTTON, Atspi.Role.MENU_ITEM,
          Atspi.Role.COMBO_BOX, Atspi.Role.LINK, Atspi.Role.ENTRY, Atspi.Role.TEXT)
BAR = 30  # Pixels; every tray here is at most this high.


class Control:
    """An accessible object of the screen."""

    def __init__(self, accessible):
        self.accessible = accessible

    @property
    def name(self):
        return self.accessible.get_name()

    @property
    def description(self):
        return self.accessible.get_description()

    @property
    def role(self):
        return self.accessible.get_role()

    @property
    def value(self):
        return self.accessible.get_value_iface().get_current_value()

    @value.setter
    def value(self, value):
        self.accessible.get_value_iface().set_current_value(value)

    @property
    def range(self):
        values = self.accessible.get_value_iface()
        return values.get_minimum_value(), values.get_maximum_value()

    def has(self, state):
        """Whether it has this Atspi.StateType."""
        return self.accessible.get_state_set().contains(state)

    @property
    def isShown(self):
        return self.has(Atspi.StateType.SHOWING)

    @property
    def place(self):
        """x, y, width, height on the screen, in pixels."""
        extents = self.accessible.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        return extents.x, extents.y, extents.width, extents.height

    @property
    def middle(self):
        x, y, width, height = self.place
        return x + width // 2, y + height // 2

    def do(self, action="Press"):
        actions = self.accessible.get_action_iface()
        names = [actions.get_action_name(i) for i in range(actions.get_n_actions())]
        assert actions.do_action(names.index(action))

    def press(self):
        self.do("Press")


class Person:
    """Inspects the panel of the program in `session`."""

    def __init__(self, session):
        self.session = session

    # Observation

    def controls(self, showing=True):
        """Everything in the panel in order, as encountered by a screen reader."""
        found = []
        with contextlib.suppress(GLib.Error):  # The program has exited, or its views have changed meanwhile.
            desktop = Atspi.get_desktop(0)
            desktop.clear_cache()
            for i in range(desktop.get_child_count()):
                program = desktop.get_child_at_index(i)
                if program is not None and program.get_name() == "fadeloom":
                    program.clear_cache()
                    self._collect(program, found)
        return [control for control in found if control.isShown or not showing]

    def _collect(self, accessible, found):
        for i in range(accessible.get_child_count()):
            child = accessible.get_child_at_index(i)
            if child is not None:
                found.append(Control(child))
                self._collect(child, found)

    def find(self, name, role=None, seconds=5.0):
        """The control with this name; waits until it is shown."""
        return waitUntil(lambda: self.look(name, role), f"{name} on the panel", seconds)

    def look(self, name, role=None):
        """The control with this name that is currently shown, or None."""
        return next((control for control in self.controls()
                     if control.name == name and (role is None or control.role == role)), None)

    def reads(self, text):
        """Whether this text is anywhere in the panel."""
        return self.look(text) is not None

    def waitForText(self, text, seconds=5.0):
        waitUntil(lambda: self.reads(text), f"“{text}” on the panel", seconds)

    def focused(self):
        """The focused control, or None; of nested ones, the innermost."""
        focused = [control for control in self.controls() if control.has(Atspi.StateType.FOCUSED)]
        return focused[-1] if focused else None

    def press(self, name):
        """Through accessibility, regardless of scrolling."""
        def named():
            return next((control for control in self.controls(showing=False) if control.name == name), None)
        waitUntil(named, f"{name} on the panel").press()

    # Input

    def click(self, control, button=1):
        self.session.click(*control.middle, button)

    def choose(self, menu, entry):
        """Opens a menu with its button and clicks an entry."""
        self.click(self.find(menu))
        self.click(self.find(entry, Atspi.Role.MENU_ITEM))

    def drag(self, start, end):
        """With the left button, along a path."""
        run = self.session.run
        run("xdotool", "mousemove", str(start[0]), str(start[1]), "mousedown", "1")
        for step in range(1, 6):
            x, y = (round(a + (b - a) * step / 5) for a, b in zip(start, end))
            run("xdotool", "mousemove", str(x), str(y))
        run("xdotool", "mouseup", "1")

    # The icon

    def iconAppears(self, before, seconds=8.0):
        """Waits for a change in the bar along the top of the screen, which was `before`, and until it is fully drawn;
        returns its centre."""
        seen = []

        def search():
            changed = numpy.abs(self.session.pixels() - before).sum(axis=2) > 60
            rows, columns = changed[:BAR].nonzero()
            seen.append((int(columns.min() + columns.max()) // 2, int(rows.min() + rows.max()) // 2)
                        if len(rows) > 20 else None)
            return seen[-1] if len(seen) > 1 and seen[-1] == seen[-2] else None
        return waitUntil(search, "the icon", seconds, 0.2)
