#!/usr/bin/env bash
# Builds the trajectory test with other compilers and optimisation levels than the rest and runs it:
# the golden number in it must come out everywhere.  Usage: other_compilers_test.sh SOURCE_FOLDER
set -euo pipefail
cd "$1"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cache=$(command -v ccache || true)

sources=(platform/{clock,controls,d3dx,d3dx_maths,device,dialogs,error_text,frustum}.cpp
  platform/{paths,random,resources,text,whole_file}.cpp platform/null/*.cpp render/*/*.cpp
  {level,play,files}/*.cpp {drive,search}/*.cpp
  tests/play/trajectory_test.cpp)

for variant in "g++ -O0" "clang++ -O2"; do
  read -r compiler level <<<"$variant"
  command -v "$compiler" >/dev/null || { echo "no $compiler here: skipped"; continue; }
  objects=$work/$compiler$level
  mkdir "$objects"
  printf '%s\n' "${sources[@]}" | xargs -P2 -I{} bash -c \
    '"${@:2}" -std=c++20 -ffp-contract=off -I. -c "$1" -o "$0/$(tr / _ <<<"$1").o"' \
    "$objects" {} $cache "$compiler" "$level"
  "$compiler" "$objects"/*.o -o "$objects/test" -lgtest -lgtest_main
  "$objects/test" --gtest_brief=1
done
