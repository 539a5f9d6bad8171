#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Generates resources/fonts from Inter: needs the Debian packages fonts-inter and python3-fonttools.

The panel's digits need a fixed width, and Qt before 6.7 cannot select a font's tabular figures; so here the default
digits are the tabular ones. Outlines are converted to quadratic: for cubic ones Qt enables FreeType's stem darkening,
which made all weights look alike. Only the scripts of the interface are kept: other names use the system's fonts. The
family is renamed, so that it never conflicts with an installed Inter.
"""

import pathlib

from fontTools import subset
from fontTools.pens.cu2quPen import Cu2QuPen
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.ttLib import TTFont, newTable

SOURCE = pathlib.Path("/usr/share/fonts/opentype/inter")
TARGET = pathlib.Path(__file__).resolve().parent.parent / "resources" / "fonts"
FAMILY = "Fadeloom Inter"
STYLES = ("Regular", "Medium", "SemiBold")
CHARACTERS = [*range(0x20, 0x250), *range(0x2010, 0x2028), *range(0x2030, 0x2040), 0x20AC, 0x2116, 0x2122, 0x2190, 0x2192,
              0x2212, 0x2260, 0x25B6]


def tabular(font):
    """The glyphs that replace others under the feature "tnum"."""
    table = font["GSUB"].table
    found = {}
    for record in table.FeatureList.FeatureRecord:
        if record.FeatureTag == "tnum":
            for index in record.Feature.LookupListIndex:
                for part in table.LookupList.Lookup[index].SubTable:
                    found.update(getattr(part, "mapping", None) or part.ExtSubTable.mapping)
    return found


def makeQuadratic(font):
    """Replaces the cubic outlines by quadratic ones that deviate by less than half a unit."""
    glyphs = font.getGlyphSet()
    outlines = {}
    for name in font.getGlyphOrder():
        pen = TTGlyphPen(glyphs)
        glyphs[name].draw(Cu2QuPen(pen, max_err=0.5, reverse_direction=True))
        outlines[name] = pen.glyph()
    for table in {"CFF ", "VORG"} & set(font.keys()):
        del font[table]
    font["loca"] = newTable("loca")
    font["glyf"] = newTable("glyf")
    font["glyf"].glyphOrder = font.getGlyphOrder()
    font["glyf"].glyphs = outlines
    font.sfntVersion = "\000\001\000\000"
    maximum = font["maxp"]
    maximum.tableVersion = 0x00010000
    for field in ("maxTwilightPoints", "maxStorage", "maxFunctionDefs", "maxInstructionDefs", "maxStackElements",
                  "maxSizeOfInstructions", "maxComponentElements", "maxPoints", "maxContours", "maxCompositePoints",
                  "maxCompositeContours", "maxComponentDepth"):
        setattr(maximum, field, 0)
    maximum.maxZones = 1
    font["post"].formatType = 3.0


def make(style):
    font = TTFont(SOURCE / f"Inter-{style}.otf")
    figures = tabular(font)
    for part in font["cmap"].tables:
        for code in range(ord("0"), ord("9") + 1):
            part.cmap[code] = figures.get(part.cmap[code], part.cmap[code])  # Some tables are shared.
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
    makeQuadratic(font)
    font.save(TARGET / f"FadeloomInter-{style}.ttf")


for name in STYLES:
    make(name)
