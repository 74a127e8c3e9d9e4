#!/usr/bin/env bash
# usage: lost_screen_test.sh PROGRAM MODEL.kst
# The X server ends while the wizard is open: at the first step, in modal ones, with a message box open, and
# during a drag. The program ends by itself and says so, without a crash, and the model is what it was.
set -euo pipefail
program=$1
model=$2
work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1
wizard= server= moment=

fail() {
  echo "failed, $moment: $1" >&2
  cat "$work/err" >&2
  exit 1
}

source "$(dirname "$0")/person.sh"

open_wizard() {
  rm -f "$work/display"
  mkfifo "$work/display"
  Xvfb -displayfd 3 -noreset -screen 0 1280x800x24 3>"$work/display" 2>/dev/null &
  server=$!
  read -r DISPLAY <"$work/display"
  export DISPLAY=:$DISPLAY
  cp "$model" "$work/model.kst"
  "$program" run --save "$work/model.kst" >"$work/out" 2>"$work/err" &
  wizard=$!
  window 'Select an approach'
}

lose_screen() {  # lose_screen SIGNAL: the server ends, and what has to hold is looked at
  kill "-$1" "$server"
  wait "$server" 2>/dev/null || true
  for _ in $(seq 1200); do kill -0 "$wizard" 2>/dev/null || break; sleep 0.1; done
  kill -0 "$wizard" 2>/dev/null && fail "the program hangs"
  local status=0
  wait "$wizard" || status=$?
  [ $status = 1 ] || fail "exit status $status"
  grep -q 'The screen is gone. No judgments were handed over' "$work/err" || fail "it does not say what happened"
  ! grep -q 'Sanitizer\|runtime error' "$work/err" || fail "it broke on its way out"
  [ ! -s "$work/out" ] || fail "there are judgments"
  cmp -s "$model" "$work/model.kst" || fail "the model has changed"
  [ "$(ls "$work")" = "$(printf '%s\n' display err model.kst out)" ] || fail "there are other files: $(ls "$work")"
}

moment='first step'
open_wizard
lose_screen KILL

moment='modal step, nothing ranked'
open_wizard
keys alt+n
window 'Give rank orders'
lose_screen KILL

judge_interval() {
  keys alt+n
  rank_and_choose_references
  drag 257 218 170 214
  keys alt+e
}

moment='modal step inside a modal step, an interval judged'
open_wizard
judge_interval
lose_screen TERM

moment='message box open'
open_wizard
judge_interval
click 800 95
keys End Return
keys Tab ctrl+a 0 Return
window KESTA
lose_screen KILL

moment='during a drag'
open_wizard
keys alt+n
window 'Give rank orders'
at 605 135
xdotool mousedown 1
at 700 140
lose_screen KILL
echo passed
