# A person at the keyboard and the mouse of an X server without a window manager. Sourced; $wizard is the program's
# process, and fail ends the test.

# Waits for a window by a part of its title, and gives it the keyboard.
window() {
  local id=
  for _ in $(seq 1200); do
    id=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1) && [ -n "$id" ] && break
    kill -0 "$wizard" 2>/dev/null || fail "the program ended before \"$1\""
    sleep 0.1
  done
  [ -n "$id" ] || fail "no window \"$1\""
  xdotool windowfocus --sync "$id" 2>/dev/null || xdotool windowfocus "$id"
  eval "$(xdotool getwindowgeometry --shell "$id" | grep -E '^(X|Y)=')"
  sleep 0.3
}

keys() { xdotool key --delay 40 "$@"; sleep 0.2; }
at() { xdotool mousemove --sync $((X + $1)) $((Y + $2)); }
click() { at "$1" "$2"; xdotool click 1; sleep 0.2; }
drag() {  # drag FROM_X FROM_Y TO_X TO_Y
  at "$1" "$2"
  xdotool mousedown 1
  at $((($1 + $3) / 2)) $((($2 + $4) / 2))
  at "$3" "$4"
  sleep 0.1
  xdotool mouseup 1
  sleep 0.2
}

# From the second step to the last, on samples/hospitals.kst.
rank_and_choose_references() {
  window 'Give rank orders'
  # Benefit by keyboard: the first attribute to rank 1, a second rank, the other attribute to it.
  keys space Down space
  keys Tab Tab Tab Return
  keys shift+Tab shift+Tab space Down Down space
  # Cost by mouse: the first to rank 1, Add, the second to the new rank.
  drag 605 135 890 139
  click 819 424
  drag 605 162 890 181
  keys alt+n
  window 'Designate reference'
  click 200 115
  click 700 157
  keys alt+n
  window 'Estimate intervals'
}
