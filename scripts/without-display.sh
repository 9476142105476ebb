#!/usr/bin/env bash
# What there is to see without a display: pictures of the shipped tracks, and one driven to its win.
set -euo pipefail
cd "$(dirname "$0")/.."
track=build/bin/vorbilax-track
mkdir -p build/pictures
echo "The editor needs a display; here is what works without one."
for level in build/bin/levels/*.lvl; do
  picture=build/pictures/$(basename "$level" .lvl).png
  "$track" render "$level" "$picture" --depth 18
  echo "  $picture"
done
echo "drawn by: $track render LEVEL.lvl PICTURE.png --depth 18"
level="build/bin/levels/1 First Steps.lvl"
keys="tests/tracks/1 First Steps.keys"
"$track" drive "$level" "$keys" --until-end >build/pictures/drive.csv
echo "  build/pictures/drive.csv: won after $(tail -n 1 build/pictures/drive.csv | cut -d, -f1) frames"
echo "driven by: $track drive \"$level\" \"$keys\" --until-end"
