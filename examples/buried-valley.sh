#!/bin/sh
# Makes the demo line, inverts it from a layered starting model and writes everything that
# talvesk-batch can write.
#
#   sh buried-valley.sh [FOLDER]      (default: buried-valley)
#
# TALVESK_BATCH names the program when it is not on the path.
set -eu

batch=${TALVESK_BATCH:-talvesk-batch}
folder=${1:-buried-valley}

"$batch" demo "$folder"
"$batch" info "$folder/demo.otte"

# Depths in metres, velocities in m/s: loose cover, weathered rock, and bedrock to below
# the grid. A layer begins with the velocity that the one above ends with, as a smooth curve through
# all of them makes the model.
"$batch" invert "$folder/demo.otte" \
  --layer 0:3:400:1000 --layer 3:12:1000:2200 --layer 12:60:2200:3300 \
  --iterations 8 --max-velocity 4000 \
  --json "$folder/section.json" \
  --gridded "$folder/section.txt" \
  --image "$folder/section.svg" --contours 8 --rays \
  > "$folder/log.txt"

tail -n 6 "$folder/log.txt"
