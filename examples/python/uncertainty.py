"""How far a section can be believed: median, spread, and the depth of a refractor with its band.

    python3 uncertainty.py FOLDER PICKS [MEMBERS]
"""

import pathlib
import sys

import matplotlib

matplotlib.use("Agg")
import numpy
from matplotlib import pyplot

import talvesk

ROCK = 2000.0  # m/s


def main(folder, picks, members=24):
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    survey = talvesk.read(picks)
    result = talvesk.invert(survey, talvesk.Grid(survey, cell=1.0, depth=25.0), "fitted")
    sure = talvesk.certainty(result, int(members), seed=1, isovalues=[ROCK])
    for name, chi2, count in sure.models:
        print(f"{name}: chi-square {chi2:.2f}, {count} members")

    grid = result.grid
    with_rays = sure.members_with_rays > 0
    spread = numpy.ma.array(50.0 * (sure.p84 - sure.p16) / sure.median, mask=~with_rays)
    print(f"Median spread where rays pass: {numpy.ma.median(spread):.1f} %")

    figure, axes = pyplot.subplots(2, 1, figsize=(10, 7), sharex=True, constrained_layout=True)
    result.plot(axes[0])
    surface = grid.corner_z[0]
    surface = 0.5 * (surface[1:] + surface[:-1])
    depths = sure.isovalues[ROCK]
    axes[0].fill_between(
        grid.x, surface - depths["p84"], surface - depths["p16"], color="white", alpha=0.5
    )
    axes[0].plot(grid.x, surface - depths["median"], color="white", label=f"{ROCK:.0f} m/s")
    axes[0].legend(loc="lower right", facecolor="0.4", labelcolor="white")
    corner_x = numpy.broadcast_to(grid.corner_x, grid.corner_z.shape)
    mesh = axes[1].pcolormesh(corner_x, grid.corner_z, spread, cmap="magma_r", vmin=0.0, vmax=40.0)
    figure.colorbar(mesh, ax=axes[1], label="Spread [%]")
    axes[1].set_xlabel("Distance [m]")
    axes[1].set_ylabel("Elevation [m]")
    axes[1].set_ylim(axes[0].get_ylim())
    figure.savefig(folder / "uncertainty.png", dpi=120)
    sure.survey.save(folder / "sure.tvsk")


if __name__ == "__main__":
    main(*sys.argv[1:])
