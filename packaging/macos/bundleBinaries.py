#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Reads the Mach-O files of a bundle, and reports what would keep them from running on another Mac.

    bundleBinaries.py check BUNDLE [--architectures arm64,x86_64] [--minimum 14.2]
    bundleBinaries.py rpaths FILE          the run paths of a file that lead outside the bundle
"""

import argparse
import pathlib
import struct
import sys

MAGIC_64, CIGAM_64 = b"\xcf\xfa\xed\xfe", b"\xfe\xed\xfa\xcf"
FAT, FAT_64 = 0xCAFEBABE, 0xCAFEBABF
PROCESSORS = {0x0100000C: "arm64", 0x01000007: "x86_64"}
JAVA_CLASS_FROM = 0x2D  # Java classes have the magic number of fat files; their version is where the count would be.

LOAD_DYLIB, ID_DYLIB, LOAD_WEAK_DYLIB, RPATH, REEXPORT_DYLIB = 0xC, 0xD, 0x80000018, 0x8000001C, 0x8000001F
VERSION_MIN_MACOS, BUILD_VERSION = 0x24, 0x32
MACOS = 1
SYSTEM = ("/usr/lib/", "/System/Library/")
INSIDE = ("@rpath/", "@executable_path/", "@loader_path/")


class NotMachO(Exception):
    """Not a Mach-O file, or truncated."""


class Slice:
    """The slice for one architecture."""

    def __init__(self, content):
        self.libraries, self.rpaths, self.minimum, self.isForMacOS = [], [], None, True
        if len(content) < 32 or content[:4] not in (MAGIC_64, CIGAM_64):
            raise NotMachO
        order = "<" if content[:4] == MAGIC_64 else ">"
        processor, _, _, count, size = struct.unpack(order + "5I", content[4:24])
        self.processor = PROCESSORS.get(processor, hex(processor))
        if 32 + size > len(content):
            raise NotMachO
        place = 32
        for _ in range(count):
            if place + 8 > 32 + size:
                raise NotMachO
            kind, length = struct.unpack(order + "2I", content[place:place + 8])
            if length < 8 or place + length > 32 + size:
                raise NotMachO
            self.take(order, kind, content[place:place + length])
            place += length

    def take(self, order, kind, command):
        def number(at):
            if at + 4 > len(command):
                raise NotMachO
            return struct.unpack(order + "I", command[at:at + 4])[0]

        def text():
            return command[number(8):].split(b"\0")[0].decode("utf-8", "replace")

        if kind in (LOAD_DYLIB, LOAD_WEAK_DYLIB, REEXPORT_DYLIB):
            self.libraries.append(text())
        elif kind == RPATH:
            self.rpaths.append(text())
        elif kind == BUILD_VERSION:
            self.isForMacOS = number(8) == MACOS
            self.minimum = version(number(12))
        elif kind == VERSION_MIN_MACOS:
            self.minimum = version(number(8))


def version(packed):
    return (packed >> 16, packed >> 8 & 0xFF, packed & 0xFF)


def isMachO(content):
    if content[:4] in (MAGIC_64, CIGAM_64):
        return True
    if len(content) < 8 or struct.unpack(">I", content[:4])[0] not in (FAT, FAT_64):
        return False
    return struct.unpack(">I", content[4:8])[0] < JAVA_CLASS_FROM


def slicesOf(content):
    magic = struct.unpack(">I", content[:4])[0]
    if magic not in (FAT, FAT_64):
        return [Slice(content)]
    entry = ">IIIII" if magic == FAT else ">IIQQII"
    slices = []
    for i in range(struct.unpack(">I", content[4:8])[0]):
        start = 8 + i * struct.calcsize(entry)
        if start + struct.calcsize(entry) > len(content):
            raise NotMachO
        offset, size = struct.unpack_from(entry, content, start)[2:4]
        slices.append(Slice(content[offset:offset + size]))
    return slices


def outside(paths):
    return [path for path in paths if not path.startswith(INSIDE) and not path.startswith(SYSTEM)]


def complaintsAbout(name, slices, architectures, minimum):
    found = {part.processor for part in slices}
    for missing in sorted(set(architectures) - found):
        yield f"{name}: nothing for {missing}"
    for part in slices:
        where = f"{name} ({part.processor})"
        if not part.isForMacOS:
            yield f"{where}: made for another system than macOS"
        if part.minimum is None:
            yield f"{where}: does not say from which macOS on it runs"
        elif part.minimum > minimum:
            yield f"{where}: runs from macOS {'.'.join(map(str, part.minimum))} on only"
        for library in outside(part.libraries):
            yield f"{where}: needs {library}, which is not in the bundle"
        for path in outside(part.rpaths):
            yield f"{where}: looks for libraries in {path}"


def filesOf(bundle):
    return sorted(file for file in bundle.rglob("*") if file.is_file() and not file.is_symlink())


def check(bundle, architectures, minimum):
    """The problems of each Mach-O file of the bundle; a bundle without any is a problem too."""
    complaints, count = [], 0
    for file in filesOf(bundle):
        content = file.read_bytes()
        if not isMachO(content):
            continue
        count += 1
        name = file.relative_to(bundle).as_posix()
        try:
            complaints += complaintsAbout(name, slicesOf(content), architectures, minimum)
        except NotMachO:
            complaints.append(f"{name}: ends too early")
    if count == 0:
        complaints.append(f"{bundle}: holds no program")
    return complaints, count


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("what", choices=("check", "rpaths"))
    parser.add_argument("path", type=pathlib.Path)
    parser.add_argument("--architectures", default="arm64,x86_64")
    parser.add_argument("--minimum", default="14.2")
    arguments = parser.parse_args()
    if arguments.what == "rpaths":
        slices = slicesOf(arguments.path.read_bytes())
        print("\n".join(sorted({path for part in slices for path in outside(part.rpaths)})))
        return 0
    numbers = [int(number) for number in arguments.minimum.split(".")]
    minimum = tuple((numbers + [0, 0])[:3])
    complaints, count = check(arguments.path, arguments.architectures.split(","), minimum)
    print("\n".join(complaints) if complaints else f"{count} Mach-O files, for {arguments.architectures}")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
