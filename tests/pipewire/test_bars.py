# SPDX-License-Identifier: MIT
"""The snippets of docs/control.md in their bars."""

import itertools
import os
import pathlib
import subprocess
import textwrap
import time

from audioSession import waitUntil
from fadeloomProcess import app, settings
from listening import sineFile
from test_control import CTL, ctl
from test_focus import startSway

ROOT = pathlib.Path(__file__).resolve().parents[2]


def snippet(name):
    """The first code block after a heading of docs/control.md."""
    text = (ROOT / "docs" / "control.md").read_text().split(f"### {name}\n", 1)[1]
    lines = itertools.dropwhile(lambda line: not line.startswith("    "), text.splitlines())
    return textwrap.dedent("\n".join(itertools.takewhile(lambda line: not line or line.startswith("    "), lines)))


def picture(stage):
    return subprocess.run(["grim", "-"], env=stage.session.environment, capture_output=True, timeout=20).stdout


def test_waybarShowsWhatPlays(stage):
    """The snippet of docs/control.md, displayed by waybar on sway: the text follows the volume, in both directions."""
    startSway(stage)
    environment = {"PATH": f"{CTL.parent}:{os.environ['PATH']}", "GDK_BACKEND": "wayland", "LC_ALL": "C.UTF-8"}
    configuration = stage.folder / "waybar.json"
    configuration.write_text('{"layer": "top", "modules-left": ["custom/fadeloom"], ' + snippet("waybar") + "}")
    style = stage.folder / "style.css"
    style.write_text("* { font-size: 40px; }")
    with stage.fadeloom(settings({"pw-cat": app()})) as fadeloom:
        stage.play("pw-play", sineFile(stage))
        stage.waitForTap(fadeloom, "pw-cat")
        empty = picture(stage)
        stage.session.spawn("waybar", ["waybar", "-c", str(configuration), "-s", str(style)], environment=environment)
        waitUntil(lambda: picture(stage) != empty, "the bar", 20)

        def settled():
            def atRest():
                before = picture(stage)
                time.sleep(0.3)
                return before if before == picture(stage) else None
            return waitUntil(atRest, "a picture at rest")
        full = settled()
        ctl(stage, "volume", "pw-cat", "0.5")
        waitUntil(lambda: picture(stage) != full, "another picture")
        half = settled()
        ctl(stage, "volume", "pw-cat", "1")
        waitUntil(lambda: picture(stage) == full, "the former picture")
        assert half != full
    # The program has exited, and the bar no longer shows it.
    waitUntil(lambda: picture(stage) not in (full, half), "an empty bar")


def test_i3blocksShowsWhatPlays(stage):
    configuration = stage.folder / "i3blocks.conf"
    configuration.write_text(snippet("i3blocks") + "\n")
    shown = stage.folder / "shown"
    with stage.fadeloom(settings({"pw-cat": app(volume=0.5)})) as fadeloom, open(shown, "wb") as output:
        stage.play("pw-play", sineFile(stage))
        stage.waitForTap(fadeloom, "pw-cat")
        stage.session.spawn("i3blocks", ["i3blocks", "-c", str(configuration)], stdout=output, stderr=subprocess.STDOUT,
                            environment={"PATH": f"{CTL.parent}:{os.environ['PATH']}"})
        waitUntil(lambda: '"full_text":"pw-cat 50%"' in shown.read_text(), "the volume")
        ctl(stage, "mute", "pw-cat", "on")
        waitUntil(lambda: '"full_text":"pw-cat muted"' in shown.read_text(), "the change")
