#!/usr/bin/env bash
# Format and linter, warnings as errors. Needs clang-format and clang-tidy.
#   scripts/lint.sh [FILE...]    by default every source file
set -euo pipefail
cd "$(dirname "$0")/.."
if [ $# -gt 0 ]; then files=("$@"); else mapfile -t files < <(git ls-files '*.cpp' '*.h'); fi
clang-format --dry-run --Werror "${files[@]}"
# The linter cannot read the other compiler's precompiled headers.
cmake -S . -B build/lint -G Ninja -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
mapfile -t sources < <(printf '%s\n' "${files[@]}" | grep '\.cpp$')
printf '%s\0' "${sources[@]}" | xargs -0 -n 4 -P 2 clang-tidy -p build/lint --quiet \
  --extra-arg=-Wno-unknown-warning-option --extra-arg=-Wno-ignored-optimization-argument
