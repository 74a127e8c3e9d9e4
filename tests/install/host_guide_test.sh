#!/usr/bin/env bash
# usage: host_guide_test.sh GUIDE BUILD_DIR WORK_DIR
# Takes the program and its CMakeLists.txt out of the guide, installs BUILD_DIR below WORK_DIR, builds the program
# against that and runs it off screen until it has shown its first step.
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

"$cmake" --install "$build" --prefix "$work/prefix" >"$work/install.log"
"$cmake" -S "$work/host" -B "$work/build" -G Ninja -DCMAKE_PREFIX_PATH="$work/prefix"
grep -q "Tarnwise_DIR:PATH=$work/prefix/" "$work/build/CMakeCache.txt" || fail "another installation was found"
"$cmake" --build "$work/build"

export QT_QPA_PLATFORM=offscreen
# The libraries that a window needs keep some memory to the end; the program's own leaks show in the other tests.
export ASAN_OPTIONS=detect_leaks=0

status=0
"$work/build/host" 2>"$work/usage.txt" || status=$?
[ "$status" = 2 ] || fail "without a model it ended with $status"

# A model that does not exist comes to be as an empty one, with which the wizard begins all the same.
"$work/build/host" "$work/new.kst" >"$work/out.txt" 2>"$work/err.txt" &
host=$!
trap 'kill -KILL $host 2>/dev/null || true' EXIT
prompt="Select a method to make value judgments between the attributes."
for _ in $(seq 100); do
  grep -qxF "$prompt" "$work/out.txt" && break
  kill -0 $host 2>/dev/null || break
  sleep 0.1
done
cat "$work/out.txt" "$work/err.txt"
grep -qxF "$prompt" "$work/out.txt" || fail "the first step did not send its prompt"
sleep 0.5
kill -0 $host 2>/dev/null || fail "it ended by itself after the prompt"
[ -e "$work/new.kst" ] || fail "the missing model did not come to be"
kill -TERM $host
status=0
wait $host || status=$?
trap - EXIT
[ "$status" = 143 ] || fail "ended by SIGTERM, it said $status"
echo "host guide: built, started, ended"
