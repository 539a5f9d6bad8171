# SPDX-License-Identifier: MIT
"""A meeting in a real browser: a page that plays a tone and then opens the microphone."""

import functools
import http.server
import pathlib
import threading

PAGE = """<!doctype html><title>Meeting</title><script>
const context = new AudioContext();
const tone = new OscillatorNode(context, {frequency: 700});
const level = new GainNode(context, {gain: 0.2});
tone.connect(level).connect(context.destination);
tone.start();
setTimeout(async () => window.microphone = await navigator.mediaDevices.getUserMedia({audio: true}), 3000);
</script>"""


class QuietHandler(http.server.SimpleHTTPRequestHandler):
    def log_message(self, *_):
        pass


class Meeting:
    """Use as a context manager: headless Chromium in the session of `stage`. `arguments` come first."""

    def __init__(self, stage, *arguments):
        self.stage = stage
        self.arguments = arguments
        folder = pathlib.Path(stage.folder) / "page"
        folder.mkdir()
        (folder / "index.html").write_text(PAGE, encoding="utf-8")
        handler = functools.partial(QuietHandler, directory=str(folder))
        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler)

    def __enter__(self):
        threading.Thread(target=self.server.serve_forever, daemon=True).start()
        self.stage.session.spawn("browser", [
            "chromium", *self.arguments, "--headless=new", "--no-sandbox", "--no-first-run", "--disable-gpu",
            f"--user-data-dir={self.stage.folder}/profile", "--autoplay-policy=no-user-gesture-required",
            # Accepts the prompt for the microphone, which is a virtual one of the session.
            "--use-fake-ui-for-media-stream", f"http://127.0.0.1:{self.server.server_port}/"])
        return self

    def __exit__(self, *_):
        self.stage.session.end("browser")
        self.server.shutdown()
        self.server.server_close()
