#!/usr/bin/env bash
# usage: zip_test.sh BUILD64 BUILD32 WORK_DIR
# Packs both builds and looks into the packages: their files, what the DLL and the program import, what the DLL exports,
# the line ends, and that packing again gives the same bytes.
set -uo pipefail
here=$(cd "$(dirname "$0")" && pwd)
source=$(cd "$here/../.." && pwd)
build64=$1 build32=$2 work=$3
failed=0

wrong() {
  echo "package: $*"
  failed=1
}

# headers MINGW FILE: only what follows is read from them, in English
headers() { LC_ALL=C "$1-w64-mingw32-objdump" -p "$2" | tr -d '\r'; }

check_imports() {  # MINGW FILE
  local library found=0
  for library in $(headers "$1" "$2" | sed -n 's/^[[:space:]]*DLL Name: //p' | tr A-Z a-z); do
    found=1
    grep -qxF "$library" "$here/imports.allowed" || wrong "$2 needs $library, which is no library of the system's"
  done
  [ $found = 1 ] || wrong "$2 imports nothing: is that a program?"
}

check_exports() {  # MINGW FILE
  local names
  names=$(headers "$1" "$2" | awk '/Ordinal\/Name Pointer/ { on = 1; next } on && !NF { exit } on { print $NF }' |
    LC_ALL=C sort | xargs)
  [ "$names" = "DllCanUnloadNow DllGetClassObject DllInstall DllRegisterServer DllUnregisterServer TarnwiseSetHelp" ] ||
    wrong "$2 exports $names"
}

check_package() {  # BITS MINGW FORMAT
  local zip folder file
  zip=$(ls "$work"/first/*-win"$1".zip) || { wrong "there is no zip for $1 bits"; return; }
  folder=$work/$1
  rm -rf "$folder"
  unzip -q "$zip" -d "$folder" || wrong "$zip can't be unpacked"
  [ "$(ls "$folder")" = "$(basename "$zip" .zip)" ] || wrong "$zip does not unpack into one folder of its name"
  folder=$folder/$(basename "$zip" .zip)
  (cd "$folder" && find . -type f | sed 's|^\./||' | LC_ALL=C sort) |
    diff -u "$here/contents.expected" - || wrong "$zip holds other files"
  for file in Tarnwise_DEA.dll tarnwise.exe; do
    [ "$(headers "$2" "$folder/$file" | sed -n 's/.*file format //p')" = "$3" ] || wrong "$file is not of $1 bits"
    check_imports "$2" "$folder/$file"
  done
  check_exports "$2" "$folder/Tarnwise_DEA.dll"
  for file in register.cmd unregister.cmd README.txt samples/com/clsWizardEvents.cls samples/com/hospitals.vbs; do
    [ "$(grep -c $'\r$' "$folder/$file")" = "$(wc -l <"$folder/$file")" ] || wrong "$file has no line ends of Windows"
    ! grep -q '@[A-Z]*@' "$folder/$file" || wrong "$file has places that were not filled in"
  done
  grep -q "for $1-bit hosts" "$folder/register.cmd" || wrong "register.cmd is not for $1 bits"
  cmp "$source/samples/hospitals.kst" "$folder/samples/hospitals.kst" || wrong "the model was changed"
}

rm -rf "$work"
mkdir -p "$work"
"$source/packaging/make-zip" "$build64" "$build32" "$work/first" || { wrong "packing failed"; exit 1; }
"$source/packaging/make-zip" "$build64" "$build32" "$work/second" >/dev/null || wrong "packing again failed"
diff -r "$work/first" "$work/second" || wrong "packing again gave other bytes"
check_package 64 x86_64 pei-x86-64
check_package 32 i686 pei-i386
[ $failed = 0 ] && echo "package: both are well"
exit $failed
