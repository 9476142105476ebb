#!/usr/bin/env bash
# Installs what is missing, builds into build/ and starts the editor. Without a display it shows what
# the companion program can do instead.
set -euo pipefail
cd "$(dirname "$0")"
scripts/install-packages.sh
cmake --preset release -DBUILD_TESTING=OFF
cmake --build --preset release
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then exec build/bin/vorbilax-editor "$@"; fi
exec scripts/without-display.sh
