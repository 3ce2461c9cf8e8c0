#!/usr/bin/env python3
"""Reads every #include of src/ and fails on an arrow that points up, or sideways, in the house.

The table is the whole truth: a room may include itself and the rooms named beside it.
"""
import pathlib
import re
import sys

ENGINE = {"base", "numerics", "grid", "model"}
ALGORITHMS = {"tomo", "processing", "refraction"}
ALLOWED = {
    "base": set(),
    "numerics": set(),
    "grid": {"base", "numerics"},
    "model": {"base", "numerics", "grid"},
    "tomo": ENGINE,
    "processing": ENGINE,
    "refraction": ENGINE,
    "view": ENGINE | ALGORITHMS,
    "io": ENGINE | ALGORITHMS | {"view"},
    "export": ENGINE | ALGORITHMS | {"view"},
    "session": ENGINE | ALGORITHMS | {"view", "io", "export"},
    "figures": ENGINE | ALGORITHMS | {"view", "io", "export"},
    "widgets": ENGINE | ALGORITHMS | {"view", "io", "export", "session", "figures"},
    "app": ENGINE | ALGORITHMS | {"view", "io", "export", "session", "figures", "widgets"},
    "batch": ENGINE | ALGORITHMS | {"view", "io", "export", "session", "figures"},
}
# Heavy libraries stay out of headers, and out of the rooms that never draw or archive.
HEAVY_IN_HEADER = re.compile(r"^(vtk|qwt_|cereal/)")
INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]')


def violations(root):
    src = root / "src"
    for path in sorted(src.rglob("*")):
        if path.suffix not in {".h", ".cpp", ".inl"}:
            continue
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


def main():
    root = pathlib.Path(sys.argv[1])
    found = list(violations(root))
    for line in found:
        print(line)
    headers = sum(1 for _ in (root / "src").rglob("*.h"))
    print(f"{headers} headers read, {len(found)} violations")
    return 1 if found or headers == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
