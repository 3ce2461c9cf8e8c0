#!/usr/bin/env python3
"""Fails on a text of the program that a language lacks, or translates with other placeholders.

The .ts files are brought up to the sources in a temporary folder first, so that a text that nobody
put into them is found too. English needs its plurals only.
"""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

PLACEHOLDER = re.compile(r"%(?:n|L?\d)")
# What the rooms below the window say.
ENGINE = "talvesk::Message"
FILTER = re.compile(r"\(\*[^)]*\)")


def finished(file):
    """Every translated message of a file, by context and source."""
    return {(context.findtext("name"), message.findtext("source")): message
            for context in ElementTree.parse(file).getroot().findall("context")
            for message in context.findall("message")
            if message.find("translation").get("type") != "unfinished"}


def as_asked(context, message, known):
    """The message under the name that the program asks for.

    The tool of Qt 5.15.15 and later takes some texts of talvesk::Message for those of a class Message: where a variable
    of a type of std begins before them, it looks for the class there.
    """
    if message.find("translation").get("type") != "unfinished" or "::" in context:
        return message
    return known.get((f"talvesk::{context}", message.findtext("source")), message)


def faults(message):
    source = message.findtext("source") or ""
    translation = message.find("translation")
    plural = message.get("numerus") == "yes"
    forms = [form.text or "" for form in translation.findall("numerusform")] if plural else [
        translation.text or ""]
    if translation.get("type") == "unfinished" or not forms or not all(forms):
        yield "is not translated"
        return
    for form in forms:
        wanted, found = set(PLACEHOLDER.findall(source)), set(PLACEHOLDER.findall(form))
        # "one more" may say its number in words.
        if plural:
            wanted.discard("%n")
            found.discard("%n")
        if wanted != found:
            yield f"has {sorted(found)}, not {sorted(wanted)}, in '{form}'"
        if FILTER.findall(source) != FILTER.findall(form):
            yield f"names other files in '{form}'"
        if re.search(r"&\w", source) and not re.search(r"&\w", form):
            yield f"has no key in '{form}'"
        if source.endswith("...") != form.endswith("..."):
            yield f"tells otherwise whether a dialog follows in '{form}'"


def main():
    lupdate, root = sys.argv[1], pathlib.Path(sys.argv[2])
    found = 0
    checked = 0
    languages = sorted((root / "resources" / "translations").glob("*.ts"))
    with tempfile.TemporaryDirectory() as folder:
        for original in languages:
            english = original.stem.endswith("_en")
            copy = pathlib.Path(folder) / original.name
            shutil.copy(original, copy)
            command = [lupdate, "-silent", "-locations", "none", "-no-obsolete",
                       "-extensions", "cpp,h,inl,ui"]
            command += ["-pluralonly"] if english else []
            subprocess.run(command + [str(root / "src"), "-ts", str(copy)], check=True,
                           stderr=subprocess.DEVNULL)
            known = finished(original)
            contexts = ElementTree.parse(copy).getroot().findall("context")
            if not english and ENGINE not in [c.findtext("name") for c in contexts]:
                found += 1
                print(f"{original.name}: no text of {ENGINE}, which the window asks for")
            for context in contexts:
                for message in context.findall("message"):
                    checked += 1
                    asked = as_asked(context.findtext("name"), message, known)
                    for fault in faults(asked):
                        found += 1
                        print(f"{original.name}: {context.findtext('name')}: "
                              f"'{message.findtext('source')}' {fault}")
    print(f"{len(languages)} languages, {checked} texts read, {found} faults")
    return 1 if found or len(languages) < 2 or checked < 100 else 0


if __name__ == "__main__":
    sys.exit(main())
