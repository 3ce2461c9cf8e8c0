#!/bin/sh
# A campaign or an ensemble on some machines that one can log in to by ssh, without a batch system: a
# worker of Dask per core of each.
#
#   sh machines.sh FOLDER RECIPE.toml OUT HOST [HOST...]
#   sh machines.sh PROJECT.tvsk MEMBERS OUT.tvsk HOST [HOST...]
#
# The first machine is this one, where the scheduler runs. talvesk and Dask must be installed on all,
# and the folders of a campaign be the same on all; OUT/cluster.log or OUT.tvsk.log is what Dask says.
# HOST "localhost" stands for workers of this machine alone.
set -eu

here=$(dirname "$(readlink -f "$0")")
what=$1 how=$2 out=$3
shift 3
case $what in
  *.tvsk) job=ensemble.py log=$out.log ;;
  *) job=campaign.py log=$out/cluster.log && mkdir -p "$out" ;;
esac
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
${PYTHON:-python3} "$here/$job" "$address" "$what" "$how" "$out"
