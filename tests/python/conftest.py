import json
import os
import subprocess

import pytest

import talvesk

BATCH = os.environ["TALVESK_BATCH"]


def batch(*arguments):
    """What talvesk-batch --json says of the same job."""
    quiet = [] if arguments[0] == "info" else ["--quiet"]
    run = subprocess.run(
        [BATCH, *map(str, arguments), *quiet], check=True, capture_output=True, text=True
    )
    return json.loads(run.stdout) if run.stdout else None


@pytest.fixture(scope="session")
def line(tmp_path_factory):
    """The demo line: shots, picks and positions in a folder."""
    folder = tmp_path_factory.mktemp("line")
    batch("demo", folder)
    return folder


@pytest.fixture(scope="session")
def shots(line):
    return sorted(line.glob("*.sg2"))


@pytest.fixture()
def picks(line):
    return talvesk.read(line / "demo.otte")
