#!/usr/bin/env bash
# Changes single operators and constants and tells which changes no quick test notices.
#   scripts/mutate.sh SECONDS [SEED] [FILE...]   by default level, files, play, editor and render
# Needs python3. Not part of ./test.sh: every change costs a compilation.
set -euo pipefail
cd "$(dirname "$0")/.."
exec python3 scripts/mutate.py "$@"
