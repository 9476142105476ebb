#!/usr/bin/env bash
# Installs what is missing, builds into build/ and starts the editor.
set -euo pipefail
cd "$(dirname "$0")"
scripts/install-packages.sh
cmake --preset release -DBUILD_TESTING=OFF
cmake --build --preset release
exec build/bin/vorbilax-editor "$@"
