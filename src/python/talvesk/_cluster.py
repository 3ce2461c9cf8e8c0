"""Tasks on Dask, such that workers may die. Dask moves messages and schedules; this only asks again."""

# Dask gives a task up when this many workers have died under it, for it might be what kills them.
_DEATHS = 20


def each(client, function, tasks):
    """Runs function(*arguments) for every entry of a dict of arguments; yields (key, result).

    In the order of their ends. A task whose worker died, or whose result was lost with one, runs
    again. What a task raises is raised.
    """
    from distributed import CancelledError, as_completed
    from distributed.comm import CommClosedError
    from distributed.scheduler import KilledWorker

    client.run_on_scheduler(_allow_deaths)
    key_of = {}

    def submit(key):
        future = client.submit(function, *tasks[key], pure=False, retries=0)
        key_of[future.key] = key
        return future

    left = {key: _DEATHS for key in tasks}
    running = as_completed([submit(key) for key in tasks])
    for future in running:
        key = key_of[future.key]
        try:
            result = future.result()
        except (CommClosedError, KilledWorker, CancelledError):
            pass  # its worker has died, or the result with one
        else:
            yield key, result
            continue
        left[key] -= 1
        if left[key] < 0:
            raise RuntimeError(f"the workers died {_DEATHS} times under task {key!r}")
        running.add(submit(key))


def _allow_deaths(dask_scheduler):
    dask_scheduler.allowed_failures = max(dask_scheduler.allowed_failures, _DEATHS)
