"""The picks of a file of another program, inverted here, against the section that it found.

    python3 compare_sgt.py FOLDER PICKS.sgt [SECTION.csv]

SECTION.csv: columns x, z (metres, elevation) and velocity (m/s) of the other program's cells. Without
it the other section is that of the solver with smoothing.
"""

import pathlib
import sys

import matplotlib

matplotlib.use("Agg")
import numpy
from matplotlib import pyplot

import talvesk


def on_grid(points, grid):
    """Velocities of scattered cells at the centres of a grid: those of the nearest cell."""
    x = numpy.broadcast_to(grid.x, grid.shape)
    values = numpy.empty(grid.shape)
    for row in range(grid.shape[0]):
        dx = x[row][:, None] - points[:, 0]
        dz = grid.z[row][:, None] - points[:, 1]
        values[row] = points[numpy.argmin(dx * dx + dz * dz, axis=1), 2]
    return values


def main(folder, picks, section=None):
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    survey = talvesk.read(picks)
    grid = talvesk.Grid(survey, cell=1.0, depth=25.0)
    fitted = talvesk.invert(survey, grid, "fitted")
    if section is None:
        other = talvesk.invert(survey, grid).velocity
    else:
        points = numpy.genfromtxt(section, delimiter=",", skip_header=1)
        other = on_grid(points[:, :3], grid)
    with numpy.errstate(invalid="ignore"):
        difference = numpy.ma.array(100.0 * (other / fitted.velocity - 1.0), mask=~fitted.drawn)
    # Times through the other section, by the tracer that the fit uses.
    theirs = grid.with_velocity(other)
    residuals = []
    for shot, x in enumerate(survey.shots[:, 0]):
        times = talvesk.travel_times(theirs, x, survey.geophones(shot)[:, 0], method="fine")
        residuals.append(times - survey.times(shot))
    rms = 1000.0 * numpy.sqrt(numpy.nanmean(numpy.square(residuals)))
    print(f"Here {fitted.section_rmse_ms:.3f} ms, there {rms:.3f} ms")
    print(f"Median difference of the velocities {numpy.ma.median(abs(difference)):.1f} %")

    figure, axes = pyplot.subplots(2, 1, figsize=(10, 7), sharex=True, constrained_layout=True)
    fitted.plot(axes[0])
    corner_x = numpy.broadcast_to(grid.corner_x, grid.corner_z.shape)
    mesh = axes[1].pcolormesh(
        corner_x, grid.corner_z, difference, cmap="RdBu_r", vmin=-50.0, vmax=50.0
    )
    figure.colorbar(mesh, ax=axes[1], label="There over here [%]")
    axes[1].set_ylim(axes[0].get_ylim())
    axes[1].set_xlabel("Distance [m]")
    axes[1].set_ylabel("Elevation [m]")
    figure.savefig(folder / "comparison.png", dpi=120)


if __name__ == "__main__":
    main(*sys.argv[1:])
