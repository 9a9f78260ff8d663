#!/bin/sh
# Plays the tour on screens of three sizes, each on an X server of its own, with the same chance each time.
#
# Usage: run-tour.sh BUILD OUT [WIDTHxHEIGHT...]
set -eu

build=$1
out=$2
shift 2
[ $# -gt 0 ] || set -- 1280x1024 1024x600 3840x2160

export CSERKO_SEED=1
failed=0
for size; do
  rm -rf "${out:?}/$size"
  mkdir -p "$out/$size"
  echo "Tour on $size:"
  "$(dirname "$0")/../x11/with-display.sh" "$size" "$build/cserko-tour" "$out/$size" || failed=1
done
echo "The pictures are in $out."
exit $failed
