#!/usr/bin/env bash
# Keys and buttons held or queued where they must not act: behind message boxes and after the end.
source "$(dirname "$0")/lib.sh" "$1"

start_editor
expect_boxes() { # count what
  local windows
  windows=$(window_named "Vorbilax Level Editor" | wc -l)
  [ "$windows" -eq $(($1 + 1)) ] || fail "$((windows - 1)) message boxes: $2"
}

key ctrl+j # a jump pad has a fixed size and texture
for held in KP_7 Return; do
  xdotool keydown "$held"
  sleep 1.2
  expect_boxes 1 "$held is held"
  if [ "$held" = Return ]; then xdotool keyup Return; fi
  key Return
  sleep 1
  expect_boxes 0 "$held was answered"
  xdotool keyup "$held"
done
key KP_7
expect_boxes 1 "pressed anew"
key Return

xdotool mousemove --window "$main" 112 $((menu + 500)) mousedown 1
sleep 1.2
expect_boxes 1 "the arrow is held"
key Return
xdotool mousemove_relative 1 0
sleep 1
expect_boxes 0 "the arrow was answered and is still held"
xdotool mouseup 1

# A keyboard without Latin letters: commands by the key's place.
setxkbmap ru
sleep 0.3
xdotool keydown ctrl key 32 keyup ctrl # the place of O
wait_for "the dialog Open" window_named Open
setxkbmap us
key Escape
wait_for "the dialog Open to close" no_window_named Open

# About stays above the main window and is answered by keys.
about="About Vorbilax Level Editor"
for answer in Return Escape space; do
  key ctrl+a
  wait_for "About" window_named "$about"
  xprop -id "$(window_named "$about")" WM_TRANSIENT_FOR | grep -q '# 0x' || fail "About has no owner"
  key "$answer"
  wait_for "About to close" no_window_named "$about"
done

# Whatever waits behind the end reaches nothing.
xdotool windowactivate --sync "$main"
xdotool mousemove --window "$main" 300 $((menu + 200))
xdotool key --delay 0 ctrl+q space a Up Return click 3 click 1 key --delay 0 ctrl+i F2 F3 ctrl+v
expect_exit 0
