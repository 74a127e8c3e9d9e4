#!/usr/bin/env bash
# usage: presser_test.sh PRESSER PRESS_TARGET    (in a Windows: see with-wine)
set -uo pipefail
presser=$1 target=$2
failed=0

# play NAME EXPECTED_OUTPUT EXPECTED_STATUS EXPECTED_STATUS_OF_PRESSER STEP...
play() {
  local name=$1 output=$2 status=$3 pressed=$4 said got patience got_pressed=0
  shift 4
  [ "$pressed" = 0 ] && patience=60 || patience=3  # what comes to nothing is waited for to the end
  said=$(mktemp)
  timeout 300 wine "$target" >"$said" &
  timeout 300 wine "$presser" --seconds $patience "$@" >"$said.presser" || got_pressed=$?
  [ "$pressed" = 0 ] || timeout 300 wine "$presser" --seconds 60 close >/dev/null
  wait $!
  got=$?
  if [ "$(tr -d '\r' <"$said" | xargs)" != "$output" ] || [ $got != "$status" ] || [ $got_pressed != "$pressed" ]; then
    echo "$name: '$(tr -d '\r' <"$said" | xargs)' and $got, the presser $got_pressed:"
    cat "$said.presser"
    failed=1
  fi
  rm -f "$said" "$said.presser"
}

play "through both pages" "next finish" 0 0 Next Finish
play "cancelled" "cancel" 3 0 Cancel
play "the window closed" "closed" 4 0 close
play "closed on the second page" "next closed" 4 0 Next close
play "a disabled button is none" "closed" 4 1 Back
play "a button of the other page is none" "closed" 4 1 Finish
[ $failed = 0 ] && echo "presser: 6 cases are well"
exit $failed
