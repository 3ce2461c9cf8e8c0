"""A campaign: many lines inverted alike, a core each, and a table of what came of them.

    python3 campaign.py FOLDER PICKS...

A line that fails is told in the table and does not stop the others.
"""

import concurrent.futures
import csv
import pathlib
import sys

import matplotlib

matplotlib.use("Agg")
from matplotlib import pyplot

import talvesk

COLUMNS = ["line", "shots", "picks", "chi2", "section_rmse_ms", "suspects", "failure"]


def invert(path, folder):
    """One line of the table; its project goes into the folder."""
    row = dict.fromkeys(COLUMNS, "")
    row["line"] = path.stem
    try:
        survey = talvesk.read(path)
        result = talvesk.invert(survey, method="fitted", single_thread=True)
        result.survey.save(folder / f"{path.stem}.tvsk")
    except talvesk.Error as error:
        row["failure"] = str(error)
        return row
    row.update(shots=len(survey), picks=result.picks_used, suspects=len(result.suspects))
    row.update(chi2=result.chi2, section_rmse_ms=result.section_rmse_ms)
    return row


def main(folder, *picks):
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    with concurrent.futures.ThreadPoolExecutor() as pool:
        rows = list(pool.map(lambda path: invert(pathlib.Path(path), folder), sorted(picks)))
    with open(folder / "campaign.csv", "w", newline="", encoding="utf-8") as file:
        writer = csv.DictWriter(file, COLUMNS)
        writer.writeheader()
        writer.writerows(rows)
    done = [row for row in rows if not row["failure"]]
    print(f"{len(done)} of {len(rows)} lines inverted")

    figure, ax = pyplot.subplots(figsize=(8, 4), constrained_layout=True)
    ax.plot([row["line"] for row in done], [row["chi2"] for row in done], "o")
    ax.axhline(1.0, color="0.6")
    ax.set_ylabel("Chi-square of the section")
    ax.tick_params(axis="x", rotation=90)
    figure.savefig(folder / "campaign.png", dpi=120)


if __name__ == "__main__":
    main(*sys.argv[1:])
