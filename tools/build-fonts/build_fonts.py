#!/usr/bin/python3
"""Makes the two display typefaces of the game from the Play family (SIL Open Font License).

The screens want a wide technical gothic: the outlines are stretched sideways, cut down to the Windows-1252
repertoire and given names of their own, as the licence asks of a changed font. The same input gives the same
bytes: no clock time goes into the files.
"""

import argparse
import pathlib
import re

from fontTools import subset
from fontTools.ttLib import TTFont

# file, source, family name inside the file, sideways stretch
FACES = [
    ("bnkgothicL.ttf", "Play-Regular.ttf", "Kelm Gothic Lt", 1.16),
    ("bnkgothicM.ttf", "Play-Bold.ttf", "Kelm Gothic Md", 1.12),
]
EXTRA = [0x2212, 0x2022]  # minus sign and bullet
NO_BREAK_SPACE = 0xA0
MADE = 3786912000  # 1 January 2024, in seconds since 1904: the date the files bear
KEPT_NAMES = (0, 8, 9, 11, 12, 13, 14)  # copyright, makers and licence


def repertoire():
    printable = bytes(code for code in range(0x20, 0x100) if code != 0x7F)
    return [ord(c) for c in printable.decode("cp1252", errors="ignore")] + EXTRA


def cut_down(font):
    for table in font["cmap"].tables:
        if table.isUnicode():
            table.cmap.setdefault(NO_BREAK_SPACE, table.cmap[0x20])
    options = subset.Options(hinting=False, legacy_kern=True, layout_features=[], name_IDs=["*"],
                             notdef_outline=True, recalc_timestamp=False, glyph_names=False)
    options.drop_tables += ["FFTM", "feat", "morx", "prop", "gasp"]
    cutter = subset.Subsetter(options)
    cutter.populate(unicodes=repertoire())
    cutter.subset(font)


def stretch(font, factor):
    glyphs, metrics = font["glyf"], font["hmtx"]
    for name in font.getGlyphOrder():
        glyph = glyphs[name]
        if glyph.isComposite():
            for part in glyph.components:
                part.x = round(part.x * factor)
        elif glyph.numberOfContours > 0:
            glyph.coordinates.scale((factor, 1))
            glyph.coordinates.toInt()
        width, bearing = metrics[name]
        metrics[name] = (round(width * factor), round(bearing * factor))
    for name in font.getGlyphOrder():
        glyphs[name].recalcBounds(glyphs)
        if glyphs[name].numberOfContours:
            metrics[name] = (metrics[name][0], glyphs[name].xMin)
    for table in font["kern"].kernTables if "kern" in font else []:
        table.kernTable = {pair: round(value * factor) for pair, value in table.kernTable.items()}
    font["OS/2"].xAvgCharWidth = round(font["OS/2"].xAvgCharWidth * factor)


def rename(font, family, source):
    names = font["name"]
    names.names = [record for record in names.names if record.nameID in KEPT_NAMES]
    texts = {1: family, 2: "Regular", 3: family + ": widened from " + source, 4: family,
             5: "Version 1.0", 6: family.replace(" ", "") + "-Regular",
             10: "A widened cut of the typeface Play, made for a card game."}
    for number, text in texts.items():
        names.setName(text, number, 3, 1, 0x409)
        names.setName(text, number, 1, 0, 0)


def version():
    top = pathlib.Path(__file__).resolve().parents[2] / "CMakeLists.txt"
    return re.search(r"project\(\w+ VERSION (\S+)", top.read_text(encoding="utf-8")).group(1)


def arguments():
    parser = argparse.ArgumentParser(prog="build-fonts", description="Makes the two display typefaces of the game.")
    parser.add_argument("--version", action="version", version=f"build-fonts {version()}")
    parser.add_argument("play", help="the folder with Play-Regular.ttf and Play-Bold.ttf")
    parser.add_argument("folder", help="where the typefaces go")
    return parser.parse_args()


def main():
    words = arguments()
    source_folder, target_folder = words.play, words.folder
    for file, source, family, factor in FACES:
        font = TTFont(f"{source_folder}/{source}", recalcTimestamp=False)
        cut_down(font)
        stretch(font, factor)
        rename(font, family, source)
        # Each face is a family of one, so a text's weight never picks the other face.
        font["OS/2"].usWeightClass = 400
        font["OS/2"].usWidthClass = 7  # expanded
        font["OS/2"].fsSelection = 0x40  # regular
        font["head"].macStyle = 0
        font["head"].created = font["head"].modified = MADE
        font.save(f"{target_folder}/{file}", reorderTables=None)


if __name__ == "__main__":
    main()
