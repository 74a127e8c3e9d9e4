# A person at the keyboard and the mouse of an X server without a window manager. Sourced; $wizard is the program's
# process, and fail ends the test.

# Waits for a window by a part of its title, and gives it the keyboard.
window() {
  local id=
  for _ in $(seq 100); do
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
