#!/usr/bin/env bash
# usage: root_test.sh FOLDER
# Installs the two packages in FOLDER in a fresh Debian root that debootstrap makes, works with them there as their
# users would, and removes them: nothing of theirs is left. 77 says that there is no such root here, and why. The files
# that apt fetches are kept in FOLDER/archives for the next time.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
source=$(cd "$here/../.." && pwd)
folder=$(realpath "$1")
root=$folder/root
log=$folder/root.log

left_out() {
  echo "packages: no fresh root: $*" >&2
  exit 77
}

fail() {
  echo "packages: in a fresh root: $*" >&2
  exit 1
}

[ "$(id -u)" = 0 ] || left_out "only root can make one"
for program in debootstrap chroot unshare; do
  command -v $program >/dev/null || left_out "there is no $program here"
done
unshare -m true 2>/dev/null || left_out "mounts of its own are not allowed here"
read -r mirror suite < <(apt-get indextargets --format '$(CREATED_BY) $(REPO_URI) $(CODENAME)' |
  sed -n 's/^Packages //p') || left_out "apt has no mirror"

inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 HOME=/tmp/home "$@"; }
quietly() { inside DEBIAN_FRONTEND=noninteractive "$@" >>"$log" 2>&1; }

# All files of the root and what they are, but for what dpkg, apt and caches keep about packages that were there once.
snapshot() {
  (cd "$root" && find . -xdev \( -path ./proc -o -path ./sys -o -path ./dev -o -path ./tmp -o -path ./var/lib/dpkg \
    -o -path ./var/lib/apt -o -path ./var/cache -o -path ./var/log \) -prune -o -printf '%y %m %u %p %l\n') |
    LC_ALL=C sort
}

mkdir -p "$folder/archives"
rm -rf --one-file-system "$root"
: >"$log"
# Stable tools and the compiler at once: what a user of the packages would have.
timeout 900 debootstrap --variant=minbase --cache-dir="$folder/archives" "$suite" "$root" "$mirror" >>"$log" 2>&1 ||
  left_out "debootstrap failed, see $log"
echo force-unsafe-io >"$root/etc/dpkg/dpkg.cfg.d/unsafe-io"
printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d"  # no services are started in there
chmod +x "$root/usr/sbin/policy-rc.d"
cp /etc/resolv.conf "$root/etc"
cp "$folder"/archives/*.deb "$root/var/cache/apt/archives" 2>/dev/null || true
wanted=$(for deb in "$folder"/*.deb; do dpkg-deb --field "$deb" Depends; done | paste -sd ,)
quietly timeout 900 apt-get satisfy -y -qq --no-install-recommends \
  "$wanted, g++, cmake, ninja-build, pkg-config, shared-mime-info, desktop-file-utils, bash-completion, man-db" ||
  left_out "what the packages depend on could not be installed, see $log"
cp "$root"/var/cache/apt/archives/*.deb "$folder/archives" 2>/dev/null || true
before=$(snapshot)

mkdir -p "$root/tmp/home"  # what users keep is theirs
cp "$folder"/*.deb "$root/tmp"
# By dpkg, which fetches nothing: the dependencies that they name are all that they need.
quietly sh -c 'dpkg -i /tmp/*.deb' || fail "they could not be installed, see $log"

version=$(dpkg-deb --field "$folder"/tarnwise_*.deb Version)
[ "$(inside tarnwise --version | sed -n 1p)" = "tarnwise ${version%-*}" ] || fail "tarnwise --version does not say so"
inside sh -euc '
  cd /tmp
  samples=/usr/share/doc/tarnwise/examples
  tarnwise import $samples/hospitals.csv hospitals.tarnwise --unit Hospital \
    --inputs Doctors,Nurses --outputs Outpatients,Inpatients >/dev/null
  tarnwise solve hospitals.tarnwise >solved.txt
  for project in $samples/*.tarnwise; do
    [ ! -e "$project" ] || tarnwise solve "$project" >/dev/null
  done
  tarnwise model show $samples/hospitals.kst >/dev/null
  QT_QPA_PLATFORM=offscreen tarnwise play --toolkit qt --shots /tmp/shots $samples/hospitals.session >played.txt
  QT_QPA_PLATFORM=offscreen tarnwise open --pictures /tmp/pages hospitals.tarnwise >/dev/null
  tarnwise report hospitals.tarnwise report.html
  tarnwise report hospitals.tarnwise report.pdf
  man tarnwise-solve >/dev/null
' 2>>"$log" || fail "the program does not work there, see $log"
grep -q '^Hospital C *0.883 ' "$root/tmp/solved.txt" || fail "solve gives something else: $(cat "$root/tmp/solved.txt")"
grep -q '^{' "$root/tmp/played.txt" || fail "play prints nothing"
ls "$root"/tmp/pages/*.png >/dev/null || fail "the window takes no pictures of its pages"
[ "$(head -c 5 "$root/tmp/report.pdf")" = %PDF- ] || fail "the report is no PDF"

type_of() { inside sh -c "grep -h '$1' /usr/share/mime/globs2 | cut -d : -f 2"; }
[ "$(type_of '\*\.tarnwise$')" = application/x-tarnwise ] || fail "the desktop does not know projects"
[ "$(type_of '\*\.kst$')" = application/x-tarnwise-model ] || fail "the desktop does not know models"
for type in application/x-tarnwise application/x-tarnwise-model; do
  grep -q "^$type=" "$root/usr/share/applications/mimeinfo.cache" || fail "the desktop does not know what opens $type"
done

mkdir "$root/tmp/guide"
cp "$source/tests/install/host_guide_test.sh" "$source/docs/host-guide.md" "$root/tmp/guide"
inside bash /tmp/guide/host_guide_test.sh /tmp/guide/host-guide.md installed /tmp/guide/work >>"$log" 2>&1 ||
  fail "the program of the host guide does not work with the installed library, see $log"

quietly apt-get purge -y -qq tarnwise libtarnwise-dev || fail "they could not be removed, see $log"
diff <(echo "$before") <(snapshot) || fail "their removal leaves or takes something"
! grep -rl tarnwise "$root/usr/share/mime" "$root/usr/share/applications" "$root/etc" ||
  fail "the desktop still knows them"
rm -rf --one-file-system "$root"
echo "packages: installed, used and removed in a fresh root"
