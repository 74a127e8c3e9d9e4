#!/usr/bin/env bash
# usage: off_screen_test.sh PROGRAM SAMPLES
# A session played where there is no screen, by somebody who has set up nothing: the pictures stand in out/, made for
# them, and nowhere else; on standard error there is nothing. Where no picture is taken no folder is made.
set -euo pipefail
program=$1
samples=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
cp "$samples"/hospitals.kst "$samples"/hospitals.session .
unset DISPLAY WAYLAND_DISPLAY XDG_RUNTIME_DIR QT_LOGGING_RULES
export QT_QPA_PLATFORM=offscreen

fail() {
  echo "failed: $1" >&2
  exit 1
}

here() { find . -mindepth 1 | sort | paste -sd ' '; }

"$program" play hospitals.session >transcript 2>err || fail "headless, it ended with status $?"
[ ! -s err ] || fail "headless, it says: $(cat err)"
[ "$(here)" = "./err ./hospitals.kst ./hospitals.session ./transcript" ] || fail "headless, there are: $(here)"

"$program" play --toolkit qt hospitals.session >transcript 2>err || fail "it ended with status $?"
[ ! -s err ] || fail "it says: $(cat err)"
wanted=$(sed -n 's/^shot //p' hospitals.session | sort | paste -sd ' ')
[ "$(cd out && ls | paste -sd ' ')" = "$wanted" ] || fail "there are these pictures: $(ls out 2>&1)"
rm -r out
[ "$(here)" = "./err ./hospitals.kst ./hospitals.session ./transcript" ] || fail "beside out/ there are: $(here)"

"$program" play --toolkit qt --shots some/folder hospitals.session >transcript 2>err || fail "it ended with status $?"
[ "$(cd some/folder && ls | paste -sd ' ')" = "$wanted" ] || fail "in a folder of its own: $(ls some/folder 2>&1)"
[ ! -e out ] || fail "there is an out/ all the same"
echo passed
