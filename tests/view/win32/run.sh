#!/usr/bin/env bash
# Runs the test program in the Windows that is there. Its screen has no window manager, and waiting for one to answer
# would take two seconds for every window that is shown.
set -euo pipefail

[ $# -ge 1 ] || { echo "usage: tests/view/win32/run.sh PROGRAM [ARGUMENT...]" >&2; exit 2; }
timeout 60 wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null
exec timeout 300 wine "$@"
