#!/bin/sh
# The packages on a system of their own: installed into an empty root, the program started as the menu starts it by a
# user who may write nothing there, an exercise played to its praise, everything removed, nothing left behind.
#
# Usage: install_test.sh FOLDER_OF_PACKAGES FOLDER_OF_TESTS
set -eu
export LC_ALL=C.UTF-8

packages=$1
tests=$2
work=$(mktemp -d)
root=$work/root
trap 'chmod -R u+w "$work"; rm -rf "$work"' EXIT
fail() {
  echo "$1" >&2
  exit 1
}

# Whoever is not root plays it in a namespace of his own, and the files are his.
administrator=
player=
if [ "$(id -u)" -eq 0 ]; then
  nobody=65534
  player="setpriv --reuid=$nobody --regid=$nobody --clear-groups --no-new-privs"
elif unshare --user --map-root-user true; then
  administrator='unshare --user --map-root-user'
else
  echo "Neither root nor allowed to have a namespace: nothing was tested."
  exit 77
fi

mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates" "$work/home" "$work/tmp" "$work/run" "$work/bin"
touch "$root/var/lib/dpkg/status" "$root/var/lib/dpkg/available"
chmod 755 "$work" "$root"
chmod 700 "$work/run"
files() { (cd "$root" && find . -path ./var/lib/dpkg -prune -o -path ./var/log -prune -o -print | sort); }
on_root() {
  # What the packages depend on is there, but not in this root.
  PATH=$PATH:/usr/sbin:/sbin $administrator dpkg --root="$root" --log="$work/dpkg.log" --force-depends "$@" >"$work/said" 2>&1 || {
    cat "$work/said" >&2
    fail "dpkg $* failed."
  }
}

files >"$work/before"
on_root --install "$packages"/cserko_*.deb "$packages"/cserko-data_*.deb
[ "$(find "$root/usr" -name '*.postinst' -o -type f -perm /6000 | wc -l)" -eq 0 ] || fail "A file has more rights than it needs."
# A folder of the build may be out of reach for other users.
cp "$tests/x11/with-display.sh" "$tests/packages/play_from_menu.sh" "$work/bin"
if [ -n "$player" ]; then
  chown -R "$nobody:$nobody" "$work/home" "$work/tmp" "$work/run"
else
  chmod -R a-w "$root/usr"
fi

# shellcheck disable=SC2086 # a command and its words
env -i PATH="$root/usr/bin:$PATH" HOME="$work/home" TMPDIR="$work/tmp" XDG_RUNTIME_DIR="$work/run" LANG=C.UTF-8 \
  XDG_DATA_DIRS="$root/usr/share:/usr/local/share:/usr/share" \
  $player "$work/bin/with-display.sh" 1280x1024 "$work/bin/play_from_menu.sh" "$root"

[ -f "$work/home/.local/share/cserko/cserk.pmz" ] || fail "The main window has not kept its options."
left=$(cd "$work/home" && find . -mindepth 1 -path ./.cache -prune -o -path './.local/share/cserko*' -prune -o \
  ! -path ./.local ! -path ./.local/share -print)
[ -z "$left" ] || fail "Written outside the user's folder of the program: $left"
left=$(find "$work/tmp" -mindepth 1)
[ -z "$left" ] || fail "Left among the temporary files: $left"

chmod -R u+w "$root/usr"
on_root --purge cserko cserko-data
files >"$work/after"
diff "$work/before" "$work/after" || fail "The packages leave files behind."
echo "Installed, played, removed; nothing is left."
