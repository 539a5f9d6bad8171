#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks the contents of the macOS bundle: declarations, texts in each language, icons.

A Mac reports mistakes in them late or never: without its usage description a program does not get the permission prompt,
and captures silence.
"""

import pathlib
import plistlib
import re
import struct
import sys

FOLDER = pathlib.Path(__file__).resolve().parent.parent / "packaging" / "macos"
LANGUAGES = {"en", "pl"}
PIXELS = {"icp4": 16, "ic11": 32, "icp5": 32, "ic12": 64, "ic07": 128, "ic13": 256, "ic08": 256, "ic14": 512,
          "ic09": 512, "ic10": 1024}
# As substituted by CMake.
FILLED = {"MACOSX_BUNDLE_EXECUTABLE_NAME": "Fadeloom", "MACOSX_BUNDLE_SHORT_VERSION_STRING": "1.2.3",
          "MACOSX_BUNDLE_BUNDLE_VERSION": "7", "CMAKE_OSX_DEPLOYMENT_TARGET": "14.2"}
WANTED = {"CFBundleIdentifier": "com.fadeloom.app", "CFBundleExecutable": "Fadeloom", "CFBundlePackageType": "APPL",
          "CFBundleShortVersionString": "1.2.3", "CFBundleVersion": "7", "CFBundleIconFile": "AppIcon",
          "CFBundleDevelopmentRegion": "en", "LSMinimumSystemVersion": "14.2", "LSUIElement": True}
# Without them the system refuses without asking, or terminates the program.
USAGES = {"NSAudioCaptureUsageDescription", "NSMicrophoneUsageDescription"}


def information():
    text = (FOLDER / "Info.plist.in").read_text(encoding="utf-8")
    return plistlib.loads(re.sub(r"\$\{(\w+)\}", lambda found: FILLED[found[1]], text).encode())


def table(language):
    text = (FOLDER / f"{language}.lproj" / "InfoPlist.strings").read_text(encoding="utf-8")
    return dict(re.findall(r'^"([^"]+)" = "([^"]+)";$', text, re.MULTILINE))


def pngSize(content):
    return struct.unpack(">II", content[16:24]) if content[:8] == b"\x89PNG\r\n\x1a\n" else None


def iconComplaints():
    content = (FOLDER / "AppIcon.icns").read_bytes()
    if content[:4] != b"icns" or struct.unpack(">I", content[4:8])[0] != len(content):
        yield "AppIcon.icns has a wrong head"
    found, place = {}, 8
    while place < len(content):
        length = struct.unpack(">I", content[place + 4:place + 8])[0]
        found[content[place:place + 4].decode()] = pngSize(content[place + 8:place + length])
        place += length
    if found != {kind: (pixels, pixels) for kind, pixels in PIXELS.items()}:
        yield f"AppIcon.icns holds {found}"
    for name, pixels in {"MenuBarIcon.png": 16, "MenuBarIcon@2x.png": 32}.items():
        if pngSize((FOLDER / name).read_bytes()) != (pixels, pixels):
            yield f"{name} is not {pixels} pixels wide and high"


def complaints():
    declared = information()
    for key, value in WANTED.items():
        if declared.get(key) != value:
            yield f"Info.plist: {key} is {declared.get(key)}, not {value}"
    if set(declared["CFBundleLocalizations"]) != LANGUAGES:
        yield "Info.plist: the languages are others than those of the tables"
    for usage in sorted(USAGES):
        if declared.get(usage) != table("en").get(usage):
            yield f"the English {usage} is not that of Info.plist"
        if table("en").get(usage) == table("pl").get(usage):
            yield f"the Polish {usage} is English"
    for language in LANGUAGES:
        if set(table(language)) != USAGES:
            yield f"{language}.lproj has the texts {set(table(language))}"
    plistlib.loads((FOLDER / "Fadeloom.entitlements").read_bytes())
    yield from iconComplaints()


def main():
    found = list(complaints())
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
