# SPDX-License-Identifier: MIT
"""A program that runs for months must be idle when it is not needed. tools/panelCosts.py measures more."""

import time

from fadeloomProcess import programOf
from processUse import cpuSeconds, wakeups


def stirrings(desk, seconds=11):
    """Wakeups per second of all threads, over two of the polls that happen every five seconds."""
    pid = programOf(desk.session.processes["fadeloom"].pid)
    before, used = wakeups(pid), cpuSeconds(f"/proc/{pid}/stat")
    time.sleep(seconds)
    count = sum(number - before.get(name, 0) for name, number in wakeups(pid).items())
    return count / seconds, (cpuSeconds(f"/proc/{pid}/stat") - used) / seconds


def test_whileNothingPlaysItWakesOnlyToLook(desk):
    desk.start()
    time.sleep(3)
    atFirst, share = stirrings(desk)

    desk.open()
    desk.session.press("Escape")
    desk.waitUntilClosed()
    time.sleep(3)
    afterwards, _ = stirrings(desk)

    assert atFirst < 2
    assert afterwards < 2, "a panel that was open once costs nothing either"
    assert share < 0.01
