# SPDX-License-Identifier: MIT
"""A JACK client that plays its input at half the level, until it is ended."""

import ctypes
import signal

jack = ctypes.CDLL("libjack.so.0")
jack.jack_client_open.restype = ctypes.c_void_p
jack.jack_port_register.restype = ctypes.c_void_p
jack.jack_port_register.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_char_p, ctypes.c_ulong, ctypes.c_ulong]
jack.jack_port_get_buffer.restype = ctypes.c_void_p
jack.jack_port_get_buffer.argtypes = [ctypes.c_void_p, ctypes.c_uint32]
Process = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_uint32, ctypes.c_void_p)
jack.jack_set_process_callback.argtypes = [ctypes.c_void_p, Process, ctypes.c_void_p]
jack.jack_activate.argtypes = [ctypes.c_void_p]

IS_INPUT, IS_OUTPUT = 1, 2
client = jack.jack_client_open(b"jackEffect", 0, None)
assert client, "no JACK server"


def port(name, flags):
    return jack.jack_port_register(client, name, b"32 bit float mono audio", flags, 0)


pairs = [(port(b"in_" + side, IS_INPUT), port(b"out_" + side, IS_OUTPUT)) for side in (b"FL", b"FR")]


@Process
def process(frames, _):
    for source, target in pairs:
        samples, played = (ctypes.cast(jack.jack_port_get_buffer(each, frames), ctypes.POINTER(ctypes.c_float))
                           for each in (source, target))
        for i in range(frames):
            played[i] = samples[i] * 0.5
    return 0


jack.jack_set_process_callback(client, process, None)
assert jack.jack_activate(client) == 0
signal.pause()
