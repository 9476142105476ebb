#!/usr/bin/env bash
# Starts without a display, without OpenGL, and at a scale for which the screen is too small.
source "$(dirname "$0")/lib.sh" "$1"

for display in -uDISPLAY DISPLAY=:9876; do
  status=0
  env -u WAYLAND_DISPLAY "$display" "$install/vorbilax-editor" 2>"$work/said" || status=$?
  [ "$status" -eq 1 ] || fail "exit status $status with $display"
  [ "$(cat "$work/said")" = "Vorbilax Level Editor needs a display." ] || fail "$(cat "$work/said")"
done

QT_XCB_GL_INTEGRATION=none start_editor
[ "$WIDTH" -lt 600 ] || fail "this is the main window, not a message box"
key Return
expect_exit 1

for scale in QT_SCALE_FACTOR=2.5 QT_SCREEN_SCALE_FACTORS=1.75 QT_FONT_DPI=192; do
  export "${scale?}"
  start_editor
  # The screen is 1280 x 1024; a step of the scale below the largest that fits.
  [ "$WIDTH" -le 1280 ] && [ $((Y + HEIGHT)) -le 1024 ] || fail "$scale: $WIDTH x $HEIGHT at $Y"
  [ "$WIDTH" -ge 1200 ] || fail "$scale: only $WIDTH wide"
  quit_editor
  unset "${scale%%=*}"
done
