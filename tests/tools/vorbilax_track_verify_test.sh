#!/usr/bin/env bash
# vorbilax-track verify: the shipped tracks are fine, what is not is named, in order, with a status.
here=$(cd "$(dirname "$0")" && pwd)
source "$here/lib.sh" "$1"
export LC_ALL=C

all=$work/all
mkdir -p "$all/inner"
cp "$programs"/levels/*.lvl "$here"/../tracks/*.keys "$all/"
shipped=("$all"/*.lvl)
expect_status 0 "$tool" verify "$all"
[ "$(wc -l <"$work/out")" -eq ${#shipped[@]} ] || fail "not a line a track: $(cat "$work/out")"
for track in "${shipped[@]}"; do
  grep -qE "^$track: its drive wins after [0-9.]+ s with [0-9]+ of [0-9]+ stars$" "$work/out" ||
    fail "$track: $(cat "$work/out")"
done

first=${shipped[0]}
cp "$first" "$all/inner/lonely.LVL"
expect_status 0 "$tool" verify "$all"
grep -qE 'inner/lonely.LVL: Can be won: [0-9.]+ s \(no drive beside it\)$' "$work/out" ||
  fail "$(cat "$work/out")"

# With the WIN block, the one of kind 1, far aside there is no way to it.
mkdir "$work/far"
perl -0777 -pe 'my $at = 74; my $names = unpack "v", substr $_, $at, 2; $at += 2;
  for my $name (0 .. $names) { $at += 2 + unpack "v", substr $_, $at, 2 }
  $at += 54;
  $at += 35 until $at > length or 1 == ord substr $_, $at + 34, 1;
  substr $_, $at, 4, pack "f<", 500' "$first" >"$work/far/away.lvl"
expect_status 3 "$tool" verify "$work/far"
grep -q 'away.lvl: No WIN block can be reached' "$work/out" || fail "$(cat "$work/out")"

# One fault each.
names=(cut dark falls lost short)
for name in "${names[@]}"; do cp "$first" "$all/inner/$name.lvl"; done
head -c 150 "$first" >"$all/inner/cut.lvl"
name=$("$tool" info "$first" | grep -m 1 -oE '[A-Za-z0-9_ ]+\.bmp' | sed 's/^ *//')
sed -i "s/$name/${name//[a-z]/x}/" "$all/inner/dark.lvl"
cp "${first%.lvl}.keys" "$all/inner/dark.keys"
printf '40 left\n400 left+up\n' >"$all/inner/falls.keys"
printf '3 -\n4 fly\n' >"$all/inner/lost.keys"
printf '3 -\n' >"$all/inner/short.keys"
expect_status 1 "$tool" verify "$all" "$work/none.lvl"
says() { grep -qE "$1" "$work/out" || fail "not said: $1 in $(cat "$work/out")"; }
says 'cut.lvl: .*byte offset'
says "^  block [0-9]+ at .* wears the picture \"${name//[a-z]/x}"
says '^  its drive wins no more: it falls after [0-9.]+ s at -[0-9.]+ -4[0-9].'
says '^  lost.keys: line 2: '
says 'short.lvl: Can be won: '
says '^  its drive wins no more: it ends after 0.1 s at 0.0 3.3 1.0$'
says 'none.lvl: No such file'
[ "$(grep -c '^  ' "$work/out")" -eq 4 ] || fail "a finding twice: $(cat "$work/out")"
[ ! -s "$work/err" ] || fail "progress without a terminal: $(cat "$work/err")"

# Whatever the number of workers, the same in the same order.
cp "$work/out" "$work/one"
expect_status 1 "$tool" verify "$all" "$work/none.lvl" --jobs 5
cmp "$work/out" "$work/one" || fail "five jobs say something else"
grep -v '^  ' "$work/out" | head -n -1 | cut -d : -f 1 >"$work/order"
sort -c "$work/order" || fail "not in order"
expect_status 1 "$tool" verify "$all/inner" --json --jobs 2
says '"fault": "missing-texture"'
says '"kind": "block"'
[ "$(grep -c '"file"' "$work/out")" -eq $((${#names[@]} + 1)) ] || fail "$(cat "$work/out")"
[ "$(grep -c '"won": true' "$work/out")" -eq 5 ] || fail "$(cat "$work/out")"

mkdir "$work/empty"
expect_status 1 "$tool" verify "$work/empty"
grep -q 'no level files' "$work/err" || fail "another reason: $(cat "$work/err")"
expect_status 2 "$tool" verify
expect_status 2 "$tool" verify "$all" --jobs 0
