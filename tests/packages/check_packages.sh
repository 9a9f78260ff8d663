#!/bin/sh
# What the system's own judges say of the packages and of the files for its menus: no error and no warning.
#
# Usage: check_packages.sh FOLDER_OF_PACKAGES README
set -eu
export LC_ALL=C.UTF-8

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

folder=$1
readme=$2
set -- "$folder"/cserko_*.deb "$folder"/cserko-data_*.deb
[ $# -eq 2 ] && [ -f "$1" ] && [ -f "$2" ] || {
  echo "There should be two packages: $*" >&2
  exit 1
}
dpkg-deb -x "$1" "$work"
desktop-file-validate "$work/usr/share/applications/cserko.desktop"
appstreamcli validate --no-net --explain "$work/usr/share/metainfo/local.tintako.cserko.metainfo.xml"
for side in 16 22 24 32 48 64 96 128 256 512; do
  icon=$work/usr/share/icons/hicolor/${side}x$side/apps/cserko.png
  file "$icon" | grep -q "PNG image data, $side x $side, " || {
    echo "No icon of $side pixels." >&2
    exit 1
  }
done
grep -q '<svg' "$work/usr/share/icons/hicolor/scalable/apps/cserko.svg"
# Root is told that it should not.
lintian --allow-root --fail-on error,warning --tag-display-limit 0 "$@"
# The command that users are told, as far as it goes without changing the machine.
install=$(sed -n 's/^sudo apt install //p' "$readme")
# shellcheck disable=SC2086 # patterns, as they are typed
(cd "$folder" && apt-get --simulate install $install) >"$work/said" 2>&1 || {
  cat "$work/said" >&2
  exit 1
}
for package in cserko cserko-data; do
  grep -q "^Inst $package " "$work/said" || {
    cat "$work/said" >&2
    echo "The command of the README does not install $package." >&2
    exit 1
  }
done
echo "The packages are in order: $(stat -c '%n %s' "$@" | sed 's,.*/,,' | tr '\n' ' ')"
