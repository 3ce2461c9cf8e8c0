"""From shot files to a section: pick along the line, fit to the errors of the picks, draw.

    python3 shots_to_section.py FOLDER SHOTS...
"""

import pathlib
import sys

import matplotlib
import numpy

matplotlib.use("Agg")
from matplotlib import pyplot

import talvesk


def gather(survey, shot, ax):
    """One shot with its picks: time downward, a trace per geophone."""
    traces = survey.traces(shot)
    places = survey.geophones(shot)[:, 0]
    times = 1000.0 * (survey.t0(shot) + survey.dt(shot) * numpy.arange(traces.shape[1]))
    step = abs(places[1] - places[0])
    for x, trace in zip(places, traces):
        ax.plot(x + 0.6 * step * trace / abs(trace).max(), times, color="0.3", linewidth=0.4)
    errors = 1000.0 * survey.errors(shot)
    ax.errorbar(places, 1000.0 * survey.times(shot), yerr=errors, fmt=".", color="#d62728")
    ax.set_ylim(80.0, 0.0)
    ax.set_ylabel("Time [ms]")
    ax.set_title(f"Shot {shot + 1}", loc="left")


def main(folder, shots):
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    survey = talvesk.read(sorted(shots))
    survey.pick("joint")
    result = talvesk.invert(survey, method="fitted")
    print(result.outcome)
    print(f"Section: {result.section_rmse_ms:.3f} ms, chi-square {result.chi2:.3f}")

    figure, axes = pyplot.subplots(
        2, 1, figsize=(10, 8), sharex=True, height_ratios=[2, 1], constrained_layout=True
    )
    gather(survey, len(survey) // 2, axes[0])
    result.plot(axes[1], rays=True)
    figure.savefig(folder / "section.png", dpi=120)
    result.survey.save(folder / "line.tvsk")


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2:])
