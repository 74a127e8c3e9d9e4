#!/usr/bin/env bash
# usage: play_test.sh PROGRAM TOOLKIT SCRIPT EXPECTED
# Plays a session and compares what it prints with the lines that are kept. Under a screen's toolkit the `focus` lines,
# which there are fewer ways to lead to, and the `shot` lines do not count. TOOLKIT com is the registered component.
# TARNWISE_THROUGH, where it is set, are the words that start the program.
set -euo pipefail
program=$1 toolkit=$2 script=$3 expected=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Models are read from the script's folder, which stays as it is.
cp "$(dirname "$script")"/*.kst "$work"
cp "$script" "$work/session"
status=0
way=(--toolkit "$toolkit")
[ "$toolkit" != com ] || way=(--com)
${TARNWISE_THROUGH-} "$program" play "${way[@]}" --shots "$work" "$work/session" >"$work/printed" 2>"$work/err" || status=$?
if [ $status -gt 1 ]; then
  cat "$work/err" >&2
  exit 1
fi
told() { grep -vE '^\{"(shot|focus)":' "$1" || true; }
counts() { if [ "$toolkit" = headless ]; then grep -v '^{"shot":' "$1"; else told "$1"; fi; }
diff <(counts "$expected") <(counts "$work/printed")
refused=$(grep -c '^{"refused"' "$expected" || true)
if [ "$refused" = 0 ] && [ $status != 0 ]; then echo "exit status $status though nothing was refused" >&2; exit 1; fi
if [ "$refused" != 0 ] && [ $status != 1 ]; then echo "exit status $status though a line was refused" >&2; exit 1; fi
