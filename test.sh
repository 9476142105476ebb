#!/usr/bin/env bash
# Installs what is missing, builds and passes every test; needs no display.
#   ./test.sh         everything: the release build, and the sanitizer build of every room
#   ./test.sh quick   the release build only
set -euo pipefail
cd "$(dirname "$0")"
scripts/install-packages.sh tests

cmake --preset release -DBUILD_TESTING=ON
cmake --build --preset release
if [ "${1:-}" != quick ]; then
  cmake --preset dev
  cmake --build --preset dev
  ctest --test-dir build/dev --output-on-failure -j2
fi
ctest --test-dir build --output-on-failure -j2
