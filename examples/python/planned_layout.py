"""Is a planned layout enough? Times through a ground that one expects, noise, and what comes back.

    python3 planned_layout.py FOLDER
"""

import pathlib
import sys

import matplotlib

matplotlib.use("Agg")
import numpy
from matplotlib import pyplot

import talvesk

SPACING, CHANNELS, NOISE = 2.0, 24, 0.0005  # metres, -, seconds


def expected(grid):
    """Loose cover over rock with a step of 4 m in the middle, m/s per cell."""
    depth = (numpy.arange(grid.shape[0]) + 0.5)[:, None] * grid.cell
    cover = numpy.where(grid.x < 23.0, 4.0, 8.0)[None, :]
    return numpy.where(depth < cover, 600.0, 2600.0)


def laid_out(shots):
    geophones = numpy.column_stack([numpy.arange(CHANNELS) * SPACING, numpy.zeros(CHANNELS)])
    return talvesk.lay_out(geophones, numpy.column_stack([shots, numpy.zeros(len(shots))]))


def recorded(shots, seed):
    """What the layout would record, by a grid four times finer than that of the inversion."""
    survey = laid_out(shots)
    fine = talvesk.Grid(survey, cell=0.25, depth=15.0)
    fine = fine.with_velocity(expected(fine))
    noise = numpy.random.default_rng(seed)
    for shot, x in enumerate(survey.shots[:, 0]):
        times = talvesk.travel_times(fine, x, survey.geophones(shot)[:, 0], method="fine")
        times = numpy.maximum(times + noise.normal(0.0, NOISE, len(times)), NOISE)
        survey.set_picks(shot, times, numpy.full(len(times), NOISE))
    return survey


def main(folder):
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    plans = {
        "3 shots": numpy.array([-1.0, 23.0, 47.0]),
        "7 shots": numpy.array([-9.0, -1.0, 11.0, 23.0, 35.0, 47.0, 55.0]),
    }
    figure, axes = pyplot.subplots(2, 1, figsize=(9, 7), sharex=True, constrained_layout=True)
    for ax, (name, shots) in zip(axes, plans.items()):
        survey = recorded(shots, seed=1)
        result = talvesk.invert(survey, talvesk.Grid(survey, cell=1.0, depth=15.0), "fitted")
        true = expected(result.grid)
        off = 100.0 * numpy.abs(result.velocity / true - 1.0)[result.drawn]
        print(f"{name}: chi-square {result.chi2:.2f}, median error {numpy.median(off):.1f} %")
        result.plot(ax)
        ax.step([-9.0, 23.0, 55.0], [-4.0, -8.0, -8.0], where="post", color="white", linestyle="--")
        ax.set_title(name, loc="left")
    figure.savefig(folder / "planned_layout.png", dpi=120)


if __name__ == "__main__":
    main(sys.argv[1])
