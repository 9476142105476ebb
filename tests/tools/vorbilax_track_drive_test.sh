#!/usr/bin/env bash
# vorbilax-track drive: every shipped track is won by the drive that comes with it; statuses and rows.
source "$(dirname "$0")/lib.sh" "$1"

for track in "$programs"/levels/*.lvl; do
  keys=${track%.lvl}.keys
  expect_status 0 "$tool" drive "$track" "$keys" --until-end
  [[ $(tail -n 1 "$work/out") == *,1,*,win ]] || fail "$track: no win in the last row"
  [ ! -s "$work/err" ] || fail "$track: $(cat "$work/err")"
done

header=frame,x,y,z,hv,vv,fv,on_ground,on_ice,exploding,dead,stars,event
[ "$(head -n 1 "$work/out")" = "$header" ] || fail "another header"
first=$(sed -n 2p "$work/out")
[[ $first == 1,0,3.4*,1.0*,0,-0.0* ]] || fail "another first row: $first"

printf '3 -\n' >"$work/short.keys"
expect_status 0 "$tool" drive "$track" "$work/short.keys"
[ "$(wc -l <"$work/out")" -eq 4 ] || fail "three frames are not three rows"
expect_status 3 "$tool" drive "$track" "$work/short.keys" --until-end
expect_status 1 "$tool" drive "$track" "$work/none.keys"
expect_status 1 "$tool" drive "$work/none.lvl" "$work/short.keys"
printf '3 -\n# fine\n4 fly\n' >"$work/bad.keys"
expect_status 1 "$tool" drive "$track" "$work/bad.keys"
grep -q 'line 3' "$work/err" || fail "the reason does not name the line: $(cat "$work/err")"
[ ! -s "$work/out" ] || fail "rows for a bad script"
expect_status 2 "$tool" drive "$track"
# Falling off: the run ends with 3, or starts over.
printf '40 left\n400 left+up\n' >"$work/fall.keys"
expect_status 3 "$tool" drive "$track" "$work/fall.keys" --until-end
grep -q ',fall$' "$work/out" || fail "no fall"
expect_status 0 "$tool" drive "$track" "$work/fall.keys"
[ "$(wc -l <"$work/out")" -eq 441 ] || fail "it stopped at the fall"
