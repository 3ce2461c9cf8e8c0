import math
import os
import pathlib
import pickle
import signal
import subprocess
import sys
import threading
import time

import numpy
import pytest
from conftest import batch

import talvesk
from talvesk import _cluster, _ensemble, _talvesk

MEMBERS = 48


@pytest.fixture(scope="module")
def project(tmp_path_factory):
    """A fitted section of a small line over two layers, whose members take a moment."""
    x = 2.0 * numpy.arange(13)
    at = numpy.array([0.5, 12.5, 23.5])
    survey = talvesk.lay_out(numpy.stack([x, 0 * x], axis=1), numpy.stack([at, 0 * at], axis=1))
    delay = 8.0 * numpy.sqrt(600.0**-2 - 1800.0**-2)
    for shot, source in enumerate(at):
        offsets = abs(x - source)
        survey.set_picks(shot, numpy.minimum(offsets / 600.0, offsets / 1800.0 + delay))
    path = tmp_path_factory.mktemp("ensemble") / "line.tvsk"
    talvesk.invert(survey, talvesk.Grid(survey, cell=1.0, depth=6.0), "fitted").survey.save(path)
    return path


@pytest.fixture(scope="module")
def alone(project):
    """Of talvesk-batch, as JSON."""
    return batch(
        "ensemble", project, "--members", MEMBERS, "--seed", 3, "--isovalue", 1000, "--json", "-"
    )["certainty"]


def run(project, **options):
    return talvesk.ensemble(project, MEMBERS, seed=3, isovalues=[1000], **options)


def expect_same(sure, json):
    assert sure.members == json["members"] and sure.left_out == json["left_out"]
    assert sure.median.ravel().tolist() == json["median"]
    assert sure.p16.ravel().tolist() == json["low"]
    assert sure.p84.ravel().tolist() == json["high"]
    assert sure.log_deviation.ravel().tolist() == json["deviation"]
    assert sure.members_with_rays.ravel().tolist() == json["members_with_rays"]
    depths = [numpy.nan if z is None else z for z in json["depths"][0]["median"]]
    numpy.testing.assert_array_equal(sure.isovalues[1000.0]["median"], depths)
    assert [name for name, _, _ in sure.models] == [model["name"] for model in json["models"]]
    assert [count for _, _, count in sure.models] == [m["members"] for m in json["models"]]


def test_is_that_of_the_batch_program(project, alone, tmp_path):
    told = []
    sure = run(str(project), threads=2, progress=told.append)
    expect_same(sure, alone)
    assert told[-1]["completed"] == told[-1]["total"] == MEMBERS
    # What a project holds is done, also for the batch program.
    sure.survey.save(tmp_path / "sure.tvsk")
    again = batch(
        "ensemble", tmp_path / "sure.tvsk", "--members", MEMBERS, "--seed", 3, "--isovalue", 1000,
        "--json", "-",
    )  # fmt: skip
    assert again["fitted_now"] == 0 and again["certainty"]["median"] == alone["median"]


def test_what_is_stopped_goes_on(project, alone, tmp_path):
    class Enough(Exception):
        pass

    def stop(state):
        if state["completed"] == 5:
            raise Enough

    keep = tmp_path / "kept.members"
    with pytest.raises(Enough):
        run(project, keep=keep, progress=stop)
    told = []
    expect_same(run(project, keep=keep, progress=told.append), alone)
    assert 0 < told[0]["completed"], "its members are done"
    with pytest.raises(talvesk.Error, match="another ensemble"):
        talvesk.ensemble(project, 5, seed=4, keep=keep)


def test_says_what_it_cannot_do(project, line):
    for options, told in (
        ({"vary": {"depth": [1.0]}}, "'depth' is none of"),
        ({"vary": {"smoothing": [0.0]}}, "smoothing must be"),
        ({"vary": {"smoothing": 1}}, "'smoothing' must be a list of numbers"),
        ({"vary": {"smoothing": []}}, "'smoothing' must be a list of numbers, one at least"),
        ({"vary": {"blocky": ["no"]}}, "'blocky' must be a list of True or False"),
        ({"vary": {5: [True]}}, "'5' is none of"),
        ({"isovalues": [1000, math.nan]}, "isovalues must be 1 to 999999999 m/s, not nan"),
        ({"isovalues": [math.inf]}, "isovalues must be"),
        ({"isovalues": [0.0]}, "isovalues must be"),
        ({"members": 0}, "members must be 1"),
    ):
        with pytest.raises(talvesk.Error, match=told):
            talvesk.ensemble(project, **options)
    with pytest.raises(talvesk.Error):
        talvesk.ensemble(line / "demo.otte", 3)  # without a section
    varied = talvesk.ensemble(project, 4, vary={"blocky": [False, True], "smoothing": [0.5, 2]})
    assert {name.split(", ")[-1] for name, _, _ in varied.models} == {"blocky", "smooth"}


def prepared(project):
    work = _talvesk._Ensemble(
        talvesk.read(project), MEMBERS, seed=3, isovalues=[], vary={}, keep=""
    )
    work.run(2, True, None)
    return work


@pytest.fixture()
def held(project, tmp_path):
    """The same line, held to what a borehole and a body tell of its ground."""
    (tmp_path / "known.csv").write_text(
        "kind,name,x,depth,bottom,velocity,error\n"
        "borehole,B1,10,0,2,600,25\n"
        "borehole,B1,10,2,4,650,90\n"
        "body,wall,14,1,,600,\nbody,wall,16,1,,600,\nbody,wall,16,2,,600,\nbody,wall,14,2,,600,\n"
    )
    batch(
        "invert", project, "--method", "fitted", "--constraints", tmp_path / "known.csv",
        "--project", tmp_path / "held.tvsk",
    )  # fmt: skip
    return tmp_path / "held.tvsk"


@pytest.mark.parametrize("kind", ["project", "held"])
def test_members_are_the_same_from_a_pickle_and_from_threads(kind, request):
    fits = prepared(request.getfixturevalue(kind)).fits()
    known = fits.__getstate__()[2][-1]
    assert (known is not None) == (kind == "held")
    there = pickle.loads(pickle.dumps(fits))
    found = {}

    def fit(number):
        found[number] = there.fit(number)

    threads = [threading.Thread(target=fit, args=(number,)) for number in range(4)]
    for thread in threads:
        thread.start()
    ticks = 0
    while any(thread.is_alive() for thread in threads):
        ticks += 1  # the interpreter is free meanwhile
        time.sleep(0.001)
    assert ticks > 1
    for number in range(4):
        here = fits.fit(number)
        assert here[:2] == found[number][:2]
        numpy.testing.assert_array_equal(here[2], found[number][2])
        numpy.testing.assert_array_equal(here[3], found[number][3])


@pytest.fixture(scope="module")
def cluster():
    distributed = pytest.importorskip("distributed")
    with distributed.LocalCluster(
        n_workers=4, threads_per_worker=1, dashboard_address=":0", host="127.0.0.1"
    ) as cluster:
        yield cluster


@pytest.fixture(scope="module")
def client(cluster):
    from distributed import Client

    with Client(cluster) as client:
        yield client


def test_workers_that_are_killed_cost_no_member(project, alone, client):
    victims = list(client.run(os.getpid).values())[:3]

    def kill(state):
        if victims and state["completed"] in (3, 12, 21):
            os.kill(victims.pop(), signal.SIGKILL)

    expect_same(run(project, client=client, progress=kill), alone)
    assert not victims


class Sleeper:
    """Stands for fits of members that take a second."""

    def __init__(self, seconds):
        self.seconds = seconds

    def fit(self, number):
        time.sleep(self.seconds)
        return number


def test_many_workers_are_kept_busy():
    distributed = pytest.importorskip("distributed")
    workers, threads, tasks, seconds = 8, 8, 640, 0.5
    with distributed.LocalCluster(
        n_workers=workers,
        threads_per_worker=threads,
        processes=False,
        memory_limit=0,
        dashboard_address=":0",
    ) as cluster, distributed.Client(cluster) as client:
        begin = time.perf_counter()
        done = sorted(_ensemble.fitted(client, Sleeper(seconds), range(tasks)))
        took = time.perf_counter() - begin
    assert done == list(range(tasks))
    # Other work of the machine counts here, too; docs/ensembles.md has what it is without.
    assert took < 3.0 * tasks * seconds / (workers * threads), took


def test_a_member_costs_dask_little(client):
    def round_of(tasks):
        begin = time.process_time()  # of client and scheduler; the clock tells what else runs, too
        for _ in _cluster.each(client, time.sleep, {k: (0.0,) for k in range(tasks)}):
            pass
        return time.process_time() - begin

    round_of(20)
    assert round_of(200) / 200 < 0.02


def test_the_example_for_clusters_fits_an_ensemble(project, tmp_path, cluster):
    example = pathlib.Path(__file__).parents[2] / "examples" / "cluster" / "ensemble.py"
    out = tmp_path / "sure.tvsk"
    done = subprocess.run(
        [sys.executable, "-B", example, cluster.scheduler_address, project, "6", out],
        capture_output=True,
        text=True,
        timeout=240,
    )
    assert done.returncode == 0, done.stderr
    assert "6 of 6 members" in done.stdout
    assert batch("ensemble", out, "--members", 6, "--json", "-")["fitted_now"] == 0
    assert [path.name for path in tmp_path.iterdir()] == ["sure.tvsk"], "nothing else is left"
