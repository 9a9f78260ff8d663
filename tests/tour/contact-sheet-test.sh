#!/bin/sh
# The contact sheet shows each picture of the tour once, in its column, in the order of the tour.
set -eu

out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
sheet=$(dirname "$0")/contact-sheet.sh

fail() {
  echo "$1" >&2
  exit 1
}

if "$sheet" "$out" 2>/dev/null; then fail "a sheet of no pictures was made"; fi

mkdir "$out/1024x600" "$out/3840x2160" "$out/3840x2160/help"
for file in 1024x600/2-main.png 1024x600/10-graphic.png 1024x600/help-Súgó-1.png 3840x2160/2-main.png \
  3840x2160/9-only-here.png 3840x2160/help/none.png; do
  : >"$out/$file"
done
"$sheet" "$out"
rows=$(sed -n 's/^<tr id="\([^"]*\)".*/\1/p' "$out/index.html" | tr '\n' ' ')
[ "$rows" = "main only-here graphic help-Súgó-1 " ] || fail "rows: $rows"
columns=$(grep -o '<th>[0-9]*x[0-9]*</th>' "$out/index.html" | tr -d '\n')
[ "$columns" = "<th>1024x600</th><th>3840x2160</th>" ] || fail "columns: $columns"
grep -q '^<tr id="graphic">.*href="1024x600/10-graphic.png".*<td>–</td></tr>$' "$out/index.html" || fail "no gap"
[ "$(grep -o '<img ' "$out/index.html" | wc -l)" = 5 ] || fail "not every picture once"
