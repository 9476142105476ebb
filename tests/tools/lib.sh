# Helpers for tests of vorbilax-track. usage: source lib.sh FOLDER_WITH_PROGRAMS
set -euo pipefail
programs=$1
tool=$programs/vorbilax-track
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
  echo "FAILED: $*" >&2
  exit 1
}

expect_status() { # status command...
  local expected=$1 status=0
  shift
  "$@" >"$work/out" 2>"$work/err" || status=$?
  [ "$status" -eq "$expected" ] || fail "status $status, not $expected: $* $(cat "$work/err")"
}
