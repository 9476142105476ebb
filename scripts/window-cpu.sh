#!/usr/bin/env bash
# Prints what share of one core the editor's window takes, editing and driving, under Xvfb. Needs the
# packages of the tests and a release build with track_bench.
set -euo pipefail
cd "$(dirname "$0")/.."
if [ "${1:-}" != inside ]; then exec xvfb-run -a -s "-screen 0 1280x1024x24" "$0" inside; fi
source tests/window/lib.sh "$PWD/build/bin"

seconds=8
ticks_per_second=$(getconf CLK_TCK)

# User and system time of all its threads. The name before them may hold blanks.
ticks_used() {
  local fields
  read -r -a fields <<<"$(sed 's/.*) //' "/proc/$editor_pid/stat")"
  echo $((fields[11] + fields[12]))
}

measure() { # name
  sleep 1
  local before after
  before=$(ticks_used)
  sleep "$seconds"
  after=$(ticks_used)
  awk -v name="$1" -v share="$(((after - before) * 100))" -v all="$((ticks_per_second * seconds))" \
    'BEGIN { printf "figure %s %.1f %%\n", name, share / all }'
}

measure_track() { # file name-while-editing name-while-driving
  key ctrl+o
  answer_file_dialog "Open" "$1"
  sleep 1
  measure "$2"
  key F3
  # A car that dies starts over.
  xdotool keydown Up
  measure "$3"
  xdotool keyup Up
  key F4
  sleep 1
}

start_editor
measure_track "$PWD/build/bin/levels/6 Star Chaser.lvl" \
  window_star_chaser_editing window_star_chaser_playing
build/bin/track_bench --write-corridor "$work/corridor.lvl"
measure_track "$work/corridor.lvl" window_corridor_editing window_corridor_driving
quit_editor
