#!/usr/bin/env python3
"""What members of an ensemble cost, alone and on Dask: the figures of docs/ensembles.md.

    PYTHONPATH=build/release/python python3 bench/ensemble.py build/release/bin/talvesk-batch [WHAT...]

WHAT: cost, cores, deaths, overhead, scale; all of them by default. The line has 48 geophones and nine
shots over ground whose velocity grows with depth. --cell M makes cells larger than 0.5 m, for a try.
"""

import argparse
import json
import math
import os
import pathlib
import resource
import signal
import subprocess
import tempfile
import time

import numpy
from distributed import Client, LocalCluster

import talvesk
from talvesk import _ensemble, _talvesk


def line(folder, cell):
    """A project with the fitted section of the line."""
    x = 2.0 * numpy.arange(48)
    places = numpy.stack([x, 100.0 + 1.5 * numpy.sin(x / 20.0)], axis=1)
    at = -1.0 + 96.0 * numpy.arange(9) / 8
    shots = numpy.stack([at, 100.0 + 1.5 * numpy.sin(at / 20.0)], axis=1)
    survey = talvesk.lay_out(places, shots)
    for shot, source in enumerate(at):
        offsets = abs(x - source) + 0.1
        survey.set_picks(shot, 2.0 / 60.0 * numpy.arcsinh(60.0 * offsets / 800.0))
    result = talvesk.invert(survey, talvesk.Grid(survey, cell=cell, depth=47.0), "fitted")
    path = pathlib.Path(folder) / "line.tvsk"
    result.survey.save(path)
    return path


def told(name, text):
    load = os.getloadavg()[0]
    print(f"{name:9}{text}; load {load:.1f} on {os.cpu_count()} cores", flush=True)


def batch(program, project, *options):
    command = [program, "ensemble", project, "--quiet", "--json", "-", *map(str, options)]
    return json.loads(subprocess.run(command, check=True, capture_output=True).stdout)


def prepared(project, members):
    work = _talvesk._Ensemble(
        talvesk.read(project), members, seed=1, isovalues=[], vary={}, keep=""
    )
    work.run(0, True, None)
    return work


def cost(program, project):
    """Processor time of a member in the batch program and in Python, in turns."""
    members, cpp, python = 12, [], []
    for _ in range(3):
        said = batch(program, project, "--members", members, "--threads", 1)
        cpp.append(said["members_cpu_s"] / members)
        work = prepared(project, members)
        begin = time.process_time()
        work.run(1, False, None)
        python.append((time.process_time() - begin) / members)
    told(
        "cost",
        f"C++ {min(cpp):.4f} s a member, Python {min(python):.4f} s, "
        f"ratio {min(python) / min(cpp):.3f} (least of three turns)",
    )


def cores(program, project):
    """100 members on two threads, between runs of ten on one."""
    alone = [batch(program, project, "--members", 10, "--threads", 1)]
    said = batch(program, project, "--members", 100, "--threads", 2)
    alone.append(batch(program, project, "--members", 10, "--threads", 1))
    one = sum(run["members_s"] for run in alone) / 20
    one_cpu = sum(run["members_cpu_s"] for run in alone) / 20
    told(
        "cores",
        f"one member {one:.3f} s on one core, 100 on two {said['members_s']:.1f} s: "
        f"{said['members_s'] / one:.1f} times; of processor time {one_cpu:.3f} s and "
        f"{said['members_cpu_s']:.1f} s: {said['members_cpu_s'] / 2 / one_cpu:.1f} times on each; "
        f"models {said['models_s']:.1f} s",
    )


class Noted:
    """Fits members and notes when each was begun, by whom."""

    def __init__(self, fits, path):
        self.fits, self.path = fits, path

    def fit(self, number):
        with open(self.path, "a") as file:
            file.write(f"{os.getpid()} {time.time()}\n")
        return self.fits.fit(number)


def deaths(program, project):
    """64 members on four worker processes, with and without three that are killed."""
    members = 64
    work = prepared(project, members)
    times, work_done, found, lost = [], [], [], 0.0
    for kills in (0, 3):
        before = processor()
        with tempfile.NamedTemporaryFile() as notes, LocalCluster(
            n_workers=4, threads_per_worker=1, dashboard_address=None, host="127.0.0.1"
        ) as cluster, Client(cluster) as client:
            victims = list(client.run(os.getpid).values())[:kills]
            client.run(_import)
            begin, got = time.perf_counter(), {}
            for member in _ensemble.fitted(client, Noted(work.fits(), notes.name), range(members)):
                got[member[0]] = member
                if victims and len(got) % 16 == 8:
                    pid = victims.pop()
                    os.kill(pid, signal.SIGKILL)
                    begun = [float(one.split()[1]) for one in open(notes.name) if one.startswith(f"{pid} ")]
                    lost += time.time() - begun[-1] if begun else 0.0
            times.append(time.perf_counter() - begin)
            found.append(got)
        work_done.append(processor() - before)
    same = all(
        found[0][number][1] == found[1][number][1]
        and numpy.array_equal(found[0][number][2], found[1][number][2])
        for number in range(members)
    )
    told(
        "deaths",
        f"{len(found[1])} of {members} members, same bits: {same}; {times[0]:.1f} s without, "
        f"{times[1]:.1f} s with three deaths, which cost {lost:.1f} s of work at hand; "
        f"ratio {times[1] / times[0]:.3f}; of processor time, starting of workers included, "
        f"{work_done[0]:.1f} s and {work_done[1]:.1f} s",
    )


def processor():
    """Processor seconds of this process and of the workers that have ended."""
    here, there = resource.getrusage(resource.RUSAGE_SELF), resource.getrusage(resource.RUSAGE_CHILDREN)
    return here.ru_utime + here.ru_stime + there.ru_utime + there.ru_stime


def _import():
    import talvesk  # noqa: F401


class Canned:
    """A member that is there already."""

    def __init__(self, member):
        self.member = member

    def fit(self, number):
        return (number, *self.member[1:])


def overhead(program, project):
    """What Dask takes for a member: of members that are there already, on one worker process."""
    member = prepared(project, 1).fits().fit(0)
    tasks = 500
    with LocalCluster(
        n_workers=1, threads_per_worker=1, dashboard_address=None, host="127.0.0.1"
    ) as cluster, Client(cluster) as client:
        for _ in _ensemble.fitted(client, Canned(member), range(20)):
            pass
        begin = time.perf_counter()
        for _ in _ensemble.fitted(client, Canned(member), range(tasks)):
            pass
        took = time.perf_counter() - begin
    size = member[2].nbytes + member[3].nbytes
    told("overhead", f"{1000 * took / tasks:.2f} ms a member of {size / 1e6:.2f} MB")


class Sleeper:
    def fit(self, number):
        time.sleep(1.0)
        return number


def scale(program, project):
    """10 000 members that take a second of sleep each, on 64 threads as workers."""
    workers, tasks = 64, 10_000
    with LocalCluster(
        n_workers=workers,
        threads_per_worker=1,
        processes=False,
        memory_limit=0,  # all of them measure the memory of the one process
        dashboard_address=None,
    ) as cluster, Client(cluster) as client:
        begin = time.perf_counter()
        done = {number for number in _ensemble.fitted(client, Sleeper(), range(tasks))}
        took = time.perf_counter() - begin
    assert len(done) == tasks
    ideal = math.ceil(tasks / workers)
    told("scale", f"{tasks} tasks in {took:.0f} s: {workers} workers {100 * ideal / took:.1f} % busy")


def main():
    every = {one.__name__: one for one in (cost, cores, deaths, overhead, scale)}
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawTextHelpFormatter)
    parser.add_argument("program", help="talvesk-batch")
    parser.add_argument("what", nargs="*", default=list(every), metavar="WHAT", help=", ".join(every))
    parser.add_argument("--cell", type=float, default=0.5, help="metres")
    asked = parser.parse_args()
    if unknown := set(asked.what) - set(every):
        parser.error(f"{', '.join(unknown)}: none of {', '.join(every)}")
    with tempfile.TemporaryDirectory() as folder:
        project = line(folder, asked.cell)
        for name in asked.what:
            every[name](asked.program, project)


if __name__ == "__main__":
    main()
