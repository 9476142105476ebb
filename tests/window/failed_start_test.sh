#!/usr/bin/env bash
# Without OpenGL the editor says so and ends.
source "$(dirname "$0")/lib.sh" "$1"

make_install_folder
start_window_manager
QT_XCB_GL_INTEGRATION=none "$install/vorbilax-editor" >"$work/editor.log" 2>&1 &
editor_pid=$!
wait_for "the message box" window_named "Vorbilax Level Editor"
box=$(window_named "Vorbilax Level Editor" | head -n 1)
eval "$(xdotool getwindowgeometry --shell "$box")"
[ "$WIDTH" -lt 600 ] || fail "this is the main window, not a message box"
xdotool windowactivate --sync "$box"
key Return
status=0
wait "$editor_pid" || status=$?
[ "$status" -eq 1 ] || fail "exit status $status: $(cat "$work/editor.log")"
