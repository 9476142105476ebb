#!/usr/bin/env bash
# Builds a track from nothing with keys, mouse and buttons, saves it and compares the bytes.
source "$(dirname "$0")/lib.sh" "$1"

start_editor
at() { click_at "$1" $((menu + $2)) "${3:-1}"; }
panel_at() { at $((8 + $1)) $((464 + $2)); }

# The block of the new track: moved to (2, 1, 3), sized 3 x 2 x 3, painted with the second texture.
key Right Right Up Up Up a
key KP_6 KP_7 KP_8
key period Return

# Held keys insert one piece.
xdotool keydown ctrl keydown i
sleep 1.2
xdotool keyup i keyup ctrl

key ctrl+r
panel_at 700 52 # Rotate Ramp
key ctrl+m
panel_at 616 36 # speed, up
key F5

# With the focus in a text box the piece is copied, not the text.
panel_at 175 24
key ctrl+c
key ctrl+v
panel_at 175 24
key 9

# The sky deselects; a click picks the ice block, which is deleted.
at 20 20
key Delete
at 283 329
key Delete

# The last texture is followed by the first.
key comma comma period

click_at 20 10
key Down Down Down Down Return
answer_file_dialog "Save File" "$work/built"
quit_editor

perl -e '
  my $z = "\0";
  print "\4", "No Record      " x 3, $z x 24, pack("s<3", 0, 2, 2);
  print pack("v/a*", $_) for "_WIN.bmp", "concrete.bmp", "_default.bmp";
  print pack("A50", "_default.jpg");
  print pack("l<", 0), pack("f<6", 2, 1, 3, 3, 2, 3), $z x 8, $z x 3;
  print pack("l<", 0), pack("f<6", 0, 0, 0, 2, 0, 2), pack("s<4", (1) x 4), $z x 3, pack("C4", 6, 3, 5, 255);
  print pack("l<", 0), pack("f<6", 0, 1, 0, 1, 1, 2), pack("s<2", 2, 2), "\1";
  print pack("l<", 1), pack("f<3", 0, 1, 1) x 2;
  print pack("f<", 10), $z x 18;
' >"$work/expected"
# A name without extension gets the default one.
cmp "$work/expected" "$work/built.bin" || {
  od -Ax -tx1 "$work/expected" >"$work/a"
  od -Ax -tx1 "$work/built.bin" >"$work/b"
  diff "$work/a" "$work/b" >&2 || true
  fail "the saved bytes differ"
}
