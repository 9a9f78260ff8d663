#!/bin/sh
# Writes the changelog of the Debian packages from the project's own page of changes.
#
# Usage: changelog.sh MAINTAINER CHANGELOG.md RESULT
set -eu
export LC_ALL=C.UTF-8

awk -v maintainer="$1" '
  function day(date,  command, result) {
    command = "date -u -R -d \"" date " 12:00\""
    command | getline result
    close(command)
    return result
  }
  # An entry, in lines of at most 79 characters.
  function tell(  words, count, i, line) {
    count = split(entry, words, " ")
    line = "  *"
    for (i = 1; i <= count; ++i) {
      if (length(line) + 1 + length(words[i]) > 79) {
        print line
        line = "   "
      }
      line = line " " words[i]
    }
    if (count > 0) print line
    entry = ""
  }
  function sign() {
    tell()
    if (date != "") printf "\n -- %s  %s\n", maintainer, day(date)
  }
  /^## / {
    sign()
    if (date != "") print ""
    date = substr($3, 2, length($3) - 2)
    printf "cserko (%s) unstable; urgency=low\n\n", $2
  }
  date != "" && /^- / {
    tell()
    entry = substr($0, 3)
  }
  date != "" && /^  / { entry = entry " " $0 }
  END { sign() }' "$2" >"$3"
