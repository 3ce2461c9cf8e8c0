#!/bin/sh
# Inverts every travel-time file of a folder and prints one line per file: picks used, and the RMS misfit of
# the section in milliseconds and in percent. Section pictures and results go to the second folder.
#
#   sh survey-table.sh PICKS RESULTS
#
# TALVESK_BATCH names the program when it is not on the path.
set -eu

if [ $# -ne 2 ]; then
  echo "usage: sh survey-table.sh PICKS RESULTS" >&2
  exit 2
fi
batch=${TALVESK_BATCH:-talvesk-batch}
picks=$1
results=$2
mkdir -p "$results"

# The value of a key: every key of the results has a line of its own.
value() {
  sed -n "s/^\"$2\": \(.*[^,]\),\{0,1\}\$/\1/p" "$1"
}

failures=0
printf '%-30s %8s %10s %8s\n' file picks 'RMS [ms]' '[%]'
for file in "$picks"/*.otte "$picks"/*.csv "$picks"/*.xyz "$picks"/*.txt; do
  [ -f "$file" ] || continue
  name=$(basename "$file")
  # The program says itself what is wrong with a file.
  if ! "$batch" invert "$file" --quiet --json "$results/$name.json" --image "$results/$name.png"; then
    failures=$((failures + 1))
    continue
  fi
  printf '%-30s %8s %10.6s %8.6s\n' "$name" "$(value "$results/$name.json" picks_used)" \
    "$(value "$results/$name.json" section_rmse_ms)" "$(value "$results/$name.json" section_rms_percent)"
done
[ "$failures" -eq 0 ]
