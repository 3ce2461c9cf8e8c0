"""A campaign: many lines, one recipe, one task per line, and a table of what came of each."""

import csv
import fnmatch
import html
import pathlib
import tomllib
import traceback

from . import _talvesk

COLUMNS = (
    "line",
    "status",
    "shots",
    "picks",
    "chi2",
    "section_rmse_ms",
    "suspects",
    "seconds",
    "warnings",
    "failure",
)

_SHOTS = (".sg2", ".seg2", ".dat", ".sgy", ".segy", ".su")
_OUTPUTS = {"project": ".tvsk", "sgt": ".sgt", "vtk": ".vtu", "picture": ".png"}
_SECTIONS = {
    "lines": {"pattern", "files"},
    "read": {"reader", "time_unit", "as_recorded", "on_disk"},
    "mend": {"sure"},
    "filter": {"kind", "low", "high", "low_order", "high_order"},
    "pick": {"method", "filtered", "slowest", "fastest", "worst"},
    "grid": {"cell", "depth", "nodes", "layers"},
    "invert": {
        "method", "iterations", "min_velocity", "max_velocity", "solver_iterations", "smoothing",
        "smoothing_type", "symmetric", "coarse_to_fine", "reference", "sigma", "robust", "blocky",
        "statics",
    },
    "certainty": {"members", "seed", "isovalues"},
    "outputs": set(_OUTPUTS),
}  # fmt: skip


def read_recipe(recipe):
    """A recipe as a dict, from a TOML file or a dict; raises Error for what no recipe has."""
    if not isinstance(recipe, dict):
        try:
            with open(recipe, "rb") as file:
                recipe = tomllib.load(file)
        except (OSError, tomllib.TOMLDecodeError) as error:
            raise _talvesk.Error(f"{recipe}: {error}") from error
    for section, values in recipe.items():
        if section not in _SECTIONS:
            raise _talvesk.Error(f"[{section}] is no part of a recipe: {', '.join(_SECTIONS)}")
        for key in values:
            if key not in _SECTIONS[section]:
                known = ", ".join(sorted(_SECTIONS[section]))
                raise _talvesk.Error(f"[{section}] has no '{key}': {known}")
    return recipe


def find_lines(folder, recipe):
    """The lines of a campaign: name and files, by name.

    A folder with shot files is a line, and so is a file of picks or a project in the folder itself.
    """
    folder = pathlib.Path(folder)
    lines = recipe.get("lines", {})
    pattern = lines.get("pattern", "*")
    files = lines.get("files")
    found = {}
    for path in sorted(folder.iterdir()):
        if not fnmatch.fnmatch(path.name, pattern):
            continue
        if path.is_dir():
            inside = sorted(one for one in path.iterdir() if _is_input(one, files))
            if inside:
                found[path.name] = inside
        elif path.suffix.lower() in (".otte", ".sgt", ".tvsk", ".csv", ".xyz", ".txt"):
            found[path.name] = [path]
    if not found:
        raise _talvesk.Error(f"{folder}: there is no line in it that the recipe asks for")
    return found


def _is_input(path, files):
    if not path.is_file():
        return False
    return fnmatch.fnmatch(path.name, files) if files else path.suffix.lower() in _SHOTS


def _survey_of(files, recipe):
    reading = dict(recipe.get("read", {}))
    mend = recipe.get("mend")
    as_recorded = reading.pop("as_recorded", False)
    # Mends are found in records as they were recorded.
    survey = _talvesk.read(files, as_recorded=as_recorded or mend is not None, **reading)
    recorded = files[0].suffix.lower() in _SHOTS or len(files) > 1
    if mend is not None and recorded:
        survey.mend(**mend)
        if not as_recorded:
            survey.count_from_shot()
    if not recorded:
        return survey
    if "filter" in recipe:
        survey.filter(**recipe["filter"])
    survey.pick(**{"method": "joint", **recipe.get("pick", {})}, threads=1)
    return survey


def _write(result, survey, stem, outputs):
    for key, suffix in _OUTPUTS.items():
        if not outputs.get(key, key == "project"):
            continue
        path = stem.with_name(stem.name + suffix)
        if key == "project":
            survey.save(path)
        elif key == "sgt":
            survey.write_picks(path)
        elif key == "vtk":
            result.to_vtk(path)
        else:
            _draw(result, path)


def _draw(result, path):
    # Without pyplot, which several threads cannot share.
    from matplotlib.backends.backend_agg import FigureCanvasAgg
    from matplotlib.figure import Figure

    figure = Figure(figsize=(10, 4), layout="constrained")
    FigureCanvasAgg(figure)
    result.plot(figure.add_subplot())
    figure.savefig(path, dpi=100)


def run_line(name, files, out, recipe):
    """One line from its files to its outputs; what goes wrong is in the row, never raised."""
    row = dict.fromkeys(COLUMNS, "")
    row["line"] = name
    _talvesk._collect_warnings()
    try:
        survey = _survey_of([pathlib.Path(file) for file in files], recipe)
        grid = _talvesk.Grid(survey, **recipe["grid"]) if "grid" in recipe else None
        options = {"method": "fitted", **recipe.get("invert", {})}
        result = _talvesk.invert(survey, grid, **options, single_thread=True)
        finished = result.survey
        if "certainty" in recipe:
            sure = _talvesk.certainty(result, **recipe["certainty"], single_thread=True)
            finished = sure.survey
        _write(result, finished, pathlib.Path(out) / name, recipe.get("outputs", {}))
        row.update(
            status="done",
            shots=len(survey),
            picks=result.picks_used,
            chi2=result.chi2,
            section_rmse_ms=result.section_rmse_ms,
            suspects=result.suspect_count,
            seconds=round(result.computing_s, 3),
        )
    except _talvesk.Error as error:
        row.update(status="failed", failure=str(error))
    except Exception as error:  # a fault of ours or of the recipe must not end the campaign
        last = traceback.extract_tb(error.__traceback__)[-1]
        row.update(status="failed", failure=f"{type(error).__name__}: {error} ({last.name})")
    row["warnings"] = "; ".join(dict.fromkeys(_talvesk._collected_warnings()))
    return row


def campaign(folder, recipe, out, *, client=None, progress=None):
    """Inverts all lines of a folder by one recipe.

    recipe: a TOML file or a dict. out: folder of the outputs, of campaign.csv and index.html.
    client: a Dask client whose workers take a line each; without one, threads do. progress: called
    with a dict after every line. Returns the rows of the table, ordered by line.
    """
    recipe = read_recipe(recipe)
    lines = find_lines(folder, recipe)
    out = pathlib.Path(out)
    out.mkdir(parents=True, exist_ok=True)
    tasks = [(name, [str(file) for file in files], str(out), recipe) for name, files in lines.items()]
    rows = []
    for row in _run(tasks, client):
        rows.append(row)
        if progress is not None:
            progress({"completed": len(rows), "total": len(tasks), "line": row["line"]})
    rows.sort(key=lambda row: row["line"])
    _write_table(rows, out / "campaign.csv")
    _write_page(rows, out / "index.html", recipe)
    return rows


def _run(tasks, client):
    if client is None:
        from concurrent.futures import ThreadPoolExecutor, as_completed

        with ThreadPoolExecutor() as pool:
            futures = [pool.submit(run_line, *task) for task in tasks]
            for future in as_completed(futures):
                yield future.result()
        return
    from ._cluster import each

    for _, row in each(client, run_line, {task[0]: task for task in tasks}):
        yield row


def _write_table(rows, path):
    with open(path, "w", newline="", encoding="utf-8") as file:
        writer = csv.DictWriter(file, COLUMNS)
        writer.writeheader()
        writer.writerows(rows)


def _cell(value):
    return html.escape(f"{value:.4g}" if isinstance(value, float) else str(value))


def _write_page(rows, path, recipe):
    """One page that opens anywhere: the table, with the pictures where the recipe asks for them."""
    done = sum(row["status"] == "done" for row in rows)
    picture = bool(recipe.get("outputs", {}).get("picture"))
    head = "".join(f"<th scope=col>{_cell(name)}</th>" for name in COLUMNS)
    body = []
    for row in rows:
        cells = "".join(f"<td>{_cell(row[name])}</td>" for name in COLUMNS)
        body.append(f"<tr class={row['status']}>{cells}</tr>")
        if picture and row["status"] == "done":
            name = html.escape(row["line"], quote=True)
            body.append(
                f'<tr><td colspan={len(COLUMNS)}><img loading=lazy src="{name}.png" '
                f'alt="Velocity section of {name}"></td></tr>'
            )
    page = f"""<!DOCTYPE html>
<html lang="en"><meta charset="utf-8"><title>Campaign</title>
<style>body{{font-family:sans-serif;margin:2em}}table{{border-collapse:collapse}}
td,th{{border:1px solid #bbb;padding:.3em .6em;text-align:left;vertical-align:top}}
.failed{{background:#fde8e8}}img{{max-width:60em}}</style>
<h1>Campaign</h1><p>{done} of {len(rows)} lines inverted.</p>
<table><thead><tr>{head}</tr></thead><tbody>{"".join(body)}</tbody></table></html>
"""
    path.write_text(page, encoding="utf-8")
