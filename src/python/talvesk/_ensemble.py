"""An ensemble: how sure a section is, by many members that may be fitted on many machines."""

import os
import uuid

from . import _talvesk


def ensemble(
    project,
    members=100,
    *,
    seed=1,
    isovalues=(),
    vary=None,
    client=None,
    threads=0,
    keep=None,
    progress=None,
):
    """How sure a section is, by many sections that explain its picks as well; a Certainty.

    project: the path of a project, a Survey with a section, a Result or a Certainty. Members that it
    has of the same settings and seed are done already.
    members: how many there are to be, 1 to 65536. Member k is a function of the section, the
    settings, the seed and k alone: the result has the same bits however many threads, workers,
    stops and deaths of workers there were, and is that of talvesk-batch ensemble.
    isovalues: velocities in m/s whose depths are asked for.
    vary: settings in which members differ beside the errors of picks and the models, each with a
    list of values: {"smoothing": [0.5, 1, 2], "blocky": [False, True], "robust": ..., "statics": ...}.
    client: a Dask client whose workers fit a member each; without one, threads of this process do.
    threads: how many, 0 for as many as there are cores. The models that members start from are
    fitted here in any case, and sent to the workers.
    keep: a file that finished members are kept in; the same call goes on from it.
    progress: called with a dict after every model and member.
    """
    work = _talvesk._Ensemble(
        _survey_of(project),
        members,
        seed=seed,
        isovalues=list(isovalues),
        vary=dict(vary or {}),
        keep="" if keep is None else os.fspath(keep),
    )
    work.run(threads, client is not None, progress)
    if client is None:
        return work.certainty()
    try:
        for member in fitted(client, work.fits(), work.open()):
            work.take(*member)
            if progress is not None:
                progress(work.progress())
    finally:
        work.save()
    return work.certainty()


def _survey_of(project):
    if isinstance(project, _talvesk.Survey):
        return project
    if isinstance(project, (_talvesk.Result, _talvesk.Certainty)):
        return project.survey
    return _talvesk.read(project)


def fitted(client, fits, numbers):
    """What fits.fit() returns for every number, in the order in which the workers get done."""
    from ._cluster import each

    # As a plugin it is sent to each worker once, also to those that come later. A task that depends
    # on it would be sent where it is instead, and all of them to one worker at first.
    name = f"talvesk-{uuid.uuid4().hex}"
    client.register_worker_plugin(_OnWorker(fits), name=name)
    try:
        for _, member in each(client, _fit, {number: (name, number) for number in numbers}):
            yield member
    finally:
        client.unregister_worker_plugin(name)


class _OnWorker:
    def __init__(self, fits):
        self.fits = fits


def _fit(name, number):
    from distributed import get_worker

    return get_worker().plugins[name].fits.fit(number)
