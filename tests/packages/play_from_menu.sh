#!/bin/sh
# Starts the installed program by the command of its entry in the menu, and plays True or false by keys of the X server to
# the praise, knowing no more than the titles of the windows. What is no right answer leaves the puzzle as it is, so both
# are given in turn.
#
# Usage: play_from_menu.sh ROOT
set -eu

root=$1
pack=$root/usr/share/cserko/pack
unset CSERKO_USER_DIR
program=
trap '[ -z "$program" ] || kill "$program" 2>/dev/null || true' EXIT
fail() {
  echo "$1" >&2
  echo "Windows: $(xdotool search --onlyvisible --name . 2>/dev/null | while read -r id; do
    printf '"%s" ' "$(xdotool getwindowname "$id")"
  done)" >&2
  exit 1
}

[ ! -w "$pack" ] && [ ! -w "$pack/kepek" ] && [ ! -w "$pack/kepek/0.wms" ] || fail "The pack can be written."
[ ! -w "$root/usr/bin/cserko" ] || fail "The program can be written."

in_front() { [ "$(xdotool getactivewindow getwindowname 2>/dev/null)" = "$1" ]; }
begins_in_front() { case $(xdotool getactivewindow getwindowname 2>/dev/null) in "$1"*) ;; *) return 1 ;; esac; }
gone() { ! kill -0 "$program" 2>/dev/null; }
# await WHAT CONDITION...: until it holds; half a minute at most.
await() {
  what=$1
  shift
  looks=0
  until "$@"; do
    looks=$((looks + 1))
    [ "$looks" -lt 600 ] || fail "Waited in vain: $what"
    [ "$what" = "the end" ] || ! gone || fail "The program has ended: $what"
    sleep 0.05
  done
}

command=$(sed -n 's/^Exec=//p' "$root/usr/share/applications/cserko.desktop" | sed 's/ *%[A-Za-z]//g')
[ -n "$command" ] || fail "The entry of the menu starts nothing."
# shellcheck disable=SC2086 # a command and its words
$command &
program=$!

await "the main window" in_front "Tintakő Cserkó"
xdotool key alt+i
await "the exercise" in_front "Cserkó Igaz-hamis"

# The help viewer of the package, with the page of the exercise.
xdotool key F1
await "the help page" begins_in_front "Súgó"
xdotool key Escape
await "the exercise behind its help" in_front "Cserkó Igaz-hamis"

answers=0
until in_front "Cserkó"; do
  answers=$((answers + 1))
  [ "$answers" -le 200 ] || fail "No praise after $answers answers."
  ! gone || fail "The program has ended."
  xdotool key space Tab
  sleep 0.05
done
[ "$answers" -ge 6 ] || fail "Praise after $answers answers, though six pictures make a set."
# The panel takes a key only behind a pause of all keys, so that nobody sends it away unseen: one press every second.
next_set_begun() {
  [ $((looks % 20)) -ne 19 ] || xdotool key Return
  in_front "Cserkó Igaz-hamis"
}
await "the next set" next_set_begun
xdotool key alt+F4
await "the main window again" in_front "Tintakő Cserkó"
xdotool key Escape
await "the end" gone
status=0
wait "$program" || status=$?
program=
[ "$status" -eq 0 ] || fail "The program ended with $status."

# The word tool, on the same pack.
cserko-szo --check >/dev/null || fail "The word tool finds faults in the pack."
echo "Played: $answers answers to six right ones."
