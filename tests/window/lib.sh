# Helpers for tests that drive the real editor with mouse and keyboard. Sourced inside xvfb-run;
# makes the install folder and starts the window manager.
# usage: source lib.sh FOLDER_WITH_PROGRAMS
set -euo pipefail
programs=$1
work=$(mktemp -d)
install=$work/install
editor_pid=
trap 'kill "$editor_pid" 2>/dev/null || true; rm -rf "$work"' EXIT

fail() {
  echo "FAILED: $*" >&2
  if [ -n "${TEST_PICTURES:-}" ]; then import -window root "$TEST_PICTURES/failure.png"; fi
  exit 1
}

# A private install folder, so that tests may write into it.
mkdir -p "$install/levels"
cp "$programs"/{vorbilax-editor,readme.txt} "$install/"
ln -s "$programs"/{textures,backgrounds,models,skins,misc} "$install/"

wait_for() { # description command...
  local what=$1
  shift
  for _ in $(seq 400); do
    if "$@" >/dev/null 2>&1; then return; fi
    sleep 0.05
  done
  fail "waited in vain for $what"
}

window_named() { xdotool search --onlyvisible --name "^$1\$"; }
no_window_named() { ! window_named "$1"; }

# A server that is still starting may turn the manager away: it tries again.
window_manager_runs() {
  if ! kill -0 "$manager_pid"; then
    openbox &
    manager_pid=$!
  fi
  xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'
}

# A window that is mapped while the manager is still starting may stay hidden.
manager_pid=none
wait_for "the window manager" window_manager_runs

# Waits for the first window; sets main, its X, Y, WIDTH and HEIGHT, and the menu bar's height.
start_editor() {
  "$install/vorbilax-editor" >"$work/editor.log" 2>&1 &
  editor_pid=$!
  wait_for "the main window" window_named "Vorbilax Level Editor"
  main=$(window_named "Vorbilax Level Editor" | head -n 1)
  xdotool windowactivate --sync "$main"
  sleep 0.3
  eval "$(xdotool getwindowgeometry --shell "$main")"
  menu=$((HEIGHT - 574))
}

expect_exit() { # status
  local status=0
  wait "$editor_pid" || status=$?
  [ "$status" -eq "$1" ] || fail "exit status $status: $(cat "$work/editor.log")"
}

key() {
  xdotool key --clearmodifiers "$@"
  sleep 0.15
}

# Clicks a point of the main window below its title: the menu bar starts at 0, 0.
click_at() {
  xdotool mousemove --window "$main" "$1" "$2" click "${3:-1}"
  sleep 0.15
}

# Types a path into the file dialog with this title and confirms it.
answer_file_dialog() {
  wait_for "the dialog $1" window_named "$1"
  xdotool windowactivate --sync "$(window_named "$1" | head -n 1)"
  xdotool type --delay 5 "$2"
  key Return
  wait_for "the dialog $1 to close" no_window_named "$1"
}

quit_editor() {
  xdotool windowactivate --sync "$main"
  key ctrl+q
  expect_exit 0
}
