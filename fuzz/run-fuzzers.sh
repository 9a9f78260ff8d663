#!/bin/sh
# Runs each fuzz target for some seconds over its seeds. What it finds stays in OUT/<target> for the next run; a crash
# ends the run with the input in that folder.
#
# Usage: run-fuzzers.sh BUILD OUT SECONDS
set -eu

build=$1
out=$2
seconds=$3
sources=$(dirname "$0")

for program in "$build"/fuzz_*; do
  [ -x "$program" ] || continue
  target=$(basename "$program")
  corpus=$out/$target
  mkdir -p "$corpus"
  set -- "$corpus"
  for seeds in "$sources"/*/seeds/"$target" "$build"/seeds/"$target"; do [ -d "$seeds" ] && set -- "$@" "$seeds"; done
  for words in "$sources"/*/"$target".dict; do [ -f "$words" ] && set -- -dict="$words" "$@"; done
  echo "$target: $seconds s"
  if ! "$program" -max_total_time="$seconds" -timeout=10 -artifact_prefix="$corpus/" -print_final_stats=1 "$@" \
    >"$out/$target.log" 2>&1; then
    tail -n 40 "$out/$target.log"
    echo "$target found something: see $out/$target.log" >&2
    exit 1
  fi
  grep -E 'number_of_executed_units|new_units_added' "$out/$target.log"
done
echo "No fuzz target found anything."
