# SPDX-License-Identifier: MIT
"""Handcrafted Mach-O files: headers and load commands without code."""

import struct

PROCESSORS = {"arm64": (0x0100000C, 0), "x86_64": (0x01000007, 3)}
LOAD_DYLIB, RPATH, BUILD_VERSION, VERSION_MIN_MACOS = 0xC, 0x8000001C, 0x32, 0x24


def packed(version):
    major, minor = (int(part) for part in version.split("."))
    return major << 16 | minor << 8


def textCommand(kind, text, before=()):
    start = 12 + 4 * len(before)
    content = struct.pack(f"<I{len(before)}I", start, *before) + text.encode() + b"\0"
    content += b"\0" * (-(8 + len(content)) % 8)
    return struct.pack("<2I", kind, 8 + len(content)) + content


def thin(processor="arm64", minimum="14.2", libraries=(), rpaths=(), platform=1, isOld=False):
    """A file for one architecture."""
    commands = []
    if isOld:
        commands.append(struct.pack("<4I", VERSION_MIN_MACOS, 16, packed(minimum), packed(minimum)))
    elif minimum:
        commands.append(struct.pack("<6I", BUILD_VERSION, 24, platform, packed(minimum), packed("15.0"), 0))
    commands += [textCommand(LOAD_DYLIB, library, (2, 0x10000, 0x10000)) for library in libraries]
    commands += [textCommand(RPATH, path) for path in rpaths]
    body = b"".join(commands)
    kind, model = PROCESSORS[processor]
    return struct.pack("<8I", 0xFEEDFACF, kind, model, 2, len(commands), len(body), 0, 0) + body


def fat(*slices, isLong=False):
    """A universal file; `isLong`: with 64-bit offsets."""
    entry = ">2I2Q2I" if isLong else ">5I"
    start = 8 + len(slices) * struct.calcsize(entry)
    head = struct.pack(">2I", 0xCAFEBABF if isLong else 0xCAFEBABE, len(slices))
    body = b""
    for content in slices:
        kind, model = struct.unpack("<2I", content[4:12])
        numbers = (kind, model, start + len(body), len(content), 0)
        head += struct.pack(entry, *numbers, *((0,) if isLong else ()))
        body += content
    return head + body


def universal(isLong=False, **options):
    return fat(thin("arm64", **options), thin("x86_64", **options), isLong=isLong)
