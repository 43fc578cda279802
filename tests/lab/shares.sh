#!/usr/bin/env bash
# One run, whatever carries it: any number of threads, and shares played by GNU parallel, give the
# same bytes. A lost, doubled, broken-off, damaged or foreign share is named and refused.
set -euo pipefail
lab=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

fail() { echo "shares: $*" >&2; exit 1; }
refused() { # words that the message must hold, then the command
    local words=$1
    shift
    if "$@" >out.txt 2>err.txt; then fail "not refused: $*"; fi
    grep -q -- "$words" err.txt || fail "'$words' is not in: $(cat err.txt)"
}

run=(run --policy holder --machines 7 --plays 1500 --seed 11 --warmup 50)
"$lab" "${run[@]}" --threads 1 --out one.json >/dev/null 2>progress.txt
grep -q $'\r' progress.txt && fail "a progress bar in a pipe"
"$lab" "${run[@]}" --threads 3 --out three.json >/dev/null 2>&1
cmp one.json three.json
cmp one.csv three.csv

carry=(bash -c 'for n in 1 2 3; do "$0" "$@" --shard "$n/3" --out "$n.json"; done' "$lab" "${run[@]}")
if command -v parallel >/dev/null; then
    carry=(parallel --will-cite --sshlogin : "$lab" "${run[@]}" --threads 1 --shard "{}/3" --out "$work/{}.json" ::: 1 2 3)
fi
"${carry[@]}" >/dev/null 2>&1
"$lab" merge 3.json 1.json 2.json --out merged.json >/dev/null
cmp one.json merged.json
cmp one.csv merged.csv

for n in 1 2 3 4; do # more shares than machines: the last one is empty
    "$lab" run --machines 3 --plays 500 --shard $n/4 --out few$n.json >/dev/null 2>&1
done
grep -q '"complete":false' few?.json && fail "a share that was played whole is told as broken off"
"$lab" merge few?.json --out few.json >/dev/null
"$lab" run --machines 3 --plays 500 --out whole.json >/dev/null 2>&1
cmp few.json whole.json
"$lab" report few1.json >few.html
grep -q '"machines_played":1,' few.html || fail "a share tells of machines that it has not"

refused 'missing: 2/3' "$lab" merge 1.json 3.json --out x.json
refused 'share 1/3 is there twice' "$lab" merge 1.json 2.json 1.json --out x.json
"$lab" "${run[@]}" --seed 12 --shard 2/3 --out other.json >/dev/null 2>&1
refused 'another run' "$lab" merge 1.json other.json 3.json --out x.json
sed 's/"machine":4/"machine":5/' 2.json >damaged.json
refused 'damaged' "$lab" merge 1.json damaged.json 3.json --out x.json
head -c 4000 2.json >short.json
refused 'cut short' "$lab" merge 1.json short.json 3.json --out x.json
echo '{"a": 1}' >foreign.json
refused 'not a file of the lab' "$lab" report foreign.json
refused 'cannot be opened' "$lab" report nowhere.json
refused 'other terms' "$lab" "${run[@]}" --seed 3 --out one.json --resume
refused 'is there already' "$lab" "${run[@]}" --out one.json
cmp one.json three.json || fail "a refused run has changed the file"
mkdir folder
mkfifo pipe
for place in folder pipe; do # a device too: whoever is root would replace it
    refused 'no plain file' "$lab" "${run[@]}" --replace --out $place
    refused 'no plain file' "$lab" report $place
done
refused 'cannot be written' "$lab" "${run[@]}" --out nowhere/one.json
cp one.json kept.json
cp one.csv kept.csv
refused 'kept.json: is there already' "$lab" merge 1.json 2.json 3.json --out kept.json
refused '2.json: is there already' "$lab" report 1.json --out 2.json
rm kept.json
refused 'kept.csv: is there already' "$lab" "${run[@]}" --out kept.json
mkdir folder.csv
refused 'folder.csv: is there and is no plain file' "$lab" "${run[@]}" --replace --out folder.json
[ ! -e folder.json ] || fail "it was played before the place of its table was looked at"
for seed in -1 18446744073709551616 010x ''; do refused 'no whole number' "$lab" run --seed "$seed"; done
refused 'no share' "$lab" run --shard 4/3
refused 'policy' "$lab" run --policy nobody
refused 'plays' "$lab" run --plays 0
[ ! -e x.json ] || fail "a refused merge has left a file"

"$lab" report one.json merged.json --out page.html
grep -q '"policy":"holder"' page.html || fail "the page has no figures"
grep -Eq '(src|href)=' page.html && fail "the page needs something else"
exit 0
