#!/usr/bin/env bash
# Opens a shipped track in the real window, looks at it, and saves it under another name.
source "$(dirname "$0")/lib.sh" "$1"

track=$(find "$programs/levels" -name '*.lvl' | sort | head -n 1)
[ -n "$track" ] || fail "no shipped track"
start_editor

[ "$WIDTH" -eq 800 ] || fail "the window is $WIDTH wide"
[ "$HEIGHT" -ge 590 ] && [ "$HEIGHT" -le 604 ] || fail "the window is $HEIGHT high"

colours_of_viewport() {
  import -window "$main" -crop "590x440+5+$((menu + 5))" "$work/view.png"
  identify -format '%k' "$work/view.png"
}
[ "$(colours_of_viewport)" -gt 500 ] || fail "the new track shows no picture"
cp "$work/view.png" "$work/new.png"

key ctrl+o
answer_file_dialog "Open" "$track"
sleep 0.3
[ "$(colours_of_viewport)" -gt 500 ] || fail "the opened track shows no picture"
cmp -s "$work/view.png" "$work/new.png" && fail "opening a track changed nothing"

# File > Save Track As is the fourth item; it has no shortcut.
click_at 20 10
key Down Down Down Down Return
answer_file_dialog "Save File" "$work/copy.lvl"
cmp "$track" "$work/copy.lvl" || fail "the saved bytes differ"

# A plain save asks nothing now, and writes the new track over the same file.
key F2
key ctrl+s
block_count=$(od -An -tx1 -j 140 -N 4 "$work/copy.lvl" | tr -d ' ')
[ "$block_count" = 00000000 ] || fail "the new track was not saved"

# Into play mode and back through the temporary track file.
key F3
wait_for "the temporary track file" test -s "$install/tmp.trk"
cmp -n 213 "$install/tmp.trk" "$work/copy.lvl" || fail "the temporary track differs"

# The car drives off the short track, falls, and starts over at once.
colours_of_viewport >/dev/null
cp "$work/view.png" "$work/start.png"
xdotool keydown Up
sleep 0.8
xdotool keyup Up
colours_of_viewport >/dev/null
cmp -s "$work/view.png" "$work/start.png" && fail "the car does not drive"
key F4
quit_editor
