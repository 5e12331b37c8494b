#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""build_symbol_font.py TABLE FOLDER: builds the symbol font from the outlines that TABLE names.

Writes symbol_font.cpp (the font as bytes) and symbol_table.h (the code points) into FOLDER.
Outlines are drawn on a 24-unit grid; only their paths count. Rows below 10F000 are glyphs that
texts contain by their code point, the others are symbols that the program asks for by name.
"""
import csv
import pathlib
import sys

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.cu2quPen import Cu2QuPen
from fontTools.pens.transformPen import TransformPen
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.svgLib import SVGPath

FAMILY = "Tarnwick Symbols"
GRID = 24
EM = 1200
SCALE = EM / GRID
# Where the middle of capital letters lies in common interface fonts.
MIDDLE = 0.36 * EM
FIRST_NAMED = 0x10F000


def read_table(path):
    with open(path, newline="", encoding="utf-8") as file:
        try:
            rows = [(int(row["codepoint"], 16), row["name"], path.parent / row["outline"])
                    for row in csv.DictReader(file)]
        except (KeyError, TypeError, ValueError) as error:
            sys.exit(f"{path}: a row is not codepoint,name,outline: {error}")
    # A glyph and a named symbol may share a name, they are asked for in different ways.
    for what, values in (("code point", [f"{code:X}" for code, _, _ in rows]),
                         ("name", [(name, code >= FIRST_NAMED) for code, name, _ in rows])):
        for value in values:
            if values.count(value) > 1:
                sys.exit(f"{path}: the {what} {value} stands in two rows")
    return sorted(rows)


def draw(outline):
    glyph_pen = TTGlyphPen(None)
    quadratic = Cu2QuPen(glyph_pen, max_err=EM / 1000, reverse_direction=True)
    onto_baseline = (SCALE, 0, 0, -SCALE, 0, MIDDLE + GRID / 2 * SCALE)
    if not outline.is_file():
        sys.exit(f"{outline}: there is no such outline")
    SVGPath(str(outline)).draw(TransformPen(quadratic, onto_baseline))
    glyph = glyph_pen.glyph()
    if glyph.numberOfContours == 0:
        sys.exit(f"{outline}: the outline is empty")
    return glyph


def build_font(rows, path):
    names = {code: f"u{code:X}" for code, _, _ in rows}
    glyphs = {".notdef": TTGlyphPen(None).glyph()}
    glyphs |= {names[code]: draw(outline) for code, _, outline in rows}

    font = FontBuilder(EM, isTTF=True)
    font.setupGlyphOrder(list(glyphs))
    font.setupCharacterMap(names)
    font.setupGlyf(glyphs)
    font.setupHorizontalMetrics(
        {name: (EM, getattr(glyph, "xMin", 0)) for name, glyph in glyphs.items()})
    # No higher than an interface font's line, so that a glyph does not spread the lines apart.
    font.setupHorizontalHeader(ascent=round(0.86 * EM), descent=-round(0.2 * EM))
    font.setupNameTable({"familyName": FAMILY, "styleName": "Regular"})
    font.setupOS2(sTypoAscender=round(0.86 * EM), sTypoDescender=-round(0.2 * EM),
                  usWinAscent=round(0.86 * EM), usWinDescent=round(0.2 * EM))
    font.setupPost()
    # The same outlines give the same bytes, whenever they are built.
    font.updateHead(created=0, modified=0)
    font.font.recalcTimestamp = False
    font.save(path)


def write_font_source(font, path):
    data = font.read_bytes()
    lines = [", ".join(str(byte) for byte in data[i:i + 24]) for i in range(0, len(data), 24)]
    path.write_text(
        '#include "symbol_table.h"\n\nnamespace tarnwick {\n\n'
        f"const std::array<unsigned char, symbolFontSize> symbolFontData{{\n"
        + ",\n".join(lines) + "};\n\n} // namespace tarnwick\n", encoding="utf-8")


def write_table(rows, size, path):
    glyphs = [f"inline constexpr char32_t {name} = 0x{code:X};"
              for code, name, _ in rows if code < FIRST_NAMED]
    named = [(name, code) for code, name, _ in rows if code >= FIRST_NAMED]
    entries = [f'    NamedSymbol{{u"{name}", 0x{code:X}}},' for name, code in named]
    path.write_text("\n".join([
        "#pragma once", "", "#include <array>", "", "namespace tarnwick {", "",
        "namespace glyph {", "", *glyphs, "", "} // namespace glyph", "",
        "struct NamedSymbol", "{", "    const char16_t* name;", "    char32_t codePoint;", "};", "",
        f"inline constexpr std::array<NamedSymbol, {len(named)}> namedSymbols{{", *entries, "};", "",
        f"inline constexpr int symbolFontSize = {size};",
        "extern const std::array<unsigned char, symbolFontSize> symbolFontData;", "",
        "} // namespace tarnwick", ""]), encoding="utf-8")


def main():
    table, folder = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    rows = read_table(table)
    font = folder / "tarnwick-symbols.ttf"
    build_font(rows, font)
    write_table(rows, font.stat().st_size, folder / "symbol_table.h")
    write_font_source(font, folder / "symbol_font.cpp")


main()
