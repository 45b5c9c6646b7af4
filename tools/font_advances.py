#!/usr/bin/env python3
"""Writes src/drawing/font_advances.cpp from the installed fonts: the advance of every character that pages are
measured with. Run it by hand when the fonts change; the build reads only the file it has written.

    tools/font_advances.py > src/drawing/font_advances.cpp

Needs the packages fonts-tlwg-loma-ttf and fonts-liberation, and nothing beyond Python's own library.
"""

import struct
import sys

FOLDER = "/usr/share/fonts/truetype/"

# First and last character of every block: Latin with its accents, Greek, Thai, general punctuation, the euro sign,
# the trade mark, arrows and mathematical signs. The same list for every face, so that one place finds them all.
BLOCKS = [
    (0x0020, 0x017F),
    (0x0370, 0x03FF),
    (0x0E00, 0x0E5F),
    (0x2000, 0x2044),
    (0x20AC, 0x20AC),
    (0x2122, 0x2122),
    (0x2190, 0x2193),
    (0x2202, 0x2265),
]

# Loma's slanted faces have the advances of the upright ones, which the tool makes sure of; its bold ones differ from
# the regular ones in sixteen characters only, the letter E and four Thai consonants and vowels among them.
FACES = [
    ("Loma", ["tlwg/Loma.ttf", "tlwg/Loma-Oblique.ttf"]),
    ("LomaBold", ["tlwg/Loma-Bold.ttf", "tlwg/Loma-BoldOblique.ttf"]),
    ("LiberationSans", ["liberation/LiberationSans-Regular.ttf"]),
    ("LiberationSansBold", ["liberation/LiberationSans-Bold.ttf"]),
    ("LiberationSansItalic", ["liberation/LiberationSans-Italic.ttf"]),
    ("LiberationSansBoldItalic", ["liberation/LiberationSans-BoldItalic.ttf"]),
    ("LiberationSerif", ["liberation/LiberationSerif-Regular.ttf"]),
    ("LiberationSerifBold", ["liberation/LiberationSerif-Bold.ttf"]),
    ("LiberationSerifItalic", ["liberation/LiberationSerif-Italic.ttf"]),
    ("LiberationSerifBoldItalic", ["liberation/LiberationSerif-BoldItalic.ttf"]),
]

# Characters that leave no ink and take no room in any face: the soft hyphen, the zero-width blanks that divide Thai
# words, and the marks of writing direction.
INVISIBLE = {0x00AD, *range(0x200B, 0x2010), *range(0x202A, 0x202F)}

MISSING = 0xFFFF
UNITS_PER_EM = 2048


class TrueType:
    """The few tables of a TrueType file that tell advances: head, hhea, hmtx and cmap."""

    def __init__(self, path):
        with open(path, "rb") as file:
            self.data = file.read()
        self.tables = {}
        for index in range(self.u16(4)):
            tag, _, offset, _ = struct.unpack_from(">4sIII", self.data, 12 + 16 * index)
            self.tables[tag.decode()] = offset
        if self.u16(self.tables["head"] + 18) != UNITS_PER_EM:
            sys.exit(f"{path}: the em is not {UNITS_PER_EM} units")

    def u16(self, offset):
        return struct.unpack_from(">H", self.data, offset)[0]

    def advance(self, glyph):
        metrics = self.u16(self.tables["hhea"] + 34)
        return self.u16(self.tables["hmtx"] + 4 * min(glyph, metrics - 1))

    def characters(self):
        """Glyph by character, from the Windows Unicode subtable (format 4)."""
        cmap = self.tables["cmap"]
        for index in range(self.u16(cmap + 2)):
            platform, encoding, offset = struct.unpack_from(">HHI", self.data, cmap + 4 + 8 * index)
            if (platform, encoding) == (3, 1) and self.u16(cmap + offset) == 4:
                return self.segments(cmap + offset)
        sys.exit("no Unicode character map")

    def segments(self, table):
        count = self.u16(table + 6) // 2
        ends, starts = table + 14, table + 16 + 2 * count
        deltas, offsets = starts + 2 * count, starts + 4 * count
        glyphs = {}
        for segment in range(count):
            at = 2 * segment
            delta, place = self.u16(deltas + at), self.u16(offsets + at)
            for character in range(self.u16(starts + at), self.u16(ends + at) + 1):
                if place == 0:
                    glyph = (character + delta) & 0xFFFF
                else:
                    glyph = self.u16(offsets + at + place + 2 * (character - self.u16(starts + at)))
                    glyph = (glyph + delta) & 0xFFFF if glyph else 0
                if glyph:
                    glyphs[character] = glyph
        return glyphs


def advances(path):
    """The advance of an unknown character, and those of all blocks."""
    font = TrueType(FOLDER + path)
    glyphs = font.characters()
    row = []
    for first, last in BLOCKS:
        for character in range(first, last + 1):
            if character in INVISIBLE:
                row.append(0)
            else:
                row.append(font.advance(glyphs[character]) if character in glyphs else MISSING)
    return font.advance(0), row


def wrapped(texts):
    lines, line = [], "   "
    for text in texts:
        if len(line) + len(text) + 2 > 118:
            lines.append(line)
            line = "   "
        line += " " + text + ","
    return "\n".join(lines + [line])


def main():
    print("// Written by tools/font_advances.py; not to be edited by hand.")
    print("// clang-format off")
    print('#include "drawing/font_advances.h"\n\nnamespace terravane {\n')
    print("const std::array<AdvanceBlock, kAdvanceBlocks> kBlocks{{")
    start = 0
    for first, last in BLOCKS:
        print(f"    {{0x{first:04X}, 0x{last:04X}, {start}}},")
        start += last - first + 1
    print("}};")
    for name, paths in FACES:
        found = [advances(path) for path in paths]
        if any(other != found[0] for other in found):
            sys.exit(f"{name}: its faces have different advances")
        unknown, row = found[0]
        if len(row) != start:
            sys.exit(f"{name}: incomplete")
        print(f"\nconst FaceAdvances k{name}{{{unknown}, {{{{")
        print(wrapped(["kNone" if value == MISSING else str(value) for value in row]))
        print("}}};")
    print("\n}  // namespace terravane")


main()
