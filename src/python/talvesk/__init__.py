"""Seismic refraction surveys: from field records to velocity sections.

The engine of talvesk and talvesk-batch, with the same results to the last bit::

    import talvesk

    survey = talvesk.read(sorted(pathlib.Path("line").glob("*.sg2")))
    survey.pick("joint")
    result = talvesk.invert(survey, method="fitted")
    result.plot()

Lengths are metres, times seconds, velocities m/s. Shots and channels count from 0. What goes wrong
raises talvesk.Error; what had to be repaired or left out is a UserWarning.
"""

from ._campaign import campaign
from ._ensemble import ensemble
from ._talvesk import (
    Certainty,
    Error,
    Grid,
    Layers,
    Result,
    Survey,
    __version__,
    certainty,
    invert,
    lay_out,
    read,
    refract,
    samples_in_use,
    trace_rays,
    travel_times,
)

__all__ = [
    "Certainty",
    "Error",
    "Grid",
    "Layers",
    "Result",
    "Survey",
    "__version__",
    "campaign",
    "certainty",
    "ensemble",
    "invert",
    "lay_out",
    "read",
    "refract",
    "samples_in_use",
    "trace_rays",
    "travel_times",
]
