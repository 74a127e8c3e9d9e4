#!/usr/bin/env bash
# usage: deb_test.sh FOLDER PROGRAM
# Looks into the two packages in FOLDER: what they hold and need, that the desktop's files are valid, that each command
# of PROGRAM has its manual page with each of its options, that completion offers them, and what lintian says.
set -uo pipefail
here=$(cd "$(dirname "$0")" && pwd)
source=$(cd "$here/../.." && pwd)
folder=$1 program=$2
failed=0

wrong() {
  echo "packages: $*"
  failed=1
}

need() {
  command -v "$1" >/dev/null || { wrong "there is no $1 here"; return 1; }
}

field() { dpkg-deb --field "$1" "$2"; }

# Beside what is listed stand samples, documents and their pictures, whichever there are.
check_contents() {  # PACKAGE EXPECTED
  dpkg-deb --fsys-tarfile "$1" | tar -t | sed 's|^\./||' | grep -v -e '/$' -e '/doc/.*\.md$' -e '/pictures/' \
    -e '/examples/' | LC_ALL=C sort |
    sed "s|$(dpkg-architecture -qDEB_HOST_MULTIARCH)|ARCH|" | diff -u "$here/$2" - || wrong "$1 holds other files"
  dpkg-deb --fsys-tarfile "$1" | tar -tv | awk '$2 != "root/root" { print; bad = 1 } END { exit bad }' ||
    wrong "$1 has files that are not root's"
}

# commands of one level: the names below "Subcommands:"
commands() { "$program" "$@" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z]*\)  .*/\1/p'; }
options() { "$program" "$@" --help | sed -n 's/^  \(-h,\)\{0,1\}\(--[a-z-]*\).*/\2/p' | grep -v '^--help$'; }
page() { zcat "$unpacked/usr/share/man/man1/$1.1.gz" | sed 's/\\-/-/g'; }

check_options() {  # PAGE COMMAND...
  local option of=$1
  shift
  for option in $(options "$@"); do
    page "$of" | grep -qE -- "(^|[^a-z-])$option($|[^a-z-])" || wrong "the manual page $of does not tell $option"
  done
}

check_manuals() {
  local command under found=0 file
  check_options tarnwise
  for command in $(commands); do
    found=$((found + 1))
    [ -e "$unpacked/usr/share/man/man1/tarnwise-$command.1.gz" ] || { wrong "$command has no manual page"; continue; }
    page tarnwise | grep -q "^.BR tarnwise-$command (1)$" || wrong "the manual page tarnwise does not name $command"
    check_options "tarnwise-$command" "$command"
    for under in $(commands "$command"); do check_options "tarnwise-$command" "$command" "$under"; done
  done
  [ $found -ge 5 ] || wrong "only $found commands were found"
  for file in "$unpacked"/usr/share/man/man1/*.gz; do
    LC_ALL=C.UTF-8 MANROFFSEQ= man --warnings=all -E UTF-8 -l "$file" 2>&1 >/dev/null | sed "s|^|$(basename "$file"): |" |
      { ! grep .; } || wrong "$(basename "$file") is not clean"
    command=$(basename "$file" .1.gz)
    command=${command#tarnwise}
    [ -z "$command" ] || commands | grep -qx -- "${command#-}" || wrong "there is a page, but no command ${command#-}"
  done
}

# complete WORD...: what is offered for the last word
complete_words() {
  PATH=$(dirname "$program"):$PATH bash -c '
    source "$0"
    compopt() { :; }
    COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
    _tarnwise tarnwise
    printf "%s\n" "${COMPREPLY[@]}"' "$unpacked/usr/share/bash-completion/completions/tarnwise" "$@" | LC_ALL=C sort |
    xargs
}

check_completion() {
  local command scratch=$folder/completion
  [ "$(complete_words tarnwise so)" = solve ] || wrong "so is not completed to solve"
  for command in $(commands); do
    complete_words tarnwise "" | grep -qw -- "$command" || wrong "$command is not offered"
  done
  complete_words tarnwise solve --cr | grep -qxF -- --cross-band || wrong "--cr is not completed"
  [ "$(complete_words tarnwise solve --form r)" = ratio ] || wrong "the forms are not offered"
  complete_words tarnwise model build --co | grep -qxF -- --code-page || wrong "options below model are not offered"
  rm -rf "$scratch"
  mkdir -p "$scratch/inner"
  touch "$scratch"/{one.tarnwise,two.kst,three.csv}
  [ "$(cd "$scratch" && complete_words tarnwise solve "")" = "inner one.tarnwise" ] || wrong "projects are not offered"
  [ "$(cd "$scratch" && complete_words tarnwise run t)" = two.kst ] || wrong "models are not offered"
}

program_deb=$(ls "$folder"/tarnwise_*.deb) && library_deb=$(ls "$folder"/libtarnwise-dev_*.deb) || exit 1
unpacked=$folder/unpacked
rm -rf "$unpacked"
dpkg-deb --extract "$program_deb" "$unpacked"
program=$(realpath "$program")

check_contents "$program_deb" tarnwise.contents
check_contents "$library_deb" libtarnwise-dev.contents
diff <(cd "$source/samples" && find . -path ./com -prune -o -type f -print | LC_ALL=C sort) \
  <(cd "$unpacked/usr/share/doc/tarnwise/examples" && find . -type f | LC_ALL=C sort) || wrong "samples are missing"
for library in libc6 libglpk40 libqcustomplot2.1 libqt6core6 libqt6gui6 libqt6widgets6 libstdc++6; do
  field "$program_deb" Depends | grep -qF "$library" || wrong "the program's package does not depend on $library"
done
field "$library_deb" Depends | grep -qw qt6-base-dev || wrong "the library's package does not depend on Qt's headers"
version=$("$program" --version | sed -n '1s/^tarnwise //p')
[ -n "$version" ] || wrong "the program has no version"
for deb in "$program_deb" "$library_deb"; do
  [ "$(field "$deb" Version)" = "$version-1" ] || wrong "$deb is not of version $version"
done
grep -q "release version=\"$version\"" "$unpacked"/usr/share/metainfo/*.xml || wrong "AppStream tells of no $version"
grep -q "General Public License" <("$program" --version) || wrong "--version does not name the licence of the whole"
check_manuals
check_completion
if need desktop-file-validate; then desktop-file-validate "$unpacked"/usr/share/applications/*.desktop || failed=1; fi
if need appstreamcli; then
  appstreamcli validate --no-net "$unpacked"/usr/share/metainfo/*.xml || wrong "the AppStream metadata are not valid"
fi
if need lintian; then
  lintian --allow-root --fail-on error --suppress-tags initial-upload-closes-no-bugs "$program_deb" "$library_deb" ||
    wrong "lintian finds errors"
fi
[ $failed = 0 ] && echo "packages: their contents are well"
exit $failed
