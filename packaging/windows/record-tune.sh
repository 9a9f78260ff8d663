#!/bin/sh
# Plays a tune into a file of sound, as loud as the mixer's own synthesiser would play it. It lies behind a child's work:
# small files matter more than the last overtone.
#
# Usage: record-tune.sh SOUND-FONT TUNE.mid RECORDING.ogg
set -eu

trap 'rm -f "$3.wav" "$3.new"' EXIT
fluidsynth --quiet --no-shell --no-midi-in --gain 1.2 --sample-rate 32000 --audio-file-type wav --fast-render "$3.wav" \
  "$1" "$2" >/dev/null 2>&1
oggenc --quiet --quality 0 --output "$3.new" "$3.wav"
mv "$3.new" "$3"
