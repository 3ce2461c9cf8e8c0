"""A campaign on the workers of a Dask cluster that is already running.

    python3 campaign.py SCHEDULER FOLDER RECIPE.toml OUT

SCHEDULER: tcp://HOST:8786, or the file that a scheduler was started with (--scheduler-file).
FOLDER and OUT must be the same to all workers, as on a shared file system.
"""

import sys

from distributed import Client

import talvesk


def main(scheduler, folder, recipe, out):
    where = {"address": scheduler} if "://" in scheduler else {"scheduler_file": scheduler}
    with Client(**where) as client:
        client.wait_for_workers(1)
        rows = talvesk.campaign(
            folder,
            recipe,
            out,
            client=client,
            progress=lambda state: print(f"{state['completed']} of {state['total']}: {state['line']}"),
        )
    failed = [row for row in rows if row["status"] == "failed"]
    for row in failed:
        print(f"{row['line']} failed: {row['failure']}", file=sys.stderr)
    print(f"{len(rows) - len(failed)} of {len(rows)} lines inverted; see {out}/index.html")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
