#!/usr/bin/env bash
# Undo across play and New, a drag, the wheel, and the end by a signal, in the real window.
source "$(dirname "$0")/lib.sh" "$1"

saved() { # name: what Save Track As writes now
  click_menu_item 20 4
  answer_file_dialog "Save File" "$work/$1"
}
click_menu_item() { # x of the menu, how many items down
  click_at "$1" 10
  for _ in $(seq "$2"); do key Down; done
  key Return
}
move_mouse() { xdotool mousemove --window "$main" "$1" $((menu + $2)); sleep 0.05; }
drag_out() {
  move_mouse 304 300
  xdotool mousedown 1
  for step in 1 2 3 4 5 6 7 8; do move_mouse $((304 + 19 * step)) $((300 - 5 * step)); done
}

start_editor
saved start.lvl
drag_out
xdotool key Escape # the other way lets go of the button
xdotool mouseup 1
saved escaped.lvl
cmp "$work/start.lvl" "$work/escaped.lvl" || fail "Escape left something of the drag"

drag_out
xdotool mouseup 1
saved dragged.lvl
place=$(perl -e 'read STDIN, $_, 300; print join " ", map { 0 + $_ } unpack "f<3", substr $_, 144, 12' <"$work/dragged.lvl")
[ "$place" = "7 0 3" ] || fail "dragged to $place"

key ctrl+i
key F2 # a new track
key F3
xdotool keydown Up
sleep 0.5
xdotool keyup Up
key F4
key ctrl+z ctrl+z
saved undone.lvl
cmp "$work/dragged.lvl" "$work/undone.lvl" || fail "undo did not bring the dragged block back"
key ctrl+z
saved all.lvl
cmp "$work/start.lvl" "$work/all.lvl" || fail "undo of the drag"
key ctrl+y ctrl+shift+z
saved redone.lvl
cmp -s "$work/redone.lvl" "$work/undone.lvl" && fail "nothing was done again"

# With a dialog open the system ends the program: nothing is lost, nobody is asked.
key ctrl+j
key ctrl+o
wait_for "the dialog Open" window_named Open
kill -TERM "$editor_pid"
wait "$editor_pid" || fail "status $? after SIGTERM"
[ -n "$(find "$install/levels/backup" -name 'redone 20*.lvl')" ] || fail "no safety copy"
