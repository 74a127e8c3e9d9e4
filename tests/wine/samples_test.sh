#!/usr/bin/env bash
# usage: samples_test.sh DLL SCRIPT_HOST SAMPLE_HOST PRESSER    (in a Windows: see with-wine)
# Registers the component and plays the sample hosts, the script and the program, on a model that is judged already:
# through all steps to Finish, and out of the second step by Cancel and by the window's close button. One host is killed.
set -uo pipefail
here=$(cd "$(dirname "$0")" && pwd)
samples=$(cd "$here/../../samples" && pwd)
dll=$1 script_host=$2 sample_host=$3 presser=$4
work=$(mktemp -d)
failed=0
trap 'rm -rf "$work"' EXIT

# play NAME EXPECTED_OUTPUT HOST... -- STEP...
play() {
  local name=$1 expected=$2 status=0 pressed=0 host=()
  shift 2
  while [ "$1" != -- ]; do host+=("$1"); shift; done
  shift
  timeout 3000 wine "${host[@]}" >"$work/said" &
  timeout 3000 wine "$presser" --seconds 120 "$@" >"$work/pressed" || pressed=$?
  [ $pressed = 0 ] || timeout 300 wine "$presser" --seconds 60 close >/dev/null
  wait $! || status=$?
  tr -d '\r' <"$work/said" | diff -u "$expected" - && [ $status = 0 ] && [ $pressed = 0 ] && return
  echo "$name: the host ended with $status, the presser with $pressed:"
  cat "$work/pressed"
  failed=1
}

timeout 300 wine regsvr32 /s "$dll" || { echo "regsvr32: $?"; exit 1; }
cp "$samples/universities.kst" "$samples/com/hospitals.vbs" "$work"
{ head -n 2 "$here/universities.expected" && echo cancelled; } >"$work/cancelled.expected"
for host in script program; do
  command=("$script_host" --seconds 500 "$work/hospitals.vbs" "$work/universities.kst")
  [ $host = script ] || command=("$sample_host" "$work/universities.kst")
  play "$host, finished" "$here/universities.expected" "${command[@]}" -- Next Next Next Next Finish
  play "$host, cancelled" "$work/cancelled.expected" "${command[@]}" -- Next Cancel
  play "$host, closed" "$work/cancelled.expected" "${command[@]}" -- Next close
done
# A host that is killed in the middle leaves no window, and nothing that the next one would stumble over.
timeout 3000 wine "$sample_host" "$work/universities.kst" >"$work/said" &
timeout 3000 wine "$presser" --seconds 120 Next >"$work/pressed" || { echo "killed: it did not begin"; failed=1; }
timeout 300 wine taskkill /f /im "$(basename "$sample_host")" >/dev/null || { echo "killed: it could not be"; failed=1; }
wait $!
timeout 300 wine "$presser" --seconds 3 Cancel >/dev/null && { echo "killed: a window is left"; failed=1; }
play "after a killed one" "$work/cancelled.expected" "$sample_host" "$work/universities.kst" -- Next Cancel
[ $failed = 0 ] && echo "sample hosts: 8 sessions are well"
exit $failed
