# SPDX-License-Identifier: MIT
"""A session for calls: a microphone, music, and a silent call app."""

import numpy

import signals


class CallScene:
    def __init__(self, stage):
        self.stage = stage
        self.session = stage.session
        self.silence = stage.folder / "silence.wav"
        self.music = stage.folder / "music.wav"
        signals.write(self.silence, numpy.zeros((60 * signals.RATE, 2)))
        signals.write(self.music, signals.sine(1000, 0.5, 60))
        self.session.plug("microphone", mediaClass="Audio/Source/Virtual")
