#!/bin/sh
# Plays the tour and leafs through the help on screens of three sizes, each on an X server of its own, with the same
# chance each time, and lays all pictures side by side on one page.
#
# Usage: run-tour.sh BUILD OUT [WIDTHxHEIGHT...]
set -eu

build=$1
out=$2
shift 2
[ $# -gt 0 ] || set -- 1280x1024 1024x600 3840x2160

export CSERKO_SEED=1
pages=${CSERKO_PACK_DIR:-$build/../pack}/cserko/help
on_display=$(dirname "$0")/../x11/with-display.sh
failed=0
for size; do
  rm -rf "${out:?}/$size"
  mkdir -p "$out/$size"
  echo "Tour on $size:"
  "$on_display" "$size" "$build/cserko-tour" "$out/$size" || failed=1
  "$on_display" "$size" "$build/cserko-help-tour" "$pages" "$out/$size" || failed=1
done
"$(dirname "$0")/contact-sheet.sh" "$out" || failed=1
echo "The pictures are in $out, all of them side by side in $out/index.html."
exit $failed
