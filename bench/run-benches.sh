#!/bin/sh
# Runs all measurements on a screen of their own; what they print is kept in OUT, one file each.
#
# Usage: run-benches.sh BUILD OUT
set -eu

build=$1
out=$2
here=$(dirname "$0")

mkdir -p "$out"
failed=0
for program in "$build"/bench_*; do
  [ -x "$program" ] || continue
  name=$(basename "$program")
  echo "== $name"
  "$here/../tests/x11/with-display.sh" 1280x1024 "$program" >"$out/$name.txt" || failed=1
  cat "$out/$name.txt"
done
echo "The figures are in $out."
exit $failed
