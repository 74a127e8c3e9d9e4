#!/usr/bin/env bash
# usage: report_test.sh PROGRAM SAMPLES WORK_DIR
# Writes reports of both samples in both formats: the HTML passes a checker, the PDF has its pages and its words, and
# what is no report is refused with nothing written.
set -uo pipefail
program=$(realpath "$1") samples=$(realpath "$2") work=$3
failed=0

wrong() {
  echo "report: $*"
  failed=1
}

# report PROJECT FILE [OPTION]...
report() { env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$program" report "$@"; }

# The checker complains of what it doesn't know; it must have nothing to say.
check_html() {
  local said
  said=$(tidy -errors -quiet -utf8 "$1" 2>&1) || wrong "$1: $said"
  grep -q "<h2>What was asked, and of whom</h2>" "$1" || wrong "$1 does not say what was asked"
  ! grep -nE 'nan|inf[^ol]' <(sed 's/<[^>]*>//g' "$1") || wrong "$1 has numbers that are none"
}

check_pdf() {
  local words=$work/words.txt pages
  pages=$(pdfinfo "$1" | sed -n 's/^Pages: *//p')
  [ "${pages:-0}" -ge 3 ] || wrong "$1 has ${pages:-no} pages"
  pdftotext -layout "$1" "$words" || wrong "$1 can't be read"
  for word in "What was asked" "Method" "What was left out" "$2"; do
    grep -qF "$word" "$words" || wrong "$1 does not say $word"
  done
  pdftotext -f 1 -l 1 "$1" - | grep -q . || wrong "$1 begins with an empty page"
}

rm -rf "$work"
mkdir -p "$work"
cd "$work" || exit 1
"$program" import "$samples/hospitals.kst" hospitals.tarnwise >/dev/null || wrong "no project of the hospitals"
"$program" import "$samples/universities.kst" universities.tarnwise >/dev/null || wrong "no project of the universities"
for form in ratio value; do
  for name in hospitals universities; do
    report $name.tarnwise $name-$form.html --form $form || wrong "no HTML of $name"
    check_html $name-$form.html
    report $name.tarnwise $name-$form.pdf --form $form || wrong "no PDF of $name"
    check_pdf $name-$form.pdf "$([ $form = value ] && echo "Loses at most" || echo "Super")"
  done
done

for bad in report.txt .html hospitals; do
  status=0
  report hospitals.tarnwise $bad 2>said.txt || status=$?
  [ $status = 2 ] && [ ! -e $bad ] && grep -q "ends in .html or .pdf" said.txt || wrong "$bad was not refused"
done
status=0
report missing.tarnwise report.html 2>/dev/null || status=$?
[ $status = 2 ] && [ ! -e report.html ] || wrong "a report of no project was not refused"
status=0
report hospitals.tarnwise nowhere/report.pdf 2>/dev/null || status=$?
[ $status = 1 ] || wrong "a file that can't be written ended with $status"
[ $failed = 0 ] && echo "report: both samples, both formats"
exit $failed
