# SPDX-License-Identifier: MIT
"""A virtual pointer for wlroots compositors, implemented on the wire protocol: it needs no library and no compiler."""

import socket
import struct
import time

LEFT, RIGHT, MIDDLE = 0x110, 0x111, 0x112
MANAGER = "zwlr_virtual_pointer_manager_v1"

DISPLAY = 1  # The only object that exists from the start.


class WaylandPointer:
    """`extent`: width and height of the whole desktop, which positions refer to."""

    def __init__(self, path, extent):
        self.extent = extent
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.settimeout(10)
        self.socket.connect(str(path))
        self.buffer = b""
        self.objects = DISPLAY
        self.globals = {}
        self.registry = self._newObject()
        self._send(DISPLAY, 1, "u", self.registry)  # get_registry
        self._roundtrip()
        manager = self._newObject()
        self._send(self.registry, 0, "usuu", self.globals[MANAGER], MANAGER, 1, manager)  # bind
        self.pointer = self._newObject()
        self._send(manager, 0, "uu", 0, self.pointer)  # create_virtual_pointer for any seat
        self._roundtrip()

    def close(self):
        self.socket.close()

    def move(self, x, y):
        self._send(self.pointer, 1, "uuuuu", self._now(), round(x), round(y), *map(round, self.extent))  # motion_absolute
        self._finish()

    def press(self, button=LEFT):
        self._button(button, 1)

    def release(self, button=LEFT):
        self._button(button, 0)

    def click(self, x, y, button=LEFT):
        self.move(x - 1, y)
        self.move(x, y)
        self.press(button)
        time.sleep(0.03)
        self.release(button)

    def scroll(self, amount):
        """With the wheel, down for positive amounts."""
        self._send(self.pointer, 5, "u", 0)  # axis_source: a wheel
        self._send(self.pointer, 3, "uui", self._now(), 0, round(amount * 256))  # axis
        self._finish()

    def _button(self, button, state):
        self._send(self.pointer, 2, "uuu", self._now(), button, state)
        self._finish()

    def _finish(self):
        self._send(self.pointer, 4, "")  # frame
        self._roundtrip()

    @staticmethod
    def _now():
        return int(time.monotonic() * 1000) & 0xFFFFFFFF

    def _newObject(self):
        self.objects += 1
        return self.objects

    # The wire format: object, opcode and length, then the arguments in 32-bit words.

    def _send(self, target, opcode, types, *arguments):
        body = b"".join(self._packed(kind, value) for kind, value in zip(types, arguments))
        self.socket.sendall(struct.pack("=IHH", target, opcode, 8 + len(body)) + body)

    @staticmethod
    def _packed(kind, value):
        if kind != "s":
            return struct.pack("=i" if kind == "i" else "=I", value)
        text = value.encode() + b"\0"
        return struct.pack("=I", len(text)) + text + b"\0" * (-len(text) % 4)

    def _roundtrip(self):
        """Waits until the compositor has processed everything so far."""
        callback = self._newObject()
        self._send(DISPLAY, 0, "u", callback)  # sync
        while True:
            source, opcode, body = self._receive()
            if source == DISPLAY and opcode == 0:
                raise ConnectionError(f"the compositor refuses: {body!r}")
            if source == self.registry and opcode == 0:
                number, length = struct.unpack_from("=II", body)
                self.globals[body[8:8 + length - 1].decode()] = number
            if source == callback:
                return

    def _receive(self):
        header = self._read(8)
        source, opcode, length = struct.unpack("=IHH", header)
        return source, opcode, self._read(length - 8)

    def _read(self, count):
        while len(self.buffer) < count:
            piece = self.socket.recv(4096)
            if not piece:
                raise ConnectionError("the compositor has gone")
            self.buffer += piece
        result, self.buffer = self.buffer[:count], self.buffer[count:]
        return result
