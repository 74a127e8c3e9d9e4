#!/usr/bin/env bash
# usage: host_guide_test.sh GUIDE BUILD_DIR|installed WORK_DIR
# Takes the program and its CMakeLists.txt out of the guide, installs BUILD_DIR below WORK_DIR (or takes what is
# installed on the system), builds the program against that, once by CMake and once by pkg-config, and runs both off
# screen until they have shown their first step.
set -euo pipefail
guide=$1 build=$2 work=$3
cmake=${CMAKE:-cmake}

fail() {
  echo "host guide: $*" >&2
  exit 1
}

block() {  # the one block of that language in the guide
  [ "$(grep -c "^\`\`\`$1\$" "$guide")" = 1 ] || fail "there is not exactly one block of $1"
  awk -v open="\`\`\`$1" '$0 == open { inside = 1; next } /^```/ { inside = 0 } inside' "$guide"
}

rm -rf "$work"
mkdir -p "$work/host"
block cpp >"$work/host/host.cpp"
block cmake >"$work/host/CMakeLists.txt"
lines=$(wc -l <"$work/host/host.cpp")
[ "$lines" -lt 60 ] || fail "the program has $lines lines, it should have fewer than 60"

if [ "$build" = installed ]; then
  prefix=/usr
else
  prefix=$work/prefix
  "$cmake" --install "$build" --prefix "$prefix" >"$work/install.log"
  pc=$(find "$prefix" -name tarnwise.pc)
  [ -n "$pc" ] || fail "there is no file for pkg-config"
  export PKG_CONFIG_PATH=${pc%/*}
fi
"$cmake" -S "$work/host" -B "$work/build" -G Ninja -DCMAKE_PREFIX_PATH="$prefix"
grep -q "Tarnwise_DIR:PATH=$prefix/" "$work/build/CMakeCache.txt" || fail "another installation was found"
"$cmake" --build "$work/build"

with_pkg_config=
if pkg-config --exists tarnwise Qt6Widgets; then
  pkg-config --print-errors --exists "tarnwise >= 0.1" || fail "pkg-config finds no tarnwise"
  # shellcheck disable=SC2046,SC2086  # they are lists of options
  ${CXX:-g++} -std=c++20 ${CXXFLAGS-} $(pkg-config --cflags tarnwise) "$work/host/host.cpp" -o "$work/build/host-pc" \
    $(pkg-config --libs tarnwise)
  with_pkg_config=host-pc
elif [ "$build" = installed ] || pkg-config --exists Qt6Widgets; then
  pkg-config --print-errors --exists tarnwise || fail "pkg-config finds no tarnwise"
fi

export QT_QPA_PLATFORM=offscreen
# The libraries that a window needs keep some memory to the end; the program's own leaks show in the other tests.
export ASAN_OPTIONS=detect_leaks=0

run_host() {  # PROGRAM
  local program=$work/build/$1 status=0 host
  "$program" 2>"$work/usage.txt" || status=$?
  [ "$status" = 2 ] || fail "without a model $1 ended with $status"

  # A model that does not exist comes to be as an empty one, with which the wizard begins all the same.
  "$program" "$work/$1.kst" >"$work/out.txt" 2>"$work/err.txt" &
  host=$!
  trap "kill -KILL $host 2>/dev/null || true" EXIT
  prompt="Select a method to make value judgments between the attributes."
  for _ in $(seq 1200); do
    grep -qxF "$prompt" "$work/out.txt" && break
    kill -0 $host 2>/dev/null || break
    sleep 0.1
  done
  cat "$work/out.txt" "$work/err.txt"
  grep -qxF "$prompt" "$work/out.txt" || fail "the first step of $1 did not send its prompt"
  sleep 0.5
  kill -0 $host 2>/dev/null || fail "$1 ended by itself after the prompt"
  [ -e "$work/$1.kst" ] || fail "the missing model did not come to be"
  kill -TERM $host
  status=0
  wait $host || status=$?
  trap - EXIT
  [ "$status" = 143 ] || fail "ended by SIGTERM, $1 said $status"
  echo "host guide: $1 built, started, ended"
}

for program in host $with_pkg_config; do run_host "$program"; done
