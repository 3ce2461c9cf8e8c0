"""What other packages show a section with. They are imported when they are asked for."""

import numpy


def to_xarray(result):
    """Velocity, coverage and information density over distance and row, with elevations."""
    import xarray

    grid = result.grid
    cells = ("row", "distance")
    return xarray.Dataset(
        {
            "velocity": (cells, result.velocity, {"units": "m/s"}),
            "coverage": (cells, result.coverage_m, {"units": "m", "long_name": "length of rays"}),
            "info_density": (cells, result.info_density, {"long_name": "information density"}),
            "drawn": (cells, result.drawn),
        },
        coords={
            "distance": ("distance", grid.x, {"units": "m"}),
            "elevation": (cells, grid.z, {"units": "m"}),
        },
        attrs={
            "section_rmse_ms": result.section_rmse_ms,
            "section_rms_percent": result.section_rms_percent,
            "chi2": result.chi2,
        },
    )


def plot(result, ax=None, *, covered=True, rays=False, colorbar=True):
    """Draws the section in the colours of the program; returns the axes.

    covered: leave out cells below the rays. rays: draw them, too.
    """
    from matplotlib import colors, pyplot

    if ax is None:
        _, ax = pyplot.subplots(figsize=(10, 4), constrained_layout=True)
    grid = result.grid
    corner_x = numpy.broadcast_to(grid.corner_x, grid.corner_z.shape)
    velocity = numpy.ma.array(result.velocity, mask=~result.drawn if covered else False)
    palette = colors.ListedColormap(result.palette, name="talvesk")
    mesh = ax.pcolormesh(corner_x, grid.corner_z, velocity, cmap=palette, shading="flat")
    if rays:
        for ray in result.rays:
            ax.plot(ray[:, 0], ray[:, 1], color="black", linewidth=0.3, alpha=0.5)
    survey = result.survey
    shots = survey.shots
    places = numpy.unique(
        numpy.concatenate([survey.geophones(shot) for shot in range(len(survey))]), axis=0
    )
    ax.plot(places[:, 0], places[:, 1], linestyle="none", marker="v", color="black", markersize=4)
    ax.plot(shots[:, 0], shots[:, 1], linestyle="none", marker="*", color="#d62728", markersize=9)
    shown = grid.corner_z[:-1, :-1][~velocity.mask] if covered else grid.corner_z
    if shown.size:
        bottom, top = shown.min() - grid.cell, max(shown.max(), shots[:, 1].max())
        ax.set_ylim(bottom - 0.03 * (top - bottom), top + 0.08 * (top - bottom))
    ax.set_xlabel("Distance [m]")
    ax.set_ylabel("Elevation [m]")
    if colorbar:
        ax.figure.colorbar(mesh, ax=ax, label="Velocity [m/s]")
    return ax
