import os
import signal
import threading

import numpy
import pytest
from conftest import batch

import talvesk


@pytest.mark.parametrize(
    ("options", "arguments"),
    [
        ({"iterations": 2}, ["--iterations", "2"]),
        ({"method": "fitted", "iterations": 2}, ["--method", "fitted", "--iterations", "2"]),
    ],
)
def test_the_bits_are_those_of_the_batch_program(line, picks, options, arguments):
    grid = talvesk.Grid(picks, cell=1.0, depth=20.0)
    result = talvesk.invert(picks, grid, **options)
    said = batch(
        "invert", line / "demo.otte", "--cell-size", 1, "--depth", 20, *arguments, "--json", "-"
    )
    assert result.velocity.ravel().tolist() == said["velocities"]
    assert result.section_rmse_ms == said["section_rmse_ms"]
    assert result.chi2 == said["chi2"]
    assert result.survey.computed(3).tolist() == said["section_times"][3]
    assert result.coverage_m.ravel().tolist() == said["coverage_m"]
    if result.reference:
        assert result.lambda_ == said["lambda"] and result.chi2_history == said["chi2_history"]


def test_the_survey_stays_and_the_result_is_a_project(picks, tmp_path):
    result = talvesk.invert(picks, talvesk.Grid(picks, cell=2.0, depth=15.0), iterations=1)
    assert numpy.isnan(picks.computed(0)).all()
    result.survey.save(tmp_path / "done.tvsk")
    said = batch("info", tmp_path / "done.tvsk", "--json", "-")
    assert said["section_rmse_ms"] == result.section_rmse_ms


def test_a_grid_starts_from_the_velocities_of_the_caller(picks):
    grid = talvesk.Grid(picks, cell=2.0, depth=20.0)
    assert grid.velocity.shape == grid.z.shape == grid.shape
    assert grid.corner_z.shape == (grid.shape[0] + 1, len(grid.corner_x))
    start = grid.with_velocity(numpy.full(grid.shape, 1000.0))
    assert (start.velocity == 1000.0).all() and not (grid.velocity == 1000.0).all()
    first = [talvesk.invert(picks, one, iterations=1).misfit_history_ms[0] for one in (grid, start)]
    assert first[0] != first[1]
    for wrong in (numpy.ones((2, 2)), numpy.zeros(grid.shape), numpy.full(grid.shape, numpy.nan)):
        with pytest.raises(talvesk.Error, match="velocity must be"):
            grid.with_velocity(wrong)


def test_a_grid_of_another_line_is_refused(picks, line):
    grid = talvesk.Grid(picks, cell=2.0)
    moved = talvesk.read(line / "shot01.sg2")
    moved.pick()
    with pytest.raises(talvesk.Error, match="other positions"):
        talvesk.invert(moved, grid)


def test_times_through_uniform_ground_are_distance_over_velocity(picks):
    grid = talvesk.Grid(picks, cell=1.0, depth=20.0)
    uniform = grid.with_velocity(numpy.full(grid.shape, 1000.0))
    places = numpy.array([5.0, 20.0, 60.0])
    fine = talvesk.travel_times(uniform, 0.0, places, method="fine")
    nodes = talvesk.travel_times(uniform, 0.0, places)
    assert (fine >= (places - 1e-9) / 1000.0).all()
    numpy.testing.assert_allclose(nodes, fine, rtol=0.03)
    ray = talvesk.trace_rays(uniform, 0.0, places)[2]
    assert ray[0, 0] == pytest.approx(0.0, abs=0.2) and ray[-1, 0] == pytest.approx(60.0, abs=0.2)
    with pytest.raises(talvesk.Error, match="does not reach"):
        talvesk.travel_times(uniform, 0.0, [5000.0])


def test_progress_is_told_and_what_it_raises_ends_the_run(picks):
    grid = talvesk.Grid(picks, cell=2.0, depth=20.0)
    seen = []
    talvesk.invert(picks, grid, iterations=3, progress=seen.append)
    assert [one["completed"] for one in seen] == [1, 2, 3] and seen[0]["total"] == 3

    def refuse(state):
        raise KeyError("enough")

    with pytest.raises(KeyError, match="enough"):
        talvesk.invert(picks, grid, iterations=1000, progress=refuse)


def test_other_threads_go_on_and_an_interrupt_ends_the_run(picks):
    grid = talvesk.Grid(picks, cell=1.0, depth=30.0)
    timer = threading.Timer(0.3, lambda: os.kill(os.getpid(), signal.SIGINT))
    timer.start()
    with pytest.raises(KeyboardInterrupt):
        talvesk.invert(picks, grid, iterations=100000)
    timer.join()


@pytest.mark.parametrize(
    "options",
    [
        {"method": "best"},
        {"iterations": 0},
        {"smoothing": 0},
        {"smoothing_type": "none"},
        {"method": "fitted", "reference": "nonsense"},
    ],
)
def test_wrong_options_are_told(picks, options):
    with pytest.raises(talvesk.Error):
        talvesk.invert(picks, talvesk.Grid(picks, cell=2.0), **options)


def test_views_of_other_packages(picks, tmp_path):
    result = talvesk.invert(picks, talvesk.Grid(picks, cell=2.0, depth=20.0), iterations=1)
    pytest.importorskip("xarray")
    data = result.to_xarray()
    assert data.velocity.shape == result.velocity.shape
    numpy.testing.assert_array_equal(data.distance, result.grid.x)
    matplotlib = pytest.importorskip("matplotlib")
    matplotlib.use("Agg")
    axes = result.plot(rays=True)
    assert axes.get_xlabel() == "Distance [m]"
    result.to_vtk(tmp_path / "section.vtu")
    assert (tmp_path / "section.vtu").read_bytes().startswith(b"<?xml")


def test_layers_are_those_of_the_batch_program(line, picks):
    layers = talvesk.refract(picks)
    said = batch("refract", line / "demo.otte", "--json", "-")
    assert layers.v1 == said["v1"] and layers.marks == [shot["layers"] for shot in said["shots"]]
    for mine, other in zip(layers.refractors, said["refractors"]):
        depth = [numpy.nan if one is None else one for one in other["depth"]]
        numpy.testing.assert_array_equal(mine["depth"], depth)
    with pytest.raises(talvesk.Error, match="per shot"):
        talvesk.refract(picks, marks=[[1]])


@pytest.mark.parametrize("xy", [13.0, 1e9, -1e9, numpy.nan, numpy.inf])
def test_an_xy_that_cannot_be_taken_is_told(picks, xy):
    with pytest.raises(talvesk.Error, match="the XY of layer 2 must be within 12 m"):
        talvesk.refract(picks, xy=xy)
    assert talvesk.refract(picks, xy=12.0).refractors[0]["xy"] == 12.0


def test_certainty_is_that_of_the_batch_program_whatever_the_threads(line, picks):
    result = talvesk.invert(picks, talvesk.Grid(picks, cell=2.0, depth=16.0), "fitted")
    seen = []
    sure = talvesk.certainty(result, 3, seed=7, isovalues=[2000.0], progress=seen.append)
    said = batch(
        "invert", line / "demo.otte", "--method", "fitted", "--cell-size", 2, "--depth", 16,
        "--certainty", 3, "--seed", 7, "--certainty-depths", 2000, "--json", "-",
    )["certainty"]
    alone = talvesk.certainty(result, 3, seed=7, isovalues=[2000.0], single_thread=True)
    for one in (sure, alone):
        assert one.median.ravel().tolist() == said["median"]
        assert one.p84.ravel().tolist() == said["high"]
    assert seen[-1]["completed"] == 3 and list(sure.isovalues) == [2000.0]
    with pytest.raises(talvesk.Error, match="members must be"):
        talvesk.certainty(result, 1)
    with pytest.raises(talvesk.Error, match="isovalues must be"):
        talvesk.certainty(result, 3, isovalues=[-1.0])


def test_a_layout_of_ones_own(picks):
    line = numpy.column_stack([numpy.arange(12) * 2.0, numpy.zeros(12)])
    survey = talvesk.lay_out(line, line[::5])
    assert len(survey) == 3 and numpy.isnan(survey.times(0)).all()
    with pytest.raises(talvesk.Error, match="not a single usable pick"):
        talvesk.invert(survey)
    for wrong in (line[:, 0], line * numpy.nan):
        with pytest.raises(talvesk.Error, match="geophones must be"):
            talvesk.lay_out(wrong, line)
