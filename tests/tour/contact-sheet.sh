#!/bin/sh
# Writes index.html into the folder of the tour: a row for each window, a column for each screen size.
#
# Usage: contact-sheet.sh OUT
set -eu

out=$1
cd "$out"
# Tours on several screens may end at once.
draft=index.html.$$

# One line for each picture: size, number on the tour, name, file. Pictures of the help have no number and come last.
list_pictures() {
  for size in $(ls -d [0-9]*x[0-9]*/ | sort -n); do
    size=${size%/}
    for file in "$size"/*.png; do
      [ -e "$file" ] || continue
      name=$(basename "$file" .png)
      number=${name%%-*}
      case $number in
        '' | *[!0-9]*) number=100000 ;;
        *) name=${name#*-} ;;
      esac
      printf '%s\t%s\t%s\t%s\n' "$size" "$number" "$name" "$file"
    done
  done
}

list_pictures | sort -t "$(printf '\t')" -k 2,2n -k 3,3 -s | awk -F '\t' '
  { if (!($1 in width)) { width[$1] = $1 + 0; sizes[++columns] = $1 } }
  !($3 in known) { known[$3] = 1; names[++rows] = $3 }
  { file[$3, $1] = $4; ++pictures }
  function cell(name, size) {
    if (!((name, size) in file)) return "<td>–</td>"
    return "<td><a href=\"" file[name, size] "\"><img loading=\"lazy\" src=\"" file[name, size] "\" alt=\"" name ", " size "\"></a></td>"
  }
  END {
    if (pictures == 0) exit 1
    for (i = 2; i <= columns; ++i)
      for (j = i; j > 1 && width[sizes[j]] < width[sizes[j - 1]]; --j) { t = sizes[j]; sizes[j] = sizes[j - 1]; sizes[j - 1] = t }
    print "<!doctype html>\n<html lang=\"en\">\n<meta charset=\"utf-8\">\n<title>Tintakő Cserkó: the tour</title>"
    print "<style>body { font-family: serif; background: #fbf5e6; color: #3b2414; } table { border-collapse: collapse; }"
    print "td, th { border: 1px solid #c9b895; padding: 4px; text-align: left; vertical-align: top; }"
    print "thead th { position: sticky; top: 0; background: #fbf5e6; } img { width: 400px; height: 250px; object-fit: contain; }</style>"
    print "<h1>Tintakő Cserkó: the tour</h1>\n<p>" rows " pictures on " columns " screens, " pictures " in all. A click shows one as it is.</p>"
    printf "<table>\n<thead><tr><th>Picture</th>"
    for (i = 1; i <= columns; ++i) printf "<th>%s</th>", sizes[i]
    print "</tr></thead>"
    for (row = 1; row <= rows; ++row) {
      printf "<tr id=\"%s\"><th>%s</th>", names[row], names[row]
      for (i = 1; i <= columns; ++i) printf "%s", cell(names[row], sizes[i])
      print "</tr>"
    }
    print "</table>\n</html>"
  }' >"$draft" || {
  rm -f "$draft"
  echo "There is no picture in $out." >&2
  exit 1
}
mv "$draft" index.html
