#!/bin/sh
# Builds the program for 64-bit Windows with all that it needs beside it, and its installer. Wants the data pack, which is
# the same on every system.
#
# Usage: build.sh PACK
set -eu

here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=packaging/windows/common.sh
. "$here/common.sh"
pack=$(cd "$1" && pwd)

"$here/libraries.sh"
mkdir -p "$work" "$products"

# The icon is that of the pack, in the sizes that Windows asks for.
icon=$work/cserko.ico
if [ ! -e "$icon" ] || [ "$pack/cserko/cserko-icon.png" -nt "$icon" ]; then
  convert "$pack/cserko/cserko-icon.png" -define icon:auto-resize=256,64,48,40,32,24,20,16 "$icon"
fi

configure "$root" "$work/program" -DCSERKO_PACK_DIR="$pack" -DCSERKO_WINDOWS_ICON="$icon" --log-level=NOTICE
cmake --build "$work/program" --target cserko tintabrowser cserko-szo

# No sequencer plays like another, and that of Windows neither fades nor stops in time: the tunes are recorded with the
# instruments that the other sounds are played with.
font=$(sed -n 's/^CSERKO_SOUND_FONT:FILEPATH=//p' "$root/build/release/CMakeCache.txt")
mkdir -p "$work/tunes"
for tune in "$pack"/dysmid/*.mid; do
  recording=$work/tunes/$(basename "$tune" .mid).ogg
  [ "$recording" -nt "$tune" ] || "$here/record-tune.sh" "$font" "$tune" "$recording"
done

"$here/stage.sh" "$pack"

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$work/program/CMakeCache.txt")
"$here/list-files.sh" "$stage" "$work/files.nsh" "$work/removal.nsh"
installer=$products/cserko-$version-setup.exe
rm -f "$products"/cserko-*-setup.exe
makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$version" -DICON="$icon" -DFILES="$work/files.nsh" \
  -DREMOVAL="$work/removal.nsh" -DKILOBYTES="$(du -sk "$stage" | cut -f 1)" -DOUTPUT="$installer" "$here/installer.nsi"
echo "The program is in $stage ($(du -sm "$stage" | cut -f 1) MB), its installer is" \
  "$installer ($(du -m "$installer" | cut -f 1) MB)."
