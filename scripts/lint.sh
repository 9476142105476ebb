#!/usr/bin/env bash
# Format and linter, warnings as errors; installs what is missing.
#   scripts/lint.sh [FILE...]    by default every source file
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-packages.sh lint
if [ $# -gt 0 ]; then files=("$@"); else mapfile -t files < <(git ls-files '*.cpp' '*.h'); fi
clang-format --dry-run --Werror "${files[@]}"
# The linter cannot read the other compiler's precompiled headers.
cmake -S . -B build/lint -G Ninja -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON -DBUILD_TESTING=ON >/dev/null
mapfile -t sources < <(printf '%s\n' "${files[@]}" | grep -E '\.cpp$' | grep -v '^tests/fuzz/')
printf '%s\0' "${sources[@]}" | xargs -0 -n 4 -P "$(nproc)" clang-tidy -p build/lint --quiet \
  --extra-arg=-Wno-unknown-warning-option --extra-arg=-Wno-ignored-optimization-argument
