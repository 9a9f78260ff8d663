#!/bin/sh
# Runs each fuzz target, or the named ones, for some seconds over its seeds. No input may take longer than ten seconds or
# more memory than 1 GB. What the fuzzer finds stays in OUT/<target> for the next run; a crash ends the run with the
# input in that folder.
#
# Usage: run-fuzzers.sh BUILD OUT SECONDS [TARGET...]
set -eu

build=$1
out=$2
seconds=$3
shift 3
sources=$(dirname "$0")

if [ $# -eq 0 ]; then
  for program in "$build"/fuzz_*; do [ -x "$program" ] && set -- "$@" "$(basename "$program")"; done
fi

for target in "$@"; do
  program=$build/$target
  corpus=$out/$target
  mkdir -p "$corpus"
  set -- "$corpus"
  for seeds in "$sources"/*/seeds/"$target" "$build"/seeds/"$target"; do [ -d "$seeds" ] && set -- "$@" "$seeds"; done
  for words in "$sources"/*/"$target".dict; do [ -f "$words" ] && set -- -dict="$words" "$@"; done
  echo "$target: $seconds s"
  if ! "$program" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=1024 -artifact_prefix="$corpus/" \
    -print_final_stats=1 "$@" >"$out/$target.log" 2>&1; then
    tail -n 40 "$out/$target.log"
    echo "$target found something: see $out/$target.log" >&2
    exit 1
  fi
  grep -E 'number_of_executed_units|new_units_added|peak_rss_mb' "$out/$target.log"
done
echo "No fuzz target found anything."
