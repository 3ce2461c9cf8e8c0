#!/usr/bin/env python3
"""Writes the seed corpora of the fuzz targets, one folder each: a small survey in every format.

usage: make_seeds.py FOLDER
The first byte of a travel-time seed chooses the suffix and the reading, that of an SU seed the state that an earlier
file left, that of an isovalue seed the separator, that of a table seed the reader and the separator,
that of a project seed the member that the rest stands for, 0 for the whole archive; the rest is the
file.
"""
import pathlib
import sys

from palette_seeds import isovalue_seeds, palette_seeds
from project_seeds import project_seeds
from shot_seeds import shot_seeds
from standard_seeds import standard_seeds
from table_seeds import setting_seeds, table_seeds


def row(values, separator, last=""):
    return separator.join(f"{value:g}" for value in values) + (last if values else "")


def survey(shots, geophones):
    """Geophones every 5 m on a slope, times (ms) of a direct wave, every fourth pick missing."""
    receivers = [(5.0 * i, 100 + 0.3 * i) for i in range(geophones)]
    sources = [(-2.5 + 10 * i, 99.5 + i) for i in range(shots)]
    times = [[-99000 if (i + j) % 4 == 3 else 0.1 + abs(x - s[0]) / 0.8
              for j, (x, _) in enumerate(receivers)] for i, s in enumerate(sources)]
    return receivers, sources, times


def otte(receivers, sources, times, strings=1):
    every = receivers * strings
    lines = ["otte", "1.0", "2", str(strings)]
    lines += [row([p[k] for p in points], ";", ";") for points in (every, sources) for k in (0, 1)]
    for i, line in enumerate(times):
        lines += [str(i % strings), str(i), row(line, ";", ";")]
    return lines


def tx_curves(receivers, sources, times):
    lines = ["TX_CURVE", "VERSION: 1.0", "INFO", "ELEVATION 1",
             f"TOTAL_NUMBER_OF_SHOTS {len(sources)}"]
    for i, (source, line) in enumerate(zip(sources, times)):
        lines += ["", f"SEISMIC_DATA_FILE_NAME {i}.dat",
                  "SHOT_LOCATION " + row(source if i % 2 else source[:1], " "),
                  f"NUMBER_OF_RECEIVERS {len(receivers)}"]
        lines += [row([j + 1, *p, t], " ") for j, (p, t) in enumerate(zip(receivers, line))]
    return lines


def pick_table(receivers, sources, times):
    def section(header, points, coordinate):
        return [header, row(range(1, len(points) + 1), " "), row([p[coordinate] for p in points], " ")]

    return (section("Shot number, Shot elevation", sources, 1)
            + section("Shot number, Shot distance", sources, 0)
            + section("Receiver number, receiver distance", receivers, 0)
            + section("Receiver number, receiver elevation", receivers, 1)
            + ["FBP times"] + [row(line, " ") for line in times])


def csv(receivers, sources, times):
    lines = [";;" + row([p[k] for p in receivers], ";") for k in (0, 1)]
    return lines + [row([*source, *line], ";") for source, line in zip(sources, times)]


def picks(receivers, sources, times):
    for source, line in zip(sources, times):
        yield from ((source, receiver, t) for receiver, t in zip(receivers, line))


def unified(receivers, sources, times):
    places = sorted({*receivers, *sources})
    lines = [f"{len(places)} # shot/geophone points", "#x z"] + [row(p, " ") for p in places]
    found = [[places.index(s) + 1, places.index(r) + 1, 0.001 * t, 0.001, t > 0]
             for s, r, t in picks(receivers, sources, times)]
    lines += [f"{len(found)} # measurements", "#s g t err valid"] + [row(f, "\t") for f in found]
    return lines + ["1 # topography", "0 100"]


def headed(receivers, sources, times, separator, heading):
    rows = [row([*s, *r, t], separator) for s, r, t in picks(receivers, sources, times)]
    if separator == ";":
        rows = [line.replace(".", ",") for line in rows]
    return [separator.join(heading)] + rows


def content_seeds(data):
    named = ["shot_x", "sz", '"receiver x"', "gz", "t (ms)"]
    return [(4, unified(*data)), (5, unified(*data)), (3, headed(*data, ";", named)),
            (5, headed(*data, "\t", named)), (0x21, headed(*data, ",", ["sx", "sz", "gx", "gz", "t"])),
            (0x45, headed(*data, " ", ["sx", "sz", "gx", "gz", "t[s]"])),
            (3, [line + ";" * 250 for line in csv(*data)])]


def joined(lines, end):
    return "".join(line + end for line in lines).encode("ascii")


def travel_time_seeds():
    for size in ((0, 1), (1, 1), (2, 3), (4, 12)):
        data = survey(*size)
        for reader, lines in enumerate([otte(*data), tx_curves(*data), pick_table(*data),
                                        csv(*data), otte(*data, strings=2)]):
            for end in ("\n", "\r\n"):
                yield bytes([reader % 4]) + joined(lines, end)
        for reader, lines in content_seeds(data):
            yield bytes([reader]) + joined(lines, "\n")


def write(folder, seeds):
    folder.mkdir(parents=True, exist_ok=True)
    count = 0
    for count, seed in enumerate(seeds, 1):
        (folder / f"seed{count:02d}").write_bytes(seed)
    print(f"{count} seeds in {folder}")


def main():
    root = pathlib.Path(sys.argv[1])
    write(root / "travel_times", travel_time_seeds())
    write(root / "palette", palette_seeds())
    write(root / "isovalues", isovalue_seeds())
    write(root / "project", project_seeds())
    write(root / "tables", table_seeds())
    write(root / "settings", setting_seeds())
    for target, seeds in (shot_seeds() | standard_seeds()).items():
        write(root / target, seeds)


if __name__ == "__main__":
    main()
