#!/bin/sh
# Writes two lists for the installer: what it installs, and what the uninstaller takes away again, which is the same files
# one by one, and those folders that are empty then. So nothing is lost that the user has put among them.
#
# Usage: list-files.sh FOLDER FILES.nsh REMOVAL.nsh
set -eu

cd "$1"
windows_path() { printf '%s' "$1" | sed 's#^\./##; s#/#\\#g; s#\$#$$#g'; }

find . -type d | LC_ALL=C sort | while read -r folder; do
  if [ "$folder" = . ]; then
    echo 'SetOutPath "$INSTDIR"'
  else
    printf 'SetOutPath "$INSTDIR\\%s"\n' "$(windows_path "$folder")"
  fi
  find "$folder" -maxdepth 1 -type f | LC_ALL=C sort | while read -r file; do
    printf 'File "%s"\n' "$1/${file#./}"
  done
done >"$2"

{
  find . -type f | LC_ALL=C sort | sed 's#^\./##; s#\$#$$#g; s#/#\\#g; s#.*#Delete "$INSTDIR\\&"#'
  find . -mindepth 1 -type d | LC_ALL=C sort -r | sed 's#^\./##; s#\$#$$#g; s#/#\\#g; s#.*#RMDir "$INSTDIR\\&"#'
} >"$3"
