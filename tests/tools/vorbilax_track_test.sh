#!/usr/bin/env bash
# vorbilax-track on the shipped tracks: exit statuses, conversion to the byte, both executors.
source "$(dirname "$0")/lib.sh" "$1"

tracks=("$programs"/levels/*.lvl)
[ ${#tracks[@]} -ge 5 ] || fail "only ${#tracks[@]} tracks are shipped"
for track in "${tracks[@]}"; do
  expect_status 0 "$tool" info "$track"
  grep -q missing "$work/out" && fail "$track names a missing texture"
  expect_status 0 "$tool" convert "$track" "$work/copy.lvl"
  cmp "$track" "$work/copy.lvl" || fail "$track is not what a save writes"
  rm "$work/copy.lvl"
  expect_status 0 "$tool" render "$track" "$work/batched.png" --depth 40 --frames 7
  expect_status 0 "$tool" render "$track" "$work/plain.png" --depth 40 --frames 7 --plain
  cmp "$work/batched.png" "$work/plain.png" || fail "$track: the executors differ"
done

track=${tracks[0]}
expect_status 0 "$tool" --help
expect_status 2 "$tool"
expect_status 2 "$tool" info
expect_status 2 "$tool" render "$track" "$work/x.png" --frames 0
expect_status 2 "$tool" melt "$track"
expect_status 1 "$tool" info "$work/none.lvl"
grep -q none.lvl "$work/err" || fail "the reason does not name the file"
head -c 150 "$track" >"$work/cut.lvl"
expect_status 1 "$tool" convert "$work/cut.lvl" "$work/out.lvl"
[ ! -e "$work/out.lvl" ] || fail "a broken track was converted"
grep -q 'byte offset' "$work/err" || fail "the reason does not name the place"
expect_status 1 "$tool" convert "$track" "$work/no/folder/out.lvl"
expect_status 1 "$tool" convert "$track" /dev/full

# An old version is converted with a notice.
{ printf '\003'; tail -c +2 "$track" | head -c 69; tail -c +73 "$track"; } >"$work/old.lvl"
expect_status 0 "$tool" convert "$work/old.lvl" "$work/new.lvl"
grep -q 'This track is an old version' "$work/err" || fail "no notice for an old version"
cmp "$track" "$work/new.lvl" || fail "the converted old version differs"

expect_status 0 "$tool" info "$track" --json --data "$work"
grep -q '"missing": true' "$work/out" || fail "textures of another data folder are missing"

# What is too large, and output that finds no room, is told in words.
truncate -s 1G "$work/huge.lvl"
expect_status 1 "$tool" info "$work/huge.lvl"
grep -q 'too large' "$work/err" || fail "another reason: $(cat "$work/err")"
expect_status 1 bash -c 'ulimit -f 1; exec "$@"' - "$tool" convert "$track" "$work/out.lvl"
grep -q 'File too large' "$work/err" || fail "another reason: $(cat "$work/err")"
"$tool" info "$track" >/dev/full 2>"$work/err" && fail "lost output is no failure"
grep -q 'No space left' "$work/err" || fail "another reason: $(cat "$work/err")"
