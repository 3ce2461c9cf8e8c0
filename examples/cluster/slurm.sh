#!/bin/sh
#SBATCH --job-name=talvesk
#SBATCH --ntasks=16
#SBATCH --cpus-per-task=1
#SBATCH --mem-per-cpu=1G
#SBATCH --time=02:00:00
#
# A campaign or an ensemble on a Slurm cluster: one worker of Dask per task, each inverting a line or
# fitting a member at a time on one core.
#
#   sbatch slurm.sh FOLDER RECIPE.toml OUT
#   sbatch slurm.sh PROJECT.tvsk MEMBERS OUT.tvsk
#
# Folders must be on a file system that all nodes share. A node that dies costs the lines or members
# that its workers had in hand, which others take over.
set -eu

here=$(dirname "$(readlink -f "$0")")
[ -z "${SLURM_JOB_ID:-}" ] || here=${SLURM_SUBMIT_DIR:-$here}
case $1 in
  *.tvsk) job=ensemble.py ;;
  *) job=campaign.py ;;
esac
meet=$(mktemp -u "$PWD/scheduler-XXXXXX.json")

dask-scheduler --scheduler-file "$meet" --no-dashboard &
scheduler=$!
trap 'kill $scheduler 2> /dev/null; rm -f "$meet"' EXIT
while [ ! -s "$meet" ]; do
  kill -0 $scheduler
  sleep 0.2
done

srun dask-worker --scheduler-file "$meet" --nthreads 1 --no-dashboard --death-timeout 60 &
${PYTHON:-python3} "$here/$job" "$meet" "$1" "$2" "$3"
