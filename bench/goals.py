#!/usr/bin/env python3
"""The search and whole inversions of two builds in turns: ratios of medians, in the words of docs/benchmarks.md.

    python3 bench/goals.py EARLIER/bin PRESENT/bin [--quick] [--line FILE]...

Processor times; a machine that is shared tells little by elapsed ones, which are given where threads are
compared.
"""

import argparse
import json
import os
import pathlib
import statistics
import subprocess
import tempfile

LINE = (48, 9, 1.0, 49.0)
LARGE = (240, 121, 0.5, 240.5)


def output(*command, cores=None):
    pinned = ["taskset", "-c", ",".join(map(str, cores))] if cores else []
    return subprocess.run([*pinned, *map(str, command)], check=True, capture_output=True, text=True).stdout


def row(*cells):
    print("| " + " | ".join(map(str, cells)) + " |", flush=True)


def inversion(build, line, times=1, cores=None):
    """Elapsed and processor seconds, MB and a hash."""
    seconds, processor, memory, hashed = output(build / "whole_inversions", *line, times, cores=cores).split()
    return float(seconds), float(processor), float(memory), hashed


def median(runs, place):
    return statistics.median(run[place] for run in runs)


def search(builds):
    """Ratios to the plain reference in the same run."""
    for nodes in (6, 10):
        cells = [f"search, 400 x 100 cells, {nodes} nodes, times faster than the reference"]
        for build in builds:
            said = output(
                build / "bench_search",
                f"--benchmark_filter=earch/400/100/{nodes}$",
                "--benchmark_repetitions=3",
                "--benchmark_format=json",
            )
            times = {
                run["run_name"].split("/")[0]: run["cpu_time"]
                for run in json.loads(said)["benchmarks"]
                if run.get("aggregate_name") == "median"
            }
            cells.append(f"{times['referenceSearch'] / times['search']:.1f}")
        row(*cells, f"{float(cells[2]) / float(cells[1]):.2f}")


def whole(name, builds, line, turns):
    runs = [[], []]
    for _ in range(turns):
        for at, build in enumerate(builds):
            runs[at].append(inversion(build, line))
    then, now = (median(one, 1) for one in runs)
    row(f"{name}, processor time, s", f"{then:.3f}", f"{now:.3f}", f"{then / now:.2f}")
    then, now = (median(one, 0) for one in runs)
    row(f"{name}, elapsed, s", f"{then:.3f}", f"{now:.3f}", f"{then / now:.2f}")
    then, now = (median(one, 2) for one in runs)
    row(f"{name}, greatest memory, MB", f"{then:.0f}", f"{now:.0f}", f"{then / now:.2f}")
    same = len({run[3] for one in runs for run in one}) == 1
    row(f"{name}, slownesses", "", "same bits" if same else "DIFFERENT", "")


def batch(name, builds, file, turns):
    """Processor time of talvesk-batch invert, and whether what it says is the same."""
    times, said = [[], []], [None, None]
    for _ in range(turns):
        for at, build in enumerate(builds):
            before = os.times()
            text = output(build / "talvesk-batch", "invert", file, "--quiet", "--json", "-")
            after = os.times()
            times[at].append(
                after.children_user + after.children_system - before.children_user - before.children_system
            )
            said[at] = json.loads(text)
    then, now = map(statistics.median, times)
    row(f"{name}, processor time of talvesk-batch, s", f"{then:.3f}", f"{now:.3f}", f"{then / now:.2f}")
    shared = (said[0].keys() & said[1].keys()) - {"elapsed_s", "computing_s"}
    same = all(said[0][key] == said[1][key] for key in shared)
    row(f"{name}, {len(shared)} values that both print besides seconds", "", "same" if same else "DIFFERENT", "")


def threads(builds, turns):
    """Elapsed times on one core to those on two."""
    for shots in (9, 10, 11):
        cells = [f"two threads, {shots} shots, times faster than one"]
        for build in builds:
            line = (48, shots, 0.5, 49.0)
            one = [inversion(build, line, cores=[0])[0] for _ in range(turns)]
            two = [inversion(build, line, cores=[0, 1])[0] for _ in range(turns)]
            cells.append(f"{statistics.median(one) / statistics.median(two):.2f}")
        row(*cells, "")


def twenty(builds):
    """Twenty inversions one after the other by two threads, then ten on each of two cores."""
    then = inversion(builds[0], LINE, 20, cores=[0, 1])[0]
    halves = [
        subprocess.Popen(
            ["taskset", "-c", str(core), builds[1] / "whole_inversions", *map(str, LINE), "10"],
            stdout=subprocess.PIPE,
            text=True,
        )
        for core in (0, 1)
    ]
    now = max(float(half.communicate()[0].split()[0]) for half in halves)
    row("20 inversions on two cores, elapsed, s", f"{then:.2f}", f"{now:.2f}", f"{then / now:.2f}")


def hashes(builds):
    then, now = (output(build / "inversion_hashes") for build in builds)
    row("hashes of 60 random surveys", "", "same" if then == now else "DIFFERENT", "")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawTextHelpFormatter)
    parser.add_argument("builds", nargs=2, type=pathlib.Path, metavar="BIN")
    parser.add_argument("--quick", action="store_true", help="without the line of 961 x 481 cells")
    parser.add_argument("--line", action="append", default=[], metavar="FILE", help="travel times to invert, too")
    asked = parser.parse_args()
    builds = [build.resolve() for build in asked.builds]
    print(f"Load {os.getloadavg()[0]:.1f} on {os.cpu_count()} cores.\n")
    row("What", "Then", "Now", "Ratio")
    row("---", "---", "---", "---")
    search(builds)
    whole("48 geophones, 9 shots, 96 x 49 cells", builds, LINE, 9)
    with tempfile.TemporaryDirectory() as folder:
        output(builds[1] / "talvesk-batch", "demo", folder)
        batch("demo line", builds, pathlib.Path(folder) / "demo.otte", 5)
    for number, file in enumerate(asked.line, 1):
        batch(f"given line {number}", builds, file, 3)
    threads(builds, 5)
    twenty(builds)
    if not asked.quick:
        whole("240 geophones, 121 shots, 961 x 481 cells", builds, LARGE, 1)
    hashes(builds)


if __name__ == "__main__":
    main()
