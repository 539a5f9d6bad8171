#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Makes resources/fonts from Inter: needs the Debian packages fonts-inter and python3-fonttools.

The panel's digits have a fixed width, and Qt before 6.7 cannot ask a font for its tabular figures; so the default
digits are the tabular ones here. Only the scripts of the interface are kept: other names use the system's fonts. The
family has a name of its own, so that it is never mixed up with an installed Inter.
"""

import pathlib

from fontTools import subset
from fontTools.ttLib import TTFont

SOURCE = pathlib.Path("/usr/share/fonts/opentype/inter")
TARGET = pathlib.Path(__file__).resolve().parent.parent / "resources" / "fonts"
FAMILY = "Fadeloom Inter"
STYLES = ("Regular", "Medium", "SemiBold")
CHARACTERS = [*range(0x20, 0x250), *range(0x2010, 0x2028), *range(0x2030, 0x2040), 0x20AC, 0x2116, 0x2122, 0x2190, 0x2192,
              0x2212, 0x2260, 0x25B6]


def tabular(font):
    """The glyphs that stand for others under the feature "tnum"."""
    table = font["GSUB"].table
    found = {}
    for record in table.FeatureList.FeatureRecord:
        if record.FeatureTag == "tnum":
            for index in record.Feature.LookupListIndex:
                for part in table.LookupList.Lookup[index].SubTable:
                    found.update(getattr(part, "mapping", None) or part.ExtSubTable.mapping)
    return found


def make(style):
    font = TTFont(SOURCE / f"Inter-{style}.otf")
    figures = tabular(font)
    for part in font["cmap"].tables:
        for code in range(ord("0"), ord("9") + 1):
            part.cmap[code] = figures.get(part.cmap[code], part.cmap[code])  # Some tables are one and the same.
    for record in font["name"].names:
        if record.nameID in (1, 16):
            record.string = FAMILY
        elif record.nameID in (2, 17):
            record.string = style
        elif record.nameID == 4:
            record.string = f"{FAMILY} {style}"
        elif record.nameID in (3, 6):
            record.string = f"{FAMILY} {style}".replace(" ", "-")
    options = subset.Options(layout_features=["kern", "mark", "mkmk", "ccmp", "locl"], name_IDs=[0, 1, 2, 3, 4, 5, 6, 13, 14, 16, 17],
                             hinting=True, notdef_outline=True)
    subsetter = subset.Subsetter(options)
    subsetter.populate(unicodes=CHARACTERS)
    subsetter.subset(font)
    font.save(TARGET / f"FadeloomInter-{style}.otf")


for name in STYLES:
    make(name)
