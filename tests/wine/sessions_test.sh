#!/usr/bin/env bash
# usage: sessions_test.sh PROGRAM DLL    (in a Windows: see with-wine)
# Every kept session under each toolkit that the Windows program has, and through the registered component: the same
# script prints the same lines everywhere.
set -uo pipefail
here=$(cd "$(dirname "$0")" && pwd)
program=$1 dll=$2
failed=0 played=0

timeout 300 wine regsvr32 /s "$dll" || { echo "regsvr32: $?"; exit 1; }
for script in "$here"/../sessions/*.session "$here"/../../samples/*.session; do
  name=$(basename "${script%.*}")
  for toolkit in headless win32 com; do
    TARNWISE_THROUGH="timeout 3000 wine" "$here/../sessions/play_test.sh" "$program" $toolkit "$script" \
      "$here/../sessions/$name.expected" || { echo "$name under $toolkit differs"; failed=1; }
    played=$((played + 1))
  done
done
[ $failed = 0 ] && echo "sessions: $played were well"
exit $failed
