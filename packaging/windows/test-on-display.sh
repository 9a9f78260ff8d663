#!/bin/sh
# The steps of test.sh, on the X server of the environment.
#
# Usage: test-on-display.sh TESTED TESTS STEP...
set -eu

here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=packaging/windows/common.sh
. "$here/common.sh"
tested=$1
tests=$2
shift 2

# The program finds its own folders, as it would with a user.
unset CSERKO_USER_DIR CSERKO_PACK_DIR QT_QPA_PLATFORM

target='Játékok és ő'
installed=$WINEPREFIX/drive_c/$target
pictures=$products
report=$products/report.txt
mkdir -p "$pictures"

say() { echo "$*" | tee -a "$report"; }
fail() {
  import -window root "$pictures/failed.png" || true
  say "FAILED: $*"
  exit 1
}
# await SECONDS COMMAND...: until it succeeds.
await() {
  left=$(($1 * 5))
  shift
  until "$@"; do
    left=$((left - 1))
    [ $left -gt 0 ] || return 1
    sleep 0.2
  done
}
windows_path() { printf 'Z:%s' "$1" | tr / '\\'; }
user_folder() { find "$WINEPREFIX/drive_c/users" -maxdepth 1 -mindepth 1 -type d ! -name Public; }

front() { xdotool getactivewindow getwindowname 2>/dev/null || true; }
at_front() { [ "$(front)" = "$1" ]; }
await_front() { await "${2:-60}" at_front "$1" || fail "'$1' did not come to the front, where '$(front)' is"; }
picture() { import -window root "$pictures/$1.png"; }
# A window that is painted has hundreds of colours: the paper alone is never of one shade.
colours() { convert "$pictures/$1.png" -format %k info:; }
gone() { ! kill -0 "$1" 2>/dev/null; }

start_program() {
  shortcut=$(find "$(user_folder)" -name 'Cserkó.lnk')
  [ -n "$shortcut" ] || fail "there is no entry in the start menu"
  env -u SDL_AUDIODRIVER wine start /wait /unix "$shortcut" >"$work/program.log" 2>&1 &
  program=$!
}

# click_at X Y: parts of a thousand of the window at the front, below its menu bar.
click_at() {
  eval "$(xdotool getactivewindow getwindowgeometry --shell)"
  menu=28
  # shellcheck disable=SC2153 # xdotool tells X, Y, WIDTH and HEIGHT
  xdotool mousemove $((X + WIDTH * $1 / 1000)) $((Y + menu + (HEIGHT - menu) * $2 / 1000)) click 1
}

step_install() {
  wineserver -k 2>/dev/null || true
  rm -rf "$WINEPREFIX"
  mkdir -p "$WINEPREFIX"
  wineboot -i >"$work/wine.log" 2>&1
  wine winecfg -v win10 >>"$work/wine.log" 2>&1
  set -- "$products"/cserko-*-setup.exe
  wine cmd /c "$(windows_path "$1") /S /D=C:\\$target" >>"$work/wine.log" 2>&1 || fail "the installer ends with $?"
  (cd "$stage" && find . -type f && echo ./uninstall.exe) | sort >"$work/wanted.txt"
  (cd "$installed" && find . -type f) | sort >"$work/found.txt"
  cmp "$work/wanted.txt" "$work/found.txt" || fail "other files are installed than were built"
  (cd "$stage" && find . -type f -exec sha256sum {} +) >"$work/sums.txt"
  (cd "$installed" && sha256sum --quiet -c "$work/sums.txt") || fail "a file is installed otherwise than built"
  say "install: $(wc -l <"$work/found.txt") files in C:\\$target"
}

step_play() {
  rm -rf "$(user_folder)/AppData/Local/cserko"
  start_program
  await_front 'Cserkó' 120
  sleep 2
  picture 1-main-window
  [ "$(colours 1-main-window)" -gt 500 ] || fail "the main window is blank"
  say "play: the main window is seen, without a sound device"

  xdotool key alt+i
  await_front 'Cserkó Igaz-hamis'
  sleep 1
  picture 2-exercise
  # One of the two statements is true; the other one only makes the sound of a mistake.
  clicks=0
  while at_front 'Cserkó Igaz-hamis'; do
    clicks=$((clicks + 1))
    [ $clicks -le 60 ] || fail "no congratulation after $clicks clicks"
    click_at 616 $((clicks % 2 == 1 ? 176 : 408))
    sleep 0.4
  done
  await_front 'Cserkó'
  sleep 1
  picture 3-congratulation
  say "play: a set solved with $clicks clicks, the congratulation is seen"
  xdotool key Return
  await_front 'Cserkó Igaz-hamis'
  xdotool key alt+F4
  await_front 'Cserkó'

  settings=$(user_folder)/AppData/Local/cserko/cserko/főablak.ini
  [ ! -e "$settings" ] || fail "there are settings before any was made"
  xdotool key alt+f
  sleep 0.5
  xdotool key f
  await_front 'Főablak beállításai'
  xdotool key alt+g
  sleep 0.5
  picture 4-settings
  xdotool key Return
  await 20 test -s "$settings" || fail "no settings were written"
  await_front 'Cserkó'
  sleep 2
  picture 5-graphic-window
  xdotool key alt+F4
  await 30 gone "$program" || fail "the program does not end"

  start_program
  await_front 'Cserkó' 120
  sleep 3
  picture 6-graphic-window-again
  difference=$(compare -metric AE "$pictures/5-graphic-window.png" "$pictures/6-graphic-window-again.png" null: 2>&1 || true)
  [ "${difference%%[.e]*}" -lt 1000 ] || fail "the setting was not read back: $difference pixels differ"
  xdotool key alt+F4
  await 30 gone "$program" || fail "the program does not end"
  say "play: a setting written and read back: $(od -An -c "$settings" | tr -s ' \n' ' ')"
}

# on_tested PROGRAM ARGUMENT...: one of the programs of the tests, with a user folder of its own.
on_tested() {
  (cd "$tested" && CSERKO_USER_DIR='C:\próba ő' wine "$@")
}

step_tour() {
  rm -rf "$pictures/tour" "$WINEPREFIX/drive_c/próba ő"
  mkdir -p "$pictures/tour"
  CSERKO_SEED=1 on_tested cserko-tour.exe "$(windows_path "$pictures/tour")" >"$work/tour.log" 2>&1 || true
  say "tour: $(tail -n 1 "$work/tour.log")"
}

step_help() {
  on_tested cserko-help-tour.exe "$(windows_path "$tested/pack/cserko/help")" "$(windows_path "$pictures/tour")" \
    >"$work/help.log" 2>&1 || true
  say "help: $(tail -n 1 "$work/help.log")"
}

step_players() {
  for exercise in $(sed -n 's/.*{\.name = "\([a-z_]*\)".*/\1/p' "$root"/tests/players/*_player.cpp); do
    for way in mouse keyboard; do
      { on_tested cserko-x11-play.exe "$exercise" "$way" 2>"$work/player.log" || echo failed; } |
        "$root/build/release/cserko-x11-events" >"$work/player.txt"
      say "player $exercise by $way: $(tr -d '\r' <"$work/player.txt" | tr '\n' ' ')$(tail -n 1 "$work/player.log")"
    done
  done
}

step_logic() {
  for program in $tests; do
    on_tested "$program.exe" --gtest_brief=1 >"$work/$program.log" 2>&1 || true
    say "$program: $(tr -d '\r' <"$work/$program.log" | grep -E '^\[ *(==========|PASSED|FAILED) *\]' | tail -n 3 |
      sed 's/^\[ *=* *\] //' | tr '\n' ' ')"
  done
}

step_uninstall() {
  own="$installed/pack/kepek/saját.wms"
  echo 'a word of the user' >"$own"
  settings=$(user_folder)/AppData/Local/cserko/cserko/főablak.ini
  before=$(cksum "$settings")
  wine "$(windows_path "$installed/uninstall.exe")" /S >>"$work/wine.log" 2>&1
  only_own() { [ "$(find "$WINEPREFIX/drive_c/$target" ! -type d)" = "$own" ]; }
  await 60 only_own || fail "after the uninstaller there is still $(find "$installed" ! -type d | head -n 5)"
  [ -z "$(find "$(user_folder)" -name 'Cserkó.lnk')" ] || fail "the entry in the start menu stays"
  [ "$before" = "$(cksum "$settings")" ] || fail "the uninstaller touches the user's settings"
  if wine reg query 'HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Cserko' >/dev/null 2>&1; then
    fail "the program is still on the list of those that are installed"
  fi
  say "uninstall: only the user's own file and settings are left"
}

: >"$report"
for step; do "step_$step"; done
wineserver -k || true
! grep -q -E 'FAILED|failed' "$report"
