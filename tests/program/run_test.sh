#!/usr/bin/env bash
# usage: run_test.sh PROGRAM MODEL.kst
# TARNWISE_THROUGH, where it is set, are the words that start the program.
# A person at the keyboard and the mouse of a real X server: `tarnwise run` from the first step to saved judgments.
set -euo pipefail
program=$1
model=$2
root=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$root"' EXIT
work=$root/Jürgen-日本  # the model's folder may have any name
mkdir "$work"
cp "$model" "$work/model.kst"
export QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1

fail() {
  echo "failed: $1" >&2
  cat "$work/err" >&2
  if command -v import >/dev/null; then import -window root "${RUN_TEST_PICTURE:-$work/failed.png}" || true; fi
  exit 1
}

source "$(dirname "$0")/person.sh"

${TARNWISE_THROUGH-} "$program" run --save "$work/model.kst" >"$work/out" 2>"$work/err" &
wizard=$!

window 'Select an approach'
keys alt+n

rank_and_choose_references
# The first pair by mouse, the other by typing.
drag 257 218 170 214
keys alt+e
click 800 95
keys End Return
keys Tab ctrl+a 0 period 7 Return
keys alt+e
keys alt+n
sleep 0.3
keys alt+f

for _ in $(seq 1200); do kill -0 $wizard 2>/dev/null || break; sleep 0.1; done
kill -0 $wizard 2>/dev/null && fail "the wizard is still open"
status=0
wait $wizard || status=$?
[ $status = 0 ] || fail "exit status $status"
grep -q '"type": "DEA_DIRECT"' "$work/out" || fail "no judgments: $(cat "$work/out")"
for line in '"low": 1.2,' '"high": 3' '"low": 0.7,' '"ratio": 0.75,' '"benefitReference": 2,' '"costReference": 1,'; do
  grep -qF "$line" "$work/out" || fail "no $line in $(cat "$work/out")"
done
grep -q 'The judgments are stored' "$work/err" || fail "nothing was saved"
${TARNWISE_THROUGH-} "$program" model show "$work/model.kst" >"$work/shown"
grep -q 'DEA_DIRECT' "$work/shown" || fail "the model holds no judgments"
cat "$work/out"
echo "passed"
