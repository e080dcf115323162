#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Makes the eight faces of the corporate font family from Debian's Roboto (Apache License 2.0).

usage: make_fonts.py SOURCE_DIRECTORY OUTPUT_DIRECTORY

Each face is cut down to the scripts that the applications show, loses its hints, and gets the family name
"KTCorpid" or "KTCorpid Cd" (condensed). The output depends on nothing but the input.
"""
import pathlib
import sys

from fontTools import subset
from fontTools.ttLib import TTFont

FAMILIES = {
    "KTCorpid": ("KTCorpid", "Roboto-{}.ttf"),
    "KTCorpidCd": ("KTCorpid Cd", "RobotoCondensed-{}.ttf"),
}
STYLES = ("Regular", "Bold", "Italic", "Light")

SCRIPTS = (
    (0x0020, 0x024F),  # Latin with its supplement and extensions A and B
    (0x02B0, 0x036F),  # modifiers and combining marks
    (0x0370, 0x03FF),  # Greek
    (0x0400, 0x052F),  # Cyrillic
    (0x1E00, 0x1EFF),  # Latin extended additional
    (0x2000, 0x214F),  # punctuation, super- and subscripts, currencies, letterlike symbols
    (0x2190, 0x22FF),  # arrows and mathematical operators
    (0x2500, 0x25FF),  # lines, blocks, geometric shapes
)

# Name identifiers of the OpenType name table.
FAMILY, STYLE, UNIQUE, FULL, POSTSCRIPT = 1, 2, 3, 4, 6
LEGAL = (0, 7, 13, 14)  # copyright, trademark, licence, its address: kept as they are


def reduce_to_scripts(font):
    options = subset.Options()
    options.hinting = False
    options.name_IDs = ["*"]
    options.notdef_outline = True
    options.layout_features = ["kern", "liga", "mark", "mkmk", "ccmp", "locl", "tnum"]
    options.drop_tables += ["DSIG", "hdmx", "LTSH", "VDMX"]
    subsetter = subset.Subsetter(options)
    subsetter.populate(unicodes=[code for first, last in SCRIPTS for code in range(first, last + 1)])
    subsetter.subset(font)


def rename(font, family, style):
    postscript = family.replace(" ", "") + "-" + style
    names = {FAMILY: family, STYLE: style, UNIQUE: postscript, FULL: f"{family} {style}", POSTSCRIPT: postscript}
    table = font["name"]
    table.names = [record for record in table.names if record.nameID in LEGAL]
    for identifier, text in names.items():
        table.setName(text, identifier, 3, 1, 0x409)  # Windows, Unicode, English
        table.setName(text, identifier, 1, 0, 0)  # Macintosh, Roman, English


def find(directory, file_name):
    found = sorted(directory.rglob(file_name))
    if not found:
        sys.exit(f"make_fonts.py: no {file_name} below {directory} (Debian package fonts-roboto-unhinted)")
    return found[0]


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    source, output = map(pathlib.Path, sys.argv[1:])
    output.mkdir(parents=True, exist_ok=True)
    for stem, (family, pattern) in FAMILIES.items():
        for style in STYLES:
            font = TTFont(find(source, pattern.format(style)), recalcTimestamp=False)
            reduce_to_scripts(font)
            rename(font, family, style)
            font.save(output / f"{stem}_v3_{style}_02.ttf")


if __name__ == "__main__":
    main()
