#!/bin/sh
# Picks the first breaks of shot files, draws the gathers to check them on, and inverts the picks.
#
#   sh shots-to-section.sh FOLDER SHOTS...
#
# Pictures, picks and results go to FOLDER. FILTER names what to pick on (none, agc, hushel),
# TALVESK_BATCH the program when it is not on the path.
set -eu

if [ $# -lt 2 ]; then
  echo "usage: sh shots-to-section.sh FOLDER SHOTS..." >&2
  exit 2
fi
batch=${TALVESK_BATCH:-talvesk-batch}
folder=$1
shift
mkdir -p "$folder"

"$batch" pick "$@" --filter "${FILTER:-none}" --method joint \
  --sgt "$folder/picks.sgt" --json "$folder/picks.json" --image "$folder/shots.pdf"
"$batch" invert "$folder/picks.sgt" --method fitted \
  --json "$folder/section.json" --image "$folder/section.png" --contours 8 > "$folder/log.txt"

tail -n 6 "$folder/log.txt"
echo "Check the picks on $folder/shots.pdf before you trust $folder/section.png"
