#!/bin/sh
# A campaign on some machines that one can log in to by ssh, without a batch system: a worker of Dask
# per core of each.
#
#   sh machines.sh FOLDER RECIPE.toml OUT HOST [HOST...]
#
# The first machine is this one, where the scheduler runs. talvesk and Dask must be installed on all,
# and the folders be the same on all; OUT/cluster.log is what Dask says. HOST "localhost" stands for workers of this machine alone.
set -eu

here=$(dirname "$(readlink -f "$0")")
folder=$1 recipe=$2 out=$3
shift 3
mkdir -p "$out"
log=$out/cluster.log
meet=$(mktemp -u "${TMPDIR:-/tmp}/scheduler-XXXXXX.json")
alone=
[ "$*" != localhost ] || alone="--host 127.0.0.1"

dask-scheduler --scheduler-file "$meet" --port 0 --no-dashboard $alone 2> "$log" &
started=$!
trap 'kill $started 2> /dev/null; rm -f "$meet"' EXIT
while [ ! -s "$meet" ]; do
  kill -0 $started
  sleep 0.2
done
address=$(sed -n 's/.*"address": "\([^"]*\)".*/\1/p' "$meet")

for host in "$@"; do
  worker="dask-worker $address --nthreads 1 --no-dashboard --death-timeout 60"
  if [ "$host" = localhost ]; then
    $worker --nworkers "$(nproc)" --local-directory "${TMPDIR:-/tmp}" 2>> "$log" &
  else
    ssh "$host" "$worker --nworkers \$(nproc)" 2>> "$log" &
  fi
  started="$started $!"
done
${PYTHON:-python3} "$here/campaign.py" "$address" "$folder" "$recipe" "$out"
