"""An ensemble on the workers of a Dask cluster that is already running.

    python3 ensemble.py SCHEDULER PROJECT.tvsk MEMBERS OUT.tvsk

SCHEDULER: tcp://HOST:8786, or the file that a scheduler was started with (--scheduler-file). The
project is read and written here; workers are sent what they need. Members that are done are kept in
OUT.tvsk.members: what was stopped goes on when it is called again.
"""

import pathlib
import sys

from distributed import Client

import talvesk


def main(scheduler, project, members, out):
    where = {"address": scheduler} if "://" in scheduler else {"scheduler_file": scheduler}
    keep = pathlib.Path(out + ".members")
    with Client(**where) as client:
        client.wait_for_workers(1)
        sure = talvesk.ensemble(
            project,
            int(members),
            client=client,
            keep=keep,
            progress=lambda state: print(f"{state['completed']} of {state['total']} members"),
        )
    sure.survey.save(out)
    keep.unlink(missing_ok=True)
    print(f"{sure.members} members count, {sure.left_out} are left out; see {out}")


if __name__ == "__main__":
    main(*sys.argv[1:])
