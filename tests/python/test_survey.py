import numpy
import pytest
from conftest import batch

import talvesk


def test_shot_files_give_traces_and_positions(shots):
    survey = talvesk.read(shots)
    assert len(survey) == 11
    assert survey.files == [str(path) for path in shots]
    assert survey.traces(2).shape == (48, len(survey.trace(2, 0)))
    numpy.testing.assert_array_equal(survey.traces(2)[7], survey.trace(2, 7))
    assert survey.shots.shape == (11, 2) and survey.geophones(3).shape == (48, 2)
    assert survey.t0() == pytest.approx(0.0, abs=survey.dt() / 2)


def test_a_trace_is_a_view_that_outlives_its_survey_and_cannot_be_written(shots):
    survey = talvesk.read(shots[:1])
    samples = survey.trace(0, 5)
    assert samples.base is not None
    assert samples.ctypes.data == survey.trace(0, 5).ctypes.data
    before = samples.copy()
    del survey
    numpy.testing.assert_array_equal(samples, before)
    with pytest.raises(ValueError):
        samples[0] = 1.0


@pytest.mark.parametrize("method", ["single", "joint"])
def test_picks_are_those_of_the_batch_program(shots, method, tmp_path):
    survey = talvesk.read(shots)
    survey.pick(method)
    said = batch("pick", *shots, "--method", method, "-o", tmp_path / "p.otte", "--json", "-")
    for shot, record in enumerate(said["shots"]):
        times = numpy.array(record["times"])
        times[times <= 0.0] = numpy.nan
        numpy.testing.assert_array_equal(survey.times(shot), times)


def test_filtered_traces_are_picked_when_asked_for(shots):
    survey = talvesk.read(shots[:2])
    survey.filter("band", low=200.0)
    assert not numpy.array_equal(survey.traces(0), survey.traces(0, filtered=True))
    with pytest.raises(talvesk.Error, match="none of agc"):
        survey.filter("notch")


def test_picks_are_set_with_errors_and_removed(picks):
    times = picks.times(1)
    times[3] = numpy.nan
    errors = numpy.full(len(times), 0.001)
    copy = picks.copy()
    copy.set_picks(1, times, errors)
    numpy.testing.assert_array_equal(copy.times(1), times)
    assert numpy.isnan(copy.errors(1)[3]) and copy.errors(1)[4] == 0.001
    assert not numpy.isnan(picks.times(1)[3])
    for wrong in (times[:-1], numpy.full(len(times), -1.0), numpy.full(len(times), numpy.inf)):
        with pytest.raises(talvesk.Error):
            copy.set_picks(1, wrong)
    with pytest.raises(IndexError):
        copy.times(11)


def legs(count):
    """Geophones 5 m apart on two legs at a right angle, on ground that rises by 1 in 5."""
    step = numpy.arange(count)
    half = count // 2
    east = 652000.0 + 5.0 * numpy.minimum(step, half)
    north = 5074000.0 + 5.0 * numpy.maximum(step - half, 0)
    return numpy.column_stack([east, north, 100.0 + step])


def test_positions_as_surveyed_become_distances(picks, tmp_path):
    places = legs(len(picks.geophones()))
    before = picks.geophones()
    survey = picks.copy()
    with pytest.warns(UserWarning) as told:
        said = survey.set_positions(places, line="bent", epsg=32632, first_distance=10)
    assert any("by the distances so far" in str(one.message) for one in told), "shots have no row"
    numpy.testing.assert_allclose(survey.geophones()[:, 0], 10.0 + 5.0 * numpy.arange(48))
    numpy.testing.assert_array_equal(survey.geophones()[:, 1], places[:, 2])
    numpy.testing.assert_allclose(said["across"], 0.0, atol=1e-9)
    assert said["epsg"] == 32632 and said["spacing"] == pytest.approx(5.0)
    numpy.testing.assert_array_equal(survey.times(3), picks.times(3))
    numpy.testing.assert_array_equal(picks.geophones(), before)
    survey.save(tmp_path / "line.tvsk")
    assert batch("info", tmp_path / "line.tvsk", "--json", "-")["crs"] == 32632

    table = tmp_path / "points.csv"
    rows = [f"G{i + 1};{e};{n};{z}" for i, (e, n, z) in enumerate(places)]
    table.write_text("Name;East;North;Elevation\n" + "\n".join(rows) + "\n")
    by_table = picks.copy()
    with pytest.warns(UserWarning):
        by_table.set_positions(table, line="bent", epsg=32632, first_distance=10)
    numpy.testing.assert_array_equal(by_table.geophones(), survey.geophones())
    numpy.testing.assert_array_equal(by_table.shots, survey.shots)


@pytest.mark.parametrize(
    "places, options, complaint",
    [
        (legs(48)[:, :1], {}, "easting, northing and elevation"),
        (legs(48) * numpy.nan, {}, "finite"),
        (legs(48), {"line": "crooked"}, "none of straight, ends, bent"),
        (legs(48), {"stations": "number"}, "in their order"),
        (legs(48)[:1], {}, "places: "),
        ("none.csv", {}, "none.csv"),
    ],
)
def test_positions_that_make_no_line_leave_the_survey(picks, places, options, complaint):
    before = picks.geophones()
    with pytest.raises(talvesk.Error, match=complaint):
        picks.set_positions(places, **options)
    numpy.testing.assert_array_equal(picks.geophones(), before)


def test_files_go_and_come(picks, tmp_path):
    picks.set_picks(0, picks.times(0), numpy.full(48, 0.0005))
    picks.title = "Line <7>"
    for name in ("line.tvsk", "line.sgt"):
        if name.endswith(".tvsk"):
            picks.save(tmp_path / name)
        else:
            with pytest.warns(UserWarning, match="the error of 480 picks is not known"):
                picks.write_picks(tmp_path / name)
        back = talvesk.read(tmp_path / name)
        numpy.testing.assert_allclose(back.times(4), picks.times(4), rtol=1e-9)
        numpy.testing.assert_allclose(back.errors(0), picks.errors(0), rtol=1e-9)
    assert talvesk.read(tmp_path / "line.tvsk").title == "Line <7>"


def test_the_table_has_a_row_per_time(picks):
    pandas = pytest.importorskip("pandas")
    table = picks.table()
    assert isinstance(table, pandas.DataFrame) and len(table) == 528
    assert table.query("shot == 2 and channel == 9").time.item() == picks.times(2)[9]


def test_what_is_no_survey_is_told(tmp_path, line):
    (tmp_path / "bad.tvsk").write_bytes(b"PK\x03\x04 no project")
    for path, text in (("none.otte", "no such file"), ("bad.tvsk", "not a valid project")):
        with pytest.raises(talvesk.Error, match=text):
            talvesk.read(tmp_path / path)
    with pytest.raises(talvesk.Error, match="only one"):
        talvesk.read([line / "demo.otte", line / "demo.otte"])
    with pytest.raises(talvesk.Error, match="no file"):
        talvesk.read([])


def test_samples_on_disk_give_the_same_bits_and_leave_memory(shots, tmp_path):
    before = talvesk.samples_in_use()
    memory = talvesk.read(shots)
    used = talvesk.samples_in_use()
    disk = talvesk.read(shots, on_disk=True)
    now = talvesk.samples_in_use()
    assert now["memory"] == used["memory"]
    assert now["disk"] - before["disk"] == used["memory"] - before["memory"] > 0
    for survey in (memory, disk):
        survey.filter("agc")
        survey.pick("joint", filtered=True)
    assert talvesk.samples_in_use()["disk"] - before["disk"] == 2 * (now["disk"] - before["disk"])
    for shot in range(len(shots)):
        numpy.testing.assert_array_equal(disk.traces(shot), memory.traces(shot))
        numpy.testing.assert_array_equal(disk.times(shot), memory.times(shot))
        numpy.testing.assert_array_equal(
            disk.traces(shot, filtered=True), memory.traces(shot, filtered=True)
        )
    view = disk.trace(1, 2)
    samples = memory.trace(1, 2).copy()
    del disk, survey
    numpy.testing.assert_array_equal(view, samples)
    del view, memory
    assert talvesk.samples_in_use() == before
