#!/bin/sh
# Writes the source archive: everything that git knows, or in a tree without git everything but what is built. What it
# writes unpacks into a folder named after the version and builds without git.
#
# Usage: dist.sh FOLDER
set -eu
export LC_ALL=C.UTF-8

cd "$(dirname "$0")/.."
version=$(sed -n 's/^project(cserko VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
name=cserko-$version
mkdir -p "$1"
archive=$(cd "$1" && pwd)/$name.tar.xz

# Only a repository of this very folder counts, not one around it.
if [ -e .git ]; then
  list() { git ls-files -z --cached; }
  changed=$(git log -1 --format=%ct)
else
  list() { find . \( -path ./build -o -path ./out -o -name node_modules \) -prune -o -type f -printf '%P\0'; }
  changed=$(stat -c %Y CHANGELOG.md)
fi

# The same bytes from the same sources, wherever they lie.
list | sort -z | tar --create --null --files-from=- --transform="flags=r;s,^,$name/," --mtime="@${SOURCE_DATE_EPOCH:-$changed}" \
  --owner=0 --group=0 --numeric-owner --mode=u+rw,go+r-w --format=gnu | xz -6 -T0 >"$archive.part"
mv "$archive.part" "$archive"
echo "$archive"
