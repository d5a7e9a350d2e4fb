#!/usr/bin/python3
"""Writes src/foundation/letters.inc from the Unicode data of Debian's package unicode-data."""

import pathlib

DATA = pathlib.Path("/usr/share/unicode")
TABLE = pathlib.Path(__file__).parents[2] / "src/foundation/letters.inc"

# Scripts that write a consonant after a virama below or into the one before it. Tamil and Sinhala
# show the virama instead.
CONJUNCT_SCRIPTS = {"Devanagari", "Bengali", "Gurmukhi", "Gujarati", "Oriya", "Telugu", "Kannada",
                    "Malayalam", "Myanmar", "Khmer", "Tai_Tham", "Chakma"}


def having(file, *values):
    """The code points that a property file gives one of the values."""
    found = set()
    for line in (DATA / file).read_text(encoding="utf-8").splitlines():
        points, _, value = line.partition("#")[0].partition(";")
        if value.strip() in values:
            first, _, last = points.strip().partition("..")
            found.update(range(int(first, 16), int(last or first, 16) + 1))
    return found


def ranges(points):
    """First and last of each, unassigned code points between them included."""
    unassigned = having("extracted/DerivedGeneralCategory.txt", "Cn")
    found = []
    for point in sorted(points):
        if found and unassigned.issuperset(range(found[-1][1] + 1, point)):
            found[-1][1] = point
        else:
            found.append([point, point])
    return found


def table(name, points):
    rows = [f"{{0x{first:04X}, 0x{last:04X}}}," for first, last in ranges(points)]
    lines = [" ".join(rows[i:i + 4]) for i in range(0, len(rows), 4)]
    return f"constexpr Range {name}[] = {{\n    " + "\n    ".join(lines) + "\n};\n"


def main():
    breaks, syllables = "auxiliary/GraphemeBreakProperty.txt", "IndicSyllabicCategory.txt"
    scripts = having("Scripts.txt", *CONJUNCT_SCRIPTS)
    leading = having(breaks, "L")  # consonants of Hangul syllables written in parts
    marks = having(breaks, "Extend", "SpacingMark", "ZWJ", "V", "T")
    links = leading | scripts & having(syllables, "Virama", "Invisible_Stacker")
    linked = (leading | having(breaks, "LV", "LVT") |
              scripts & having(syllables, "Consonant"))
    TABLE.write_text(
        "// Made by tools/letters/gather.py from Unicode 15.0, © 1991-2022 Unicode, Inc., under the\n"
        "// Unicode-DFS-2016 licence; packaging/copyright has its text.\n\n"
        "// Belong to the character before them.\n" + table("kMarks", marks) +
        "\n// A character of kLinked right after one of these belongs to the same letter.\n" +
        table("kLinks", links) + "\n" + table("kLinked", linked), encoding="utf-8")


main()
