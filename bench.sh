#!/usr/bin/env bash
# Installs what is missing, builds and prints what the editor costs; needs no display and a quiet
# machine. docs/performance.md tells what each figure means.
#   ./bench.sh                  every figure, some minutes
#   ./bench.sh --quick          fewer turns and without the window, below a minute
#   ./bench.sh --only PREFIX    the figures whose names begin so
set -euo pipefail
cd "$(dirname "$0")"
scripts/install-packages.sh tests

{
  cmake --preset release -DBUILD_TESTING=ON
  cmake --build --preset release --target track_bench vorbilax-editor install-folder
} >&2
build/bin/track_bench "$@"
[ $# -gt 0 ] || scripts/window-cpu.sh
