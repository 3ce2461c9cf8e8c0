import csv
import os
import pathlib
import shutil
import signal
import subprocess
import sys

import pytest
from conftest import batch

import talvesk
from talvesk import _campaign, _cluster

RECIPE = {
    "grid": {"cell": 2.0, "depth": 16.0},
    "invert": {"iterations": 3},
    "outputs": {"project": True, "sgt": True},
}


@pytest.fixture(scope="module")
def lines(line, tmp_path_factory):
    """Two lines that can be inverted, and two that cannot."""
    folder = tmp_path_factory.mktemp("campaign")
    (folder / "north").mkdir()
    for shot in line.glob("shot0*.sg2"):
        shutil.copy(shot, folder / "north")
    shutil.copy(line / "demo.otte", folder / "south.otte")
    (folder / "torn").mkdir()
    (folder / "torn" / "a.sg2").write_bytes(b"nothing")
    (folder / "odd & <bad>.otte").write_text("nonsense\n")
    return folder


def test_every_line_has_a_row_and_the_bad_ones_their_reason(lines, tmp_path):
    seen = []
    rows = talvesk.campaign(lines, RECIPE, tmp_path, progress=seen.append)
    by_name = {row["line"]: row for row in rows}
    assert [row["line"] for row in rows] == sorted(by_name) and len(seen) == 4
    assert by_name["north"]["status"] == by_name["south.otte"]["status"] == "done"
    assert "no SEG-2 file" in by_name["torn"]["failure"]
    with open(tmp_path / "campaign.csv", newline="", encoding="utf-8") as file:
        assert [row["line"] for row in csv.DictReader(file)] == sorted(by_name)
    page = (tmp_path / "index.html").read_text()
    assert "odd &amp; &lt;bad&gt;.otte" in page and "<bad>" not in page
    assert 'href="south.otte.tvsk"' in page and "Velocity section of north" in page
    assert f">{by_name['north']['section_rmse_ms']:.2f}</td>" in page
    assert "default-src 'none'" in page and str(lines) not in page
    # A line is that of the batch program by the same recipe.
    said = batch(
        "invert", *sorted((lines / "north").iterdir()), "--pick-method", "joint", "--method",
        "fitted", "--cell-size", 2, "--depth", 16, "--iterations", 3, "--json", "-",
    )
    assert by_name["north"]["chi2"] == said["chi2"]
    assert talvesk.read(tmp_path / "north.tvsk").times(2).tolist() == pytest.approx(
        talvesk.read(tmp_path / "north.sgt").times(2).tolist(), rel=1e-9, nan_ok=True
    )


@pytest.mark.parametrize("filter", ["agc", "none of them"])
def test_a_line_is_gone_as_soon_as_its_row_is_there(lines, tmp_path, filter):
    before = talvesk.samples_in_use()
    files = sorted((lines / "north").iterdir())
    recipe = {**RECIPE, "read": {"on_disk": True}, "filter": {"kind": filter}}
    for _ in range(2):
        row, _, _ = _campaign.run_line("north", files, tmp_path, recipe)
        assert row["status"] == ("done" if filter == "agc" else "failed")
        assert talvesk.samples_in_use() == before


def test_a_recipe_is_read_from_a_file_and_its_slips_are_told(lines, tmp_path):
    path = tmp_path / "recipe.toml"
    path.write_text('[pick]\nmethod = "single"\n[invert]\nsigma = [0.5, 3.0]\n')
    assert _campaign.read_recipe(path)["invert"]["sigma"] == [0.5, 3.0]
    for text, told in (("[pikc]\n", "no part"), ("[pick]\nmetod = 1\n", "no 'metod'"), ("[", "")):
        path.write_text(text)
        with pytest.raises(talvesk.Error, match=told):
            talvesk.campaign(lines, path, tmp_path)
    with pytest.raises(talvesk.Error, match="no line"):
        talvesk.campaign(lines, {"lines": {"pattern": "west*"}}, tmp_path)


@pytest.mark.parametrize(
    "recipe, told",
    [
        (5, "a TOML file or a dict"),
        ({"grid": 5}, "must have words"),
        ({"grid": {"cell": "wide"}}, "cell must be a number"),
        ({"grid": {"nodes": 2.5}}, "nodes must be a whole number"),
        ({"grid": {"nodes": True}}, "nodes must be a whole number"),
        ({"lines": {"pattern": ["a"]}}, "pattern must be a text"),
        ({"outputs": {"project": "yes"}}, "true or false"),
    ],
)
def test_what_no_recipe_has_is_an_error_of_talvesk(lines, tmp_path, recipe, told):
    with pytest.raises(talvesk.Error, match=told):
        talvesk.campaign(lines, recipe, tmp_path)


def test_folders_that_are_none_are_errors_of_talvesk(lines, tmp_path):
    with pytest.raises(talvesk.Error, match="no such folder"):
        talvesk.campaign(tmp_path / "gone", {}, tmp_path)
    (tmp_path / "file").write_text("")
    with pytest.raises(talvesk.Error, match="Cannot make the folder"):
        talvesk.campaign(lines, RECIPE, tmp_path / "file")


def test_a_text_is_a_line_only_where_it_holds_picks(line, tmp_path):
    shutil.copy(line / "demo.otte", tmp_path / "a.otte")
    (tmp_path / "notes.txt").write_text("Rain all day.\nShot 3 twice.\n")
    (tmp_path / "costs.csv").write_text("item;euro\ndiesel;40\n")
    with pytest.warns(UserWarning, match="holds no picks") as told:
        assert list(_campaign.find_lines(tmp_path, {})) == ["a.otte"]
    assert len(told) == 2


@pytest.fixture(scope="module")
def client():
    distributed = pytest.importorskip("distributed")
    with distributed.LocalCluster(
        n_workers=2, threads_per_worker=1, dashboard_address=None, host="127.0.0.1"
    ) as cluster, distributed.Client(cluster) as client:
        yield client


def test_workers_give_the_same_rows_as_threads(lines, tmp_path, client):
    alone = talvesk.campaign(lines, RECIPE, tmp_path / "alone")
    spread = talvesk.campaign(lines, RECIPE, tmp_path / "spread", client=client)
    for row in alone + spread:
        row.pop("seconds")
        row["failure"] = row["failure"].replace("spread", "alone")
    assert alone == spread


def die_once(mark):
    """Kills its worker the first time, and tells how often it was run."""
    with open(mark, "a") as file:
        file.write("x")
    if os.path.getsize(mark) == 1:
        os.kill(os.getpid(), signal.SIGKILL)
    return os.path.getsize(mark)


def test_a_task_whose_worker_dies_runs_elsewhere(tmp_path, client):
    marks = {name: (str(tmp_path / name),) for name in ("a", "b", "c")}
    assert dict(_cluster.each(client, die_once, marks)).keys() == marks.keys()
    assert all(pathlib.Path(*mark).stat().st_size >= 2 for mark in marks.values())


def refuse(text):
    raise ValueError(text)


def test_what_a_task_raises_is_raised(client):
    with pytest.raises(ValueError, match="no good"):
        list(_cluster.each(client, refuse, {1: ("no good",)}))


def test_the_example_of_machines_runs_on_this_one(lines, tmp_path):
    if shutil.which("dask-scheduler") is None:
        pytest.skip("no Dask")
    examples = pathlib.Path(__file__).parents[2] / "examples" / "cluster"
    recipe = tmp_path / "recipe.toml"
    recipe.write_text("[grid]\ncell = 2.0\ndepth = 16.0\n[invert]\niterations = 2\n")
    done = subprocess.run(
        ["sh", examples / "machines.sh", lines, recipe, tmp_path / "out", "localhost"],
        capture_output=True,
        text=True,
        timeout=240,
        env={**os.environ, "PYTHON": sys.executable},
    )
    assert done.returncode == 1, done.stderr  # two lines are bad
    assert "2 of 4 lines inverted" in done.stdout
    assert "torn failed" in done.stderr and (tmp_path / "out" / "south.otte.tvsk").exists()
