#!/bin/sh
# Puts together the folder that is installed on Windows: programs, libraries, fonts, data pack, licences.
#
# Usage: stage.sh PACK
set -eu

here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=packaging/windows/common.sh
. "$here/common.sh"
pack=$1

rm -rf "$stage"
mkdir -p "$stage/platforms" "$stage/imageformats" "$stage/fonts" "$stage/licenses"

cp "$work/program/cserko.exe" "$work/program/tintabrowser.exe" "$work/program/cserko-szó.exe" "$stage/"
cp "$prefix/plugins/platforms/qwindows.dll" "$stage/platforms/"
cp "$prefix/plugins/imageformats/qjpeg.dll" "$stage/imageformats/"

# What a program or a library asks for and none of Windows' own answers to.
compiler_folders=$(for library in libstdc++-6 libgcc_s_seh-1 libwinpthread-1; do
  dirname "$("$tools-g++-posix" -print-file-name=$library.dll)"
done | sort -u)
asked_for() {
  find "$stage" -name '*.exe' -o -name '*.dll' | while read -r file; do "$tools-objdump" -p "$file"; done |
    sed -n 's/^.*DLL Name: //p' | sort -u
}
complete=false
until $complete; do
  complete=true
  for library in $(asked_for); do
    [ ! -e "$stage/$library" ] || continue
    for folder in "$prefix/bin" $compiler_folders; do
      [ -e "$folder/$library" ] || continue
      cp "$folder/$library" "$stage/"
      complete=false
      break
    done
  done
done
find "$stage" \( -name '*.exe' -o -name '*.dll' \) -exec "$tools-strip" --strip-unneeded {} +

# All that is still asked for must be a part of every Windows 10.
foreign=$(asked_for | while read -r library; do
  [ -e "$stage/$library" ] || grep -q -x -i -F "$library" "$here/system-libraries.txt" || echo "$library"
done)
if [ -n "$foreign" ]; then
  echo "Nobody brings these libraries along:" "$foreign" >&2
  exit 1
fi

# The serif has the measures that the windows are laid out for; Windows has another one.
cp /usr/share/fonts/truetype/liberation/LiberationSerif-*.ttf "$stage/fonts/"

cp -r "$pack" "$stage/pack"
rm -rf "$stage/pack/.built"
cp "$work"/tunes/*.ogg "$stage/pack/dysmid/"

cp "$cache"/licenses/*.txt "$stage/licenses/"
rm -f "$stage/licenses/googletest.txt"
cp /usr/share/doc/fonts-liberation/copyright "$stage/licenses/fonts-liberation.txt"
[ ! -e "$root/LICENSE" ] || cp "$root/LICENSE" "$stage/LICENSE.txt"
