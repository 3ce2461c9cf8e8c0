#!/usr/bin/env python3
"""Reads every #include of src/ and fails on an arrow that points up, or sideways, in the house.

The table is the whole truth: a room may include itself and the rooms named beside it. Within a room
no circle of includes may lead from a unit back to itself. A unit is a header with its sources, and
with what is named after it: SectionView.h, SectionView.cpp, SectionView_state.h.
"""
import pathlib
import re
import sys

ENGINE = {"base", "numerics", "grid", "model"}
ALGORITHMS = {"tomo", "processing", "refraction", "doctor"}
ALLOWED = {
    "base": set(),
    "numerics": set(),
    "grid": {"base", "numerics"},
    "model": {"base", "numerics", "grid"},
    "doctor": ENGINE | {"processing"},
    "tomo": ENGINE,
    "processing": ENGINE,
    "refraction": ENGINE,
    "view": ENGINE | ALGORITHMS,
    "io": ENGINE | ALGORITHMS | {"view"},
    "export": ENGINE | ALGORITHMS | {"view"},
    "session": ENGINE | ALGORITHMS | {"view", "io", "export"},
    "figures": ENGINE | {"doctor", "refraction", "view"},
    "widgets": ENGINE | ALGORITHMS | {"view", "io", "export", "session", "figures"},
    "app": ENGINE | ALGORITHMS | {"view", "io", "export", "session", "figures", "widgets"},
    "batch": ENGINE | ALGORITHMS | {"view", "io", "export", "session", "figures"},
    "python": ENGINE | ALGORITHMS | {"view", "io", "export", "session"},
}
# Heavy libraries stay out of headers, and out of the rooms that never draw or archive.
HEAVY_IN_HEADER = re.compile(r"^(vtk|qwt_|cereal/)")
# Headers of the system, beside those of C++ and the libraries, and the only files that may include them: one for
# each need, which docs/other-systems.md lists with what another system would take.
OF_SYSTEM = re.compile(r"^(sys/.*|linux/.*|unistd\.h|fcntl\.h|pwd\.h|dlfcn\.h|pthread\.h|poll\.h|spawn\.h|termios\.h|c?signal(\.h)?|dirent\.h|sched\.h|"
                       r"netdb\.h|glob\.h|arpa/.*|net/.*|X11/.*|xcb/.*)$")
MEETS_SYSTEM = {f"src/base/{name}.cpp" for name in
                ("FileReplacement", "LockedFile", "PrivateFolder", "ScratchFile", "StandardStreams", "StreamPlace",
                 "ThisProcess")} | {"src/app/Termination.cpp", "src/batch/Interrupt.cpp"}
INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]')


SUFFIXES = {".h", ".cpp", ".inl"}


def sources(src):
    return [path for path in sorted(src.rglob("*")) if path.suffix in SUFFIXES]


def violations(root):
    src = root / "src"
    for path in sources(src):
        room = path.relative_to(src).parts[0]
        name = path.relative_to(root).as_posix()
        if room not in ALLOWED:
            yield f"{name}: room '{room}' is not in the table"
            continue
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            match = INCLUDE.match(line)
            if not match:
                continue
            quote, target = match.groups()
            if path.suffix == ".h" and HEAVY_IN_HEADER.match(target):
                yield f"{name}:{number}: header includes {target}"
            if OF_SYSTEM.match(target) and name not in MEETS_SYSTEM:
                yield f"{name}:{number}: {target} belongs into a file of docs/other-systems.md"
            if quote != '"':
                continue
            other = target.split("/")[0]
            if "/" not in target:
                if not target.startswith("ui_") and not target.endswith(".moc"):
                    yield f"{name}:{number}: write the room in \"{target}\""
            elif other not in ALLOWED:
                yield f"{name}:{number}: unknown room in \"{target}\""
            elif other != room and other not in ALLOWED[room]:
                yield f"{name}:{number}: '{room}' may not include '{other}'"
            elif not (src / target).exists():
                yield f"{name}:{number}: no such header {target}"


def unit_of(path, src):
    """The path of a unit, without suffix: of the header that a part of a class is named after."""
    stem = path.relative_to(src).with_suffix("")
    whole = stem.with_name(stem.name.split("_")[0])
    return (whole if (src / whole).with_suffix(".h").exists() else stem).as_posix()


def includes_within_rooms(src):
    """For every unit those of its room that it includes."""
    arrows = {}
    for path in sources(src):
        unit = unit_of(path, src)
        targets = arrows.setdefault(unit, set())
        for line in path.read_text(encoding="utf-8").splitlines():
            match = INCLUDE.match(line)
            if not match or match.group(1) != '"':
                continue
            target = src / match.group(2)
            if target.exists() and target.relative_to(src).parts[0] == unit.split("/")[0]:
                targets.add(unit_of(target, src))
        targets.discard(unit)
    return arrows


def reachable(unit, arrows):
    found, left = set(), [unit]
    while left:
        new = arrows[left.pop()] - found
        found |= new
        left.extend(new)
    return found


def circles(src):
    arrows = includes_within_rooms(src)
    reach = {unit: reachable(unit, arrows) for unit in arrows}
    for unit, targets in sorted(arrows.items()):
        back = sorted(target for target in targets if unit in reach[target])
        if back:
            yield f"{unit}: on a circle of includes, through {', '.join(back)}"


def main():
    root = pathlib.Path(sys.argv[1])
    found = list(violations(root)) + list(circles(root / "src"))
    for line in found:
        print(line)
    headers = sum(1 for _ in (root / "src").rglob("*.h"))
    print(f"{headers} headers read, {len(found)} violations")
    return 1 if found or headers == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
