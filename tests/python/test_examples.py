import csv
import os
import pathlib
import re
import subprocess
import sys

import pytest
from conftest import batch

pytest.importorskip("matplotlib")

EXAMPLES = pathlib.Path(__file__).parents[2] / "examples" / "python"
PNG = b"\x89PNG\r\n"


def run(script, *arguments):
    """What an example prints."""
    done = subprocess.run(
        [sys.executable, "-B", EXAMPLES / script, *map(str, arguments)],
        check=True,
        capture_output=True,
        text=True,
        env=os.environ,
    )
    return done.stdout


def number(pattern, text):
    return float(re.search(pattern, text).group(1))


@pytest.fixture(scope="module")
def sgt(shots, tmp_path_factory):
    path = tmp_path_factory.mktemp("sgt") / "picks.sgt"
    batch("pick", *shots, "--method", "joint", "--sgt", path)
    return path


def test_shots_to_section(shots, tmp_path):
    said = run("shots_to_section.py", tmp_path, *shots)
    assert number(r"chi-square ([\d.]+)$", said.strip()) == pytest.approx(1.0, abs=0.05)
    assert (tmp_path / "section.png").read_bytes().startswith(PNG)
    assert (tmp_path / "line.tvsk").exists()


def test_uncertainty(sgt, tmp_path):
    said = run("uncertainty.py", tmp_path, sgt, 4)
    assert 0.0 < number(r"pass: ([\d.]+) %", said) < 50.0
    assert (tmp_path / "uncertainty.png").read_bytes().startswith(PNG)


def test_planned_layout(tmp_path):
    said = run("planned_layout.py", tmp_path)
    assert len(said.splitlines()) == 2
    for line in said.splitlines():
        assert number(r"chi-square ([\d.]+)", line) == pytest.approx(1.0, abs=0.2)
        assert number(r"error ([\d.]+)", line) < 10.0
    assert (tmp_path / "planned_layout.png").read_bytes().startswith(PNG)


def test_campaign(line, sgt, tmp_path):
    (tmp_path / "bad.otte").write_text("nonsense\n")
    run("campaign.py", tmp_path / "out", line / "demo.otte", sgt, tmp_path / "bad.otte")
    with open(tmp_path / "out" / "campaign.csv", newline="", encoding="utf-8") as file:
        rows = {row["line"]: row for row in csv.DictReader(file)}
    assert set(rows) == {"demo", "picks", "bad"}
    assert "first line" in rows["bad"]["failure"] and rows["bad"]["chi2"] == ""
    assert float(rows["picks"]["chi2"]) == pytest.approx(1.0, abs=0.05)
    assert (tmp_path / "out" / "campaign.png").read_bytes().startswith(PNG)


def test_compare_sgt(sgt, tmp_path):
    said = run("compare_sgt.py", tmp_path, sgt)
    assert number(r"Here ([\d.]+) ms", said) < number(r"there ([\d.]+) ms", said)
    assert (tmp_path / "comparison.png").read_bytes().startswith(PNG)
