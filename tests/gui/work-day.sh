#!/usr/bin/env bash
# tests/gui/work-day.sh PROGRAM MOST FILES...: runs PROGRAM, which is work_day, on a display and in a home of its own.
set -euo pipefail
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
mkdir "$home/Talvesk_TMP"
printf '%s\n' '<?xml version="1.0" encoding="utf-8"?>' '<cereal><language>en</language></cereal>' \
  > "$home/Talvesk_TMP/Talvesk_settings.xml"
HOME=$home QT_QPA_PLATFORM=xcb xvfb-run -a -s "-screen 0 1600x1000x24" "$@" |
  grep -E '^ +[0-9]+ |^a result|^no result'
