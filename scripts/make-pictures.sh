#!/usr/bin/env bash
# Makes the README's picture and animation anew: drives the real editor under Xvfb. Needs the packages
# of the tests and a build; the result depends on nothing but the program.
set -euo pipefail
cd "$(dirname "$0")/.."
if [ "${1:-}" != inside ]; then exec xvfb-run -a -s "-screen 0 1000x760x24" "$0" inside; fi

docs=$PWD/docs
work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$work"' EXIT
cp -r build/bin "$work/install"
openbox >/dev/null 2>&1 &
sleep 1
"$work/install/vorbilax-editor" >/dev/null 2>&1 &
for _ in $(seq 100); do xdotool search --onlyvisible --name '^Vorbilax Level Editor$' >/dev/null && break; sleep 0.1; done
window=$(xdotool search --onlyvisible --name '^Vorbilax Level Editor$' | head -n 1)
xdotool windowactivate --sync "$window"
eval "$(xdotool getwindowgeometry --shell "$window")"
menu=$((HEIGHT - 574))

frame=0
shot() { # hundredths of a second that the frame stays
  frame=$((frame + 1))
  import -window "$window" "$work/$(printf 'f%03d-%s' "$frame" "$1").png"
}
key() { xdotool key --delay 60 "$@"; sleep 0.15; shot 25; }
click() { xdotool mousemove --window "$window" "$1" $((menu + $2)) click 1; sleep 0.25; shot 50; }
film() { for _ in $(seq "$1"); do shot 8; done; }

# A floor, painted; on it a house, a star, a jump pad; behind it ice and the goal.
shot 80
key KP_6 KP_6 Left
key KP_8 KP_8 KP_8 KP_8 KP_8 KP_8 KP_8
key KP_8 KP_8 KP_8 KP_8 KP_8 KP_8 KP_8
key period period period period period period period period period period period Return
key ctrl+b
key Right Right Right Right Right Right
key Up Up Up Up Up Up
key F5
key Up Up Up Up
key ctrl+i
key Up Up Up Up Up Up Up Up
key Up Up Up Up Up Up Up Up
key KP_6 KP_6 Left KP_8 KP_8 KP_8 KP_8
key ctrl+w
key Up Up Up Up Up Up Up Up Up Up Up
key Up Up Up Up Up Up Up Up Up Up Up
click 300 300
key F3
sleep 0.7
xdotool keydown Up
film 14
xdotool keyup Up
film 6
key F4
shot 150

files=()
for file in "$work"/f*.png; do
  delay=${file##*-}
  files+=(-delay "${delay%.png}" "$file")
done
convert "${files[@]}" -resize 480x -colors 48 +dither -layers optimize -loop 0 "$docs/build-and-drive.gif"

# A finished track with a piece at work; the sparks of the star are gone by then.
sleep 12
xdotool key ctrl+o
sleep 1
xdotool type --delay 5 "$work/install/levels/4 Skyline Shuttle.lvl"
xdotool key Return
sleep 1
xdotool mousemove --window "$window" 610 $((menu + 430)) click 1 click 1 click 1
sleep 0.5
xdotool mousemove --window "$window" 300 $((menu + 290)) click 1
sleep 0.5
import -window "$window" "$docs/screenshot.png"

# A drive through a track, and where it goes since a block was moved.
xdotool key ctrl+o
sleep 1
xdotool type --delay 5 "$work/install/levels/2 Twist and Hop.lvl"
xdotool key Return
sleep 1
xdotool key F6
for _ in 1 2 3 4 5 6; do xdotool mousemove --window "$window" 300 $((menu + 300)) click 4; done
xdotool mousemove --window "$window" 372 $((menu + 160)) click 1
sleep 0.3
xdotool key Right Right Right Right
sleep 0.5
import -window "$window" "$docs/drive.png"
