#!/bin/sh
# Plays the tour and takes from it the pictures of the help that are not there yet, and those that are named.
#
# Usage: make-help-pictures.sh BUILD PICTURES [NAME...]
set -eu

build=$1
pictures=$2
shift 2

export CSERKO_SEED=1
made=$(mktemp -d)
trap 'rm -rf "$made"' EXIT
"$(dirname "$0")/../x11/with-display.sh" 1280x1024 "$build/cserko-tour" "$made" ||
  echo "The tour has found faults: look at the pictures twice."
for picture in "$made"/help/*.png; do
  name=$(basename "$picture" .png)
  case " $* " in *" $name "*) wanted=yes ;; *) wanted=no ;; esac
  [ "$wanted" = yes ] || [ ! -f "$pictures/$name.png" ] || continue
  cp "$picture" "$pictures/$name.png"
  echo "$pictures/$name.png"
done
