#!/usr/bin/env python3
"""Fails when docs/vocabulary.md or docs/edits.md speak of what is not in src/.

The last cell of a table row names files below src/, in docs/edits.md each with functions that must be words of
it. In docs/vocabulary.md the names that the row explains must be words of its files.
"""
import functools
import pathlib
import re
import sys

CODE = re.compile(r"`([^`]+)`")
FILE = re.compile(r"^[a-z]+/[\w/]+\.(h|cpp|inl|ui)$")
WORD = re.compile(r"\w+")


def rows(path):
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        cells = [cell.strip() for cell in line.strip("|").split("|")]
        if line.startswith("|") and not set(line) <= set("|-"):
            yield f"{path.name}:{number}", cells


@functools.lru_cache(maxsize=None)
def words_of(file):
    return frozenset(WORD.findall(file.read_text(encoding="utf-8"))) if file.exists() else None


def violations(root, document, name_cell):
    """name_cell(cells): the cell whose names must be in the files, or None."""
    found = 0
    for where, cells in rows(root / "docs" / document):
        spans = CODE.findall(cells[-1])
        if not spans or not FILE.match(spans[0]):
            continue
        found += 1
        union = set()
        words = set()
        for span in spans:
            if FILE.match(span):
                words = words_of(root / "src" / span)
                if words is None:
                    yield f"{where}: there is no src/{span}"
                    words = set()
                union |= words
            elif not set(WORD.findall(span)) <= words:
                yield f"{where}: no {span} in the file before it"
        for name in CODE.findall(name_cell(cells) or ""):
            if not set(WORD.findall(name)) <= union:
                yield f"{where}: no {name} in {cells[-1]}"
    if found == 0:
        yield f"{document}: no row names a file"


def names_of(cells):
    # Words of our own have their names in the column before the last one.
    return cells[0] if "`" in cells[0] else cells[-2]


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".")
    found = list(violations(root, "vocabulary.md", names_of))
    found += violations(root, "edits.md", lambda cells: None)
    print("\n".join(found) or "vocabulary and edits speak of what is there")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
