#!/usr/bin/env python3
"""Fails on texts for users that name metres beside a number, so that they stay in metres where feet are shown.

Numbers bring their unit along (Message::length, Message::velocity, lengthWithUnit), and units in brackets follow
the choice by themselves. What stays in metres is listed here, with the reason.
"""
import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree

LITERAL = r'"(?:[^"\\]|\\.)*"'
TEXT = re.compile(r"\b(?:tr|translate)\(\s*((?:" + LITERAL + r"\s*)+)")
METRES = re.compile(r"(?:%L?\d|\d)[ \u00a0](?:k?m|m/s)(?![\w/])|\b[Mm]etres?\b")
# As long as a text says so, it is of a file, and all files are in metres.
OF_A_FILE = re.compile(r", in metres\b")

STAYS = {
    # Of a file that was read, or is written, and is in metres.
    "its lengths are in feet (bytes 3255 and 3256) and were taken to metres",
    "its positions are in %1 and were converted to metres, %2 m each",
    "its receiver positions look like longitude and latitude in degrees, not like metres; give the survey its "
    "geometry",
    "read by the program's rules, the files have no elevations, and no positions that are not whole metres; read "
    "them by the standard",
    "the UNITS of its header, %1, are not known; its positions were taken as metres",
    "the columns %1 and %2 were taken for positions in metres",
    "the coordinates of %1 are degrees or seconds of arc, no metres; x was taken as it stands, so load a geometry "
    "file",
    "the positions of the geophones are no metres: over %1 shots the least times move by 1 as the shot moves by %2; "
    "geophones %3 apart from %4 on have them beside the shots",
    "All rows in the order of shots and traces, lengths in metres, with decimal points",
    "Y coordinate of the line in metres",
    "Z offset of the line in metres",
    # Of coordinates of the map.
    "%1 counts in another unit than the metre: %2; choose a system in metres",
    "This system does not count in metres. Choose one that does.",
    "Easting of the first geophone in metres",
    "Easting of the last geophone in metres",
    "Northing of the first geophone in metres",
    "Northing of the last geophone in metres",
    # Has a twin for feet, and is not said of these.
    "%1 % of that at the surface per metre, down to %2",
    "%1 km",
    # The choice of the unit itself.
    "What lengths and velocities are shown and asked for in. Files stay in metres.",
    "metres",
    "feet (0.3048 m)",
    # inShownVelocities() puts feet into these.
    "Name velocities, such as 1500 m/s for the water table, whose lines stand out from the section",
    "Velocities that mean something, such as 1500 m/s for the water table. Their lines stand out from the section "
    "and carry their names.",
    # A rule of the literature whose factor is for m/s.
    "A number for each layer, or 310 Vp^0.25 in kg/m3, which Gardner and others (1974) found for rocks faster than "
    "1500 m/s",
    # No position of a survey is so far away, in whatever unit.
    "A position of the survey lies more than 100 000 km away; please check the geometry.",
    "there is a grid, but a position lies more than 100 000 km away",
}

SAMPLES = {"%1 m": True, "%1 to %2 m/s": True, "1500 m/s": True, "for each metre": True, "%L1 km.": True,
           "%1 ms": False, "%1 mm": False, "Depth (m)": False, "%1 to %2": False}


def texts_of_code(path):
    code = path.read_text(encoding="utf-8")
    for call in TEXT.finditer(code):
        text = "".join(literal[1:-1] for literal in re.findall(LITERAL, call.group(1)))
        yield code.count("\n", 0, call.start()) + 1, text.replace('\\"', '"')


def texts_of_form(path):
    for string in ElementTree.parse(path).getroot().iter("string"):
        if string.get("notr") != "true":
            yield 0, string.text or ""


def violations(root):
    found = set()
    for path in sorted((root / "src").rglob("*")):
        if path.suffix not in {".cpp", ".h", ".ui"}:
            continue
        for line, text in texts_of_form(path) if path.suffix == ".ui" else texts_of_code(path):
            if not METRES.search(text) or OF_A_FILE.search(text):
                continue
            if text in STAYS:
                found.add(text)
            else:
                yield f"{path.relative_to(root)}:{line}: stays in metres where feet are shown: {text}"
    for text in sorted(STAYS - found):
        yield f"tests/units.py: the program does not say any more: {text}"


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".")
    found = [f"tests/units.py: is not judged right: {text}"
             for text, metres in SAMPLES.items() if bool(METRES.search(text)) != metres]
    found += violations(root)
    print("\n".join(found) or "no text keeps metres where feet are shown")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
