"""Tables of what the compiled half holds. pandas is imported when one is asked for."""

import numpy


def picks_of(survey):
    import pandas

    frames = []
    for shot in range(len(survey)):
        times = survey.times(shot)
        places = survey.geophones(shot)[: len(times)]
        frames.append(
            pandas.DataFrame(
                {
                    "shot": shot,
                    "channel": numpy.arange(len(times)),
                    "shot_x": survey.shots[shot, 0],
                    "shot_z": survey.shots[shot, 1],
                    "x": _padded(places[:, 0], len(times)),
                    "z": _padded(places[:, 1], len(times)),
                    "time": times,
                    "error": survey.errors(shot),
                    "computed": _padded(survey.computed(shot), len(times)),
                }
            )
        )
    if not frames:
        columns = ["shot", "channel", "shot_x", "shot_z", "x", "z", "time", "error", "computed"]
        return pandas.DataFrame(columns=columns)
    return pandas.concat(frames, ignore_index=True)


def _padded(values, size):
    """As long as `size`, with NaN where a survey has fewer places or times than picks."""
    out = numpy.full(size, numpy.nan)
    out[: min(size, len(values))] = values[:size]
    return out
