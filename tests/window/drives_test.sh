#!/usr/bin/env bash
# A shipped track's drive in the real window: shown, changed, watched, driven on from, saved; the
# track stays as it was.
source "$(dirname "$0")/lib.sh" "$1"
levels=$install/levels
cp "$programs/levels/"*.{lvl,keys} "$levels/"

saved() { # name: what Save Track As writes now
  click_at 20 10
  for _ in 1 2 3 4; do key Down; done
  key Return
  answer_file_dialog "Save File" "$work/$1"
}
picture() { # name: the viewport
  sleep 0.2
  import -window "$main" -crop "601x457+0+$menu" +repage "$work/$1.png"
}
differing() { # pixels of two pictures, of all or of a part
  local part=${3:-601x457+0+0}
  compare -metric AE -extract "$part" "$work/$1.png" "$work/$2.png" null: 2>&1 || true
}
line=300x40+0+417 # where the words are; elsewhere stars spin

start_editor
key ctrl+o
answer_file_dialog Open "$levels/1 First Steps.lvl"
saved before.lvl
key ctrl+o
answer_file_dialog Open "$levels/1 First Steps.lvl"
picture plain
key F6
picture shown
[ "$(differing plain shown)" -gt 4000 ] || fail "the ribbon hardly shows"

# Low gravity is another drive, until it is undone.
key F12
picture lower
[ "$(differing shown lower $line)" -gt 20 ] || fail "another gravity, the same words"
key ctrl+z
picture again
[ "$(differing shown again $line)" -eq 0 ] || fail "other words after undo"

key F9
sleep 1.5
key F4
for _ in 1 2 3 4 5 6 7 8 9 10; do
  xdotool mousemove --window "$main" 300 $((menu + 200)) click 4
done
key F7
xdotool keydown Up
sleep 1
xdotool keyup Up
key F4
saved after.lvl
cmp "$work/before.lvl" "$work/after.lvl" || fail "the track has changed"

# The drive that went on from the middle is the last one now, and begins as the shipped one.
rm -f "$work/after.keys"
click_at 318 10 # the menu Drive
for _ in 1 2 3 4 5; do key Down; done
key Return
wait_for "the saved drive" test -s "$work/after.keys"
head -n 2 "$levels/1 First Steps.keys" | grep -v '^#' >"$work/first"
cmp <(head -n "$(wc -l <"$work/first")" "$work/after.keys") "$work/first" ||
  fail "the saved drive begins otherwise: $(head -n 3 "$work/after.keys")"
"$programs/vorbilax-track" drive "$work/after.lvl" "$work/after.keys" >/dev/null || fail "no script"

key F6
key ctrl+o
answer_file_dialog Open "$levels/1 First Steps.lvl"
picture hidden
[ "$(differing plain hidden $line)" -eq 0 ] || fail "something of it stayed"
quit_editor
