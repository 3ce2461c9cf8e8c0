"""A campaign: many lines, one recipe, one task per line, and a table of what came of each."""

import csv
import fnmatch
import os
import pathlib
import tomllib
import traceback
import warnings

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
_PICKS = (".otte", ".sgt", ".tvsk")
_PERHAPS_PICKS = (".csv", ".xyz", ".txt")  # by what is in them
_NUMBER = (int, float)
_LIST = (list, tuple)
# What a recipe may say, and of what kind each of it is.
_SECTIONS = {
    "lines": {"pattern": str, "files": str},
    "read": {"reader": str, "time_unit": str, "as_recorded": bool, "on_disk": bool},
    "mend": {"sure": _NUMBER},
    "filter": {"kind": str, "low": _NUMBER, "high": _NUMBER, "low_order": int, "high_order": int},
    "pick": {
        "method": str, "filtered": bool, "slowest": _NUMBER, "fastest": _NUMBER, "worst": _NUMBER,
    },
    "grid": {"cell": _NUMBER, "depth": _NUMBER, "nodes": int, "layers": _LIST},
    "invert": {
        "method": str, "iterations": int, "min_velocity": _NUMBER, "max_velocity": _NUMBER,
        "solver_iterations": int, "smoothing": int, "smoothing_type": str, "symmetric": bool,
        "coarse_to_fine": bool, "reference": str, "sigma": _LIST, "robust": bool, "blocky": bool,
        "statics": bool,
    },
    "certainty": {"members": int, "seed": int, "isovalues": _LIST},
    "outputs": dict.fromkeys(_OUTPUTS, bool),
}  # fmt: skip


def read_recipe(recipe):
    """A recipe as a dict, from a TOML file or a dict; raises Error for what no recipe has."""
    if not isinstance(recipe, dict):
        if not isinstance(recipe, (str, os.PathLike)):
            raise _talvesk.Error(f"A recipe is a TOML file or a dict, not {recipe!r}")
        try:
            with open(recipe, "rb") as file:
                recipe = tomllib.load(file)
        except (OSError, ValueError) as error:
            raise _talvesk.Error(f"{recipe}: {error}") from error
    for section, values in recipe.items():
        if section not in _SECTIONS:
            raise _talvesk.Error(f"[{section}] is no part of a recipe: {', '.join(_SECTIONS)}")
        if not isinstance(values, dict):
            raise _talvesk.Error(f"[{section}] must have words with values, not {values!r}")
        for key, value in values.items():
            _check(section, key, value)
    return recipe


def _check(section, key, value):
    words = _SECTIONS[section]
    if key not in words:
        raise _talvesk.Error(f"[{section}] has no '{key}': {', '.join(sorted(words))}")
    kind = words[key]
    # True counts as a number in Python, and nowhere else.
    if isinstance(value, kind) and (kind is bool or not isinstance(value, bool)):
        return
    wanted = {str: "a text", bool: "true or false", int: "a whole number", _LIST: "a list"}
    raise _talvesk.Error(f"[{section}] {key} must be {wanted.get(kind, 'a number')}, not {value!r}")


def find_lines(folder, recipe):
    """The lines of a campaign: name and files, by name.

    A folder with shot files is a line, and so is a file of picks or a project in the folder itself.
    Of tables and texts those are that hold picks; a warning names the others.
    """
    folder = pathlib.Path(folder)
    if not folder.is_dir():
        raise _talvesk.Error(f"{folder}: there is no such folder")
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
        elif _is_picks(path):
            found[path.name] = [path]
    if not found:
        raise _talvesk.Error(f"{folder}: there is no line in it that the recipe asks for")
    return found


def _is_picks(path):
    suffix = path.suffix.lower()
    if suffix in _PICKS or suffix not in _PERHAPS_PICKS:
        return suffix in _PICKS
    if _talvesk._holds_picks(path):
        return True
    warnings.warn(f"{path.name} holds no picks and is not taken for a line", stacklevel=4)
    return False


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
    """Writes the outputs of a line, and tells their names."""
    written = []
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
        written.append(path.name)
    return written


def _draw(result, path):
    # Without pyplot, which several threads cannot share.
    from matplotlib.backends.backend_agg import FigureCanvasAgg
    from matplotlib.figure import Figure

    figure = Figure(figsize=(10, 4), layout="constrained")
    FigureCanvasAgg(figure)
    result.plot(figure.add_subplot())
    figure.savefig(path, dpi=100)


def run_line(name, files, out, recipe):
    """One line from its files to its outputs; what goes wrong is in the row, never raised.

    Returns the row, and what the page of the campaign shows of the line: its files, and a dict.
    """
    files_out, shown = [], {}
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
        files_out = _write(result, finished, pathlib.Path(out) / name, recipe.get("outputs", {}))
        shown = _talvesk._campaign_line(finished)
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
    return row, files_out, shown


def campaign(folder, recipe, out, *, client=None, progress=None):
    """Inverts all lines of a folder by one recipe.

    recipe: a TOML file or a dict. out: folder of the outputs, of campaign.csv and index.html.
    client: a Dask client whose workers take a line each; without one, threads do. progress: called
    with a dict after every line. Returns the rows of the table, ordered by line.
    """
    recipe = read_recipe(recipe)
    lines = find_lines(folder, recipe)
    out = pathlib.Path(out)
    try:
        out.mkdir(parents=True, exist_ok=True)
    except OSError as error:
        raise _talvesk.Error(f"Cannot make the folder {out}: {error.strerror}") from error
    tasks = [(name, [str(file) for file in files], str(out), recipe) for name, files in lines.items()]
    done = []
    for one in _run(tasks, client):
        done.append(one)
        if progress is not None:
            progress({"completed": len(done), "total": len(tasks), "line": one[0]["line"]})
    done.sort(key=lambda one: one[0]["line"])
    rows = [row for row, _, _ in done]
    _write_table(rows, out / "campaign.csv")
    _write_page(done, out / "index.html", folder)
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
    try:
        with open(path, "w", newline="", encoding="utf-8") as file:
            writer = csv.DictWriter(file, COLUMNS)
            writer.writeheader()
            writer.writerows(rows)
    except OSError as error:
        raise _talvesk.Error(f"Cannot write {path}: {error.strerror}") from error


def _write_page(done, path, folder):
    """The page that talvesk-batch export --report-index writes, too, on the lines as they are here."""

    def plain(text):  # who reads the page need not know the folders of who wrote it
        return text.replace(f"{pathlib.Path(folder)}{os.sep}", "")

    lines = [
        (
            row["line"],
            plain(row["failure"]),
            files,
            [plain(row["warnings"])] if row["warnings"] else [],
            shown,
        )
        for row, files, shown in done
    ]
    _talvesk._write_campaign_page(path, lines)
