#!/usr/bin/env bash
# Runs the component's tests in a Windows of their own: unregistered, registered for the machine, registered for the user.
# Each registration must go without a trace. TARNWISE_WITH_WINE, where it is set, are the words that give it its Windows.
set -euo pipefail

here=$(dirname "$(realpath "${BASH_SOURCE[0]}")")
if [ "${1-}" != --inside ]; then
  [ $# = 2 ] || { echo "usage: tests/com/run.sh TEST_FOLDER COMPONENT_FOLDER" >&2; exit 2; }
  tests=$(realpath "$1") component=$(realpath "$2")
  work=$tests/run
  rm -rf "$work"
  mkdir -p "$work"
  cp "$tests/com_test.exe" "$component"/Tarnwise_DEA.{dll,tlb,manifest} "$component/Application.manifest" \
    "$here/typelib.expected" "$work"
  exec ${TARNWISE_WITH_WINE:-"$here/../wine/with-wine"} "$work/prefix" "$here/run.sh" --inside "$work"
fi
cd "$2"

fail() { echo "FAILED: $*" >&2; exit 1; }

classes() {  # the registry's classes as text, of the machine and of the user
  timeout 300 wine reg export 'HKLM\Software\Classes' "$1.machine" /y >/dev/null
  timeout 300 wine reg export 'HKCU\Software\Classes' "$1.user" /y >/dev/null
  [ -s "$1.machine" ] && [ -s "$1.user" ] || fail "the registry could not be read"
}

same() {  # same BEFORE AFTER machine|user
  cmp -s "$1.$3" "$2.$3"
}

export WINEDLLOVERRIDES="${WINEDLLOVERRIDES-};winedbg.exe=d"  # a crash ends the test at once

test_with() { timeout 2700 wine com_test.exe --gtest_brief=1 --gtest_filter="$1" || fail "com_test $1"; }

regsvr() { timeout 300 wine regsvr32 /s "$@" || fail "regsvr32 $*"; }

test_with '-Registered.*'

timeout 300 wine reg add 'HKCU\Software\Classes\CLSID' /f >/dev/null
classes before
regsvr Tarnwise_DEA.dll
classes machine
same before machine machine && fail "registering wrote nothing"
same before machine user || fail "registering for the machine wrote into the user's part"
test_with 'Registered.*'
regsvr Tarnwise_DEA.dll
regsvr /u Tarnwise_DEA.dll
classes after
same before after machine || fail "unregistering left something behind: $(diff -a before.machine after.machine)"
same before after user || fail "unregistering changed the user's part"

regsvr /n /i:user Tarnwise_DEA.dll
classes user
same before user user && fail "registering for the user wrote nothing"
if timeout 300 wine reg query 'HKCR\Tarnwise_DEA.TRN_DEA' >/dev/null 2>&1; then
  test_with 'Registered.*'
else
  echo "Note: this Windows looks for classes in the machine's part only, so the user's were not used."
fi
regsvr /u Tarnwise_DEA.dll
classes after_user
same before after_user user || fail "unregistering left something of the user's: $(diff -a before.user after_user.user)"
same before user machine || echo "Note: this Windows put the user's type library into the machine's part."
same before after_user machine || fail "unregistering left something: $(diff -a before.machine after_user.machine)"
echo "com: passed"
