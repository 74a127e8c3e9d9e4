#!/usr/bin/env bash
# usage: texts_test.sh PROGRAM DLL    (in a Windows: see with-wine)
# Folders named in German, Greek and Japanese, whatever the user's code page: as an argument, in a script's line, for
# pictures, and through the registered component. Then the texts of model files, which are in the user's code page.
set -uo pipefail
here=$(cd "$(dirname "$0")" && pwd)
program=$1 dll=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0

export LOCPATH=$work/locales
mkdir "$LOCPATH"
for language in de_DE el_GR ja_JP; do
  localedef -i $language -f UTF-8 "$LOCPATH/$language.UTF-8" || { echo "no locale $language"; exit 77; }
done

fail() { echo "failed: $1"; failed=1; }
tarnwise() { LC_ALL=$locale timeout 3000 wine "$program" "$@"; }

timeout 300 wine regsvr32 /s "$dll" || { echo "regsvr32: $?"; exit 1; }

paths_under() {  # paths_under LOCALE FOLDER
  locale=$1
  local folder="$work/$2" pictures="$work/pictures $2 $1" toolkit
  mkdir -p "$folder/$2"
  cp "$here/../sessions/ward.kst" "$folder/$2/"
  printf 'host load "%s/ward.kst"\nhost show\ndata AttName\nshot first.png\n' "$2" >"$folder/$2.session"
  tarnwise model show "$folder/$2/ward.kst" | grep -q '"Nurses"' || fail "model show in $2 under $1"
  for toolkit in "--toolkit headless" "--toolkit win32" --com; do
    tarnwise play $toolkit --shots "$pictures" "$folder/$2.session" >"$work/lines" || fail "status of $toolkit in $2 under $1"
    grep -q '"Nurses"' "$work/lines" || fail "$toolkit in $2 under $1: $(cat "$work/lines")"
  done
  [ -s "$pictures/first.png" ] || fail "no picture in $pictures"
}

for locale in C.UTF-8 de_DE.UTF-8 el_GR.UTF-8 ja_JP.UTF-8; do
  paths_under $locale Jürgen
  paths_under $locale Ελλάδα
  paths_under $locale 日本語
done

described() {
  cat <<END
{
  "alternatives": [],
  "attributes": [
    {
      "name": "$1",
      "orientation": "benefit",
      "scoreMin": 0,
      "scoreMax": 100,
      "worst": 10,
      "best": 90,
      "curve": [[0, 0], [100, 1]]
    }
  ]
}
END
}

texts_under() {  # texts_under LOCALE NAME CODE_PAGE REFUSED
  locale=$1
  described "$2" >"$work/model.json"
  tarnwise model build "$work/model.json" "$work/model.kst" >/dev/null || fail "model build under $1"
  grep -qF "$(printf '%s' "$2" | iconv -f UTF-8 -t "$3")" "$work/model.kst" || fail "$2 is not in $3 under $1"
  tarnwise model show "$work/model.kst" | tr -d '\r' | cmp -s - "$work/model.json" || fail "model show under $1"
  printf 'host load model.kst\ndata AttName\n' >"$work/names.session"
  for toolkit in "--toolkit headless" --com; do
    tarnwise play $toolkit "$work/names.session" | grep -qF "\"$2\"" || fail "$2 by $toolkit under $1"
  done
  locale=C.UTF-8
  tarnwise model show --code-page "$3" "$work/model.kst" | tr -d '\r' | cmp -s - "$work/model.json" ||
    fail "model show --code-page $3"
  locale=$1
  described "$4" >"$work/refused.json"
  tarnwise model build "$work/refused.json" "$work/refused.kst" 2>"$work/why" && fail "$4 was built under $1"
  grep -q "AttName of attribute 0 ($4): the character '$4' .* is not in code page ${3#CP}" "$work/why" ||
    fail "$4 under $1: $(cat "$work/why")"
}

texts_under el_GR.UTF-8 Κλίνες CP1253 床
texts_under ja_JP.UTF-8 病床 CP932 ü
texts_under de_DE.UTF-8 Bücher CP1252 λ

[ $failed = 0 ] && echo "texts: all were well"
exit $failed
