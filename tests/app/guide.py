#!/usr/bin/env python3
"""Fails on a user guide that leads nowhere or calls things by names that the program does not use.

Every language of the program has the same pages and pictures, built alike; every link, anchor,
style sheet and picture is there; every page is reached from the first one and says its language;
what stands in bold is a text of the program in the language of the page; every command of the window
stands in bold on some page; and numbers that users set are those of the table of parameters.
"""
import html.parser
import itertools
import pathlib
import re
import sys
import urllib.parse
import xml.etree.ElementTree as ElementTree

LARGEST_PICTURE = 150 * 1024  # bytes
VOID = {"img", "link", "meta", "br"}
# The rows of the table: key, start, least, most; key, value.
PARAMETER = re.compile(r'Parameter<(?:int|double)> k\w+ = \{\s*"([\w-]+)",\s*([-\d.e]+),'
                       r'\s*\{([-\d.e]+),\s*([-\d.e]+)(?:,\s*\d+)?\}')
FIXED_NUMBER = re.compile(r'FixedNumber k\w+ = \{"([\w-]+)",\s*([-\d.e]+)\}')
BLOCKS = {"h1", "h2", "h3", "p", "li", "tr", "td", "th", "figure", "pre", "img"}


class Page(html.parser.HTMLParser):
    """Language, blocks, links, anchors, bold texts and numbers of parameters of a page."""

    def __init__(self, path):
        super().__init__()
        self.path = path
        self.links, self.anchors, self.bold, self.faults, self.open = [], set(), [], [], []
        self.language, self.blocks, self.numbers = "", [], []
        self.feed(path.read_text(encoding="utf-8"))
        if self.open:
            self.faults.append(f"{path}: <{self.open[-1]}> is not closed")

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        if tag not in VOID:
            self.open.append(tag)
        if tag == "html":
            self.language = values.get("lang")
        if tag in BLOCKS:
            self.blocks.append((tag, values.get("id"), values.get("class"), values.get("src")))
        if "id" in values:
            self.anchors.add(values["id"])
        if tag == "b":
            self.bold.append("")
        if tag == "span":
            self.numbers.append([values.get("data-parameter"), ""])
        if tag == "img" and not values.get("alt"):
            self.faults.append(f"{self.path}: {values.get('src')} has no text in its place")
        self.links += [values[name] for name in ("href", "src") if name in values]

    def handle_endtag(self, tag):
        if not self.open or self.open.pop() != tag:
            self.faults.append(f"{self.path}, line {self.getpos()[0]}: </{tag}> closes nothing")

    def handle_data(self, data):
        if self.open and self.open[-1] == "b":
            self.bold[-1] += data
        if self.open and self.open[-1] == "span":
            self.numbers[-1][1] += data


def texts_of_program(root, language):
    """What the program says, without keys: the sources are English, the rest is translated."""
    names = set()
    own = root / "resources" / "translations" / f"talvesk_{language}.ts"
    # The English file holds plurals only; every other one has all texts.
    full = own if language != "en" else own.with_name("talvesk_it.ts")
    for message in ElementTree.parse(full).getroot().iter("message"):
        text = message.findtext("source" if language == "en" else "translation") or ""
        names.add(" ".join(text.replace("&", "").split()))
    return names


def commands_of_window(root, language):
    """The menus' and tool bars' commands, without keys, in a language."""
    form = root / "src" / "app" / "forms" / "Talvesk_MainWindows.ui"
    commands = {action.findtext("property[@name='text']/string")
                for action in ElementTree.parse(form).getroot().iter("action")}
    translated = {}
    if language != "en":
        texts = root / "resources" / "translations" / f"talvesk_{language}.ts"
        for context in ElementTree.parse(texts).getroot().iter("context"):
            if context.findtext("name") == "talvesk::Talvesk_MainWindows":
                translated = {message.findtext("source"): message.findtext("translation")
                              for message in context.iter("message")}
    return {" ".join(translated.get(text, text).replace("&", "").split()) for text in commands}


def parameters_of_program(root):
    """The numbers of the table: "key" is where a parameter starts, "key:least" and "key:most"."""
    table = (root / "src" / "model" / "Parameters.h").read_text(encoding="utf-8")
    numbers = {key: float(value) for key, value in FIXED_NUMBER.findall(table)}
    for key, start, least, most in PARAMETER.findall(table):
        numbers |= {key: float(start), f"{key}:least": float(least), f"{key}:most": float(most)}
    rows = len(re.findall(r"constexpr (?:Parameter<\w+>|FixedNumber) k", table))
    if len(PARAMETER.findall(table)) + len(FIXED_NUMBER.findall(table)) != rows:
        sys.exit("a row of src/model/Parameters.h is laid out otherwise than this test reads it")
    return numbers


def faults_of_numbers(page, parameters):
    for key, text in page.numbers:
        number = re.sub(r"\s", "", text).replace(",", ".")
        if key not in parameters:
            yield f"{page.path}: there is no parameter '{key}'"
        elif not re.fullmatch(r"-?\d+(\.\d+)?", number) or float(number) != parameters[key]:
            yield f"{page.path}: '{text}' for {key}, which is {parameters[key]:g}"


def faults_of_links(page, pages, root):
    for link in page.links:
        parts = urllib.parse.urlsplit(link)
        if parts.scheme or parts.netloc or parts.path.startswith("/"):
            yield f"{page.path}: {link} leaves the guide"
            continue
        target = (page.path.parent / parts.path).resolve() if parts.path else page.path
        if root not in target.parents or not target.is_file():
            yield f"{page.path}: {link} is not there"
        elif parts.fragment and parts.fragment not in pages[target].anchors:
            yield f"{page.path}: {link} has no such place"


def reached_from(first, pages):
    found, waiting = set(), [first]
    while waiting:
        path = waiting.pop()
        if path in found or path not in pages or path.parent != first.parent:
            continue
        found.add(path)
        waiting += [(path.parent / urllib.parse.urlsplit(link).path).resolve()
                    for link in pages[path].links if link.split("#")[0].endswith(".html")]
    return found


def languages_of_program(root):
    translations = (root / "resources" / "translations").glob("talvesk_*.ts")
    return {path.stem.partition("_")[2] for path in translations}


def faults_of_language(page, model, languages):
    """Compares a page with the one of its name that it is a translation of."""
    own = page.path.parent.name
    if page.language != own:
        yield f"{page.path}: the page says that its language is '{page.language}'"
    for language in sorted(languages - {own}):
        if f"../{language}/{page.path.name}" not in page.links:
            yield f"{page.path}: no link to the page in '{language}'"
    if page.blocks != model.blocks:
        pairs = enumerate(itertools.zip_longest(page.blocks, model.blocks), 1)
        number, mine, other = next((at, *pair) for at, pair in pairs if pair[0] != pair[1])
        yield f"{page.path}: block {number} is {mine}, but {other} in {model.path}"
    inside = [{link for link in side.links if not link.startswith("../")} for side in (page, model)]
    for link in sorted(inside[0] ^ inside[1]):
        yield f"{page.path}: {link} stands here or in {model.path}, not in both"
    inside = [sorted(str(key) for key, text in side.numbers) for side in (page, model)]
    if inside[0] != inside[1]:
        yield f"{page.path}: tells {inside[0]}, but {model.path} tells {inside[1]}"


def faults_of_guide(repository):
    root = (repository / "resources" / "guide").resolve()
    languages = sorted(folder for folder in root.iterdir() if folder.is_dir())
    spoken = languages_of_program(repository)
    alone = spoken ^ {folder.name for folder in languages}
    for name in sorted(alone):
        yield f"{root}: '{name}' is not a language of both program and guide"
    if alone:
        return
    pages = {path: Page(path) for path in sorted(root.glob("*/*.html"))}
    wanted = {path.name for path in (root / "en").iterdir()}
    for folder in languages:
        for name in wanted ^ {path.name for path in folder.iterdir()}:
            yield f"{folder}: {name} is not in every language"
        names = texts_of_program(repository, folder.name)
        for path, page in pages.items():
            if path.parent != folder:
                continue
            model = root / "en" / path.name
            if model in pages:
                yield from faults_of_language(page, pages[model], spoken)
            for text in (" ".join(text.split()) for text in page.bold):
                if text not in names:
                    yield f"{path}: the program says nowhere '{text}'"
        told = {" ".join(text.split()) for path, page in pages.items() if path.parent == folder
                for text in page.bold}
        for command in sorted(commands_of_window(repository, folder.name) - told):
            yield f"{folder}: no page tells of '{command}'"
        reached = reached_from(folder / "index.html", pages)
        for path in pages:
            if path.parent == folder and path not in reached:
                yield f"{path}: no way leads there"
    parameters = parameters_of_program(repository)
    for page in pages.values():
        yield from page.faults
        yield from faults_of_numbers(page, parameters)
        yield from faults_of_links(page, pages, root)
    for picture in root.glob("**/*.png"):
        if picture.stat().st_size > LARGEST_PICTURE:
            yield f"{picture}: larger than {LARGEST_PICTURE} bytes"
        if not any(picture.name in page.links for page in pages.values()
                   if page.path.parent == picture.parent):
            yield f"{picture}: no page shows it"


def main():
    found = list(faults_of_guide(pathlib.Path(sys.argv[1]).resolve()))
    for fault in found:
        print(fault)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
