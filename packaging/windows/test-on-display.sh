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

main_window='Tintakő Cserkó'
target='Játékok és ő'
installed=$WINEPREFIX/drive_c/$target
pictures=$products
report=$products/report.txt
mkdir -p "$pictures"

# A Hungarian Windows: a shortcut also keeps its target in the code page of the system, and Wine follows that one.
locales=$work/locales
[ -d "$locales/hu_HU.UTF-8" ] || { mkdir -p "$locales" && localedef -i hu_HU -f UTF-8 "$locales/hu_HU.UTF-8"; }
wine() { LOCPATH=$locales LC_ALL=hu_HU.UTF-8 command wine "$@"; }

say() { printf '%s\n' "$*" | tee -a "$report"; }
# What goes wrong ends the step that cannot go on; the other one is for one of many.
fault() { say "FAILED: $*"; }
fail() {
  import -window root "$pictures/failed.png" || true
  fault "$*"
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
begins_at_front() { case $(front) in "$1"*) ;; *) return 1 ;; esac; }
await_front() { await "${2:-60}" at_front "$1" || fail "'$1' did not come to the front, where '$(front)' is"; }
picture() { import -window root "$pictures/$1.png"; }
# A window that is painted has hundreds of colours: the paper alone is never of one shade.
colours() { convert "$pictures/$1.png" -format %k info:; }
differing_pixels() {
  number=$(compare -metric AE "$pictures/$1.png" "$pictures/$2.png" null: 2>&1 || true)
  printf '%.0f' "$number"
}
gone() { ! kill -0 "$1" 2>/dev/null; }

start_program() {
  shortcut=$(find "$(user_folder)" -name 'Cserkó.lnk')
  [ -n "$shortcut" ] || fail "there is no entry in the start menu"
  (unset SDL_AUDIODRIVER && wine start /wait /unix "$shortcut") >"$work/program.log" 2>&1 &
  program=$!
}

step_install() {
  wineserver -k 2>/dev/null || true
  rm -rf "$WINEPREFIX"
  mkdir -p "$WINEPREFIX"
  wine wineboot -i >"$work/wine.log" 2>&1
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
  await_front "$main_window" 120
  sleep 2
  picture 1-main-window
  [ "$(colours 1-main-window)" -gt 500 ] || fail "the main window is blank"
  say "play: the main window is seen, without a sound device"

  xdotool key alt+i
  await_front 'Cserkó Igaz-hamis'
  sleep 1
  picture 2-exercise
  xdotool key F1
  await 60 begins_at_front 'Súgó' || fail "the help does not come to the front, where '$(front)' is"
  sleep 1
  picture 3-help
  xdotool key Escape
  await_front 'Cserkó Igaz-hamis'
  # One of the two statements is true; the other one only makes the sound of a mistake.
  answers=0
  until at_front 'Cserkó'; do
    answers=$((answers + 1))
    [ $answers -le 200 ] || fail "no congratulation after $answers answers"
    xdotool key space Tab
    sleep 0.2
  done
  [ $answers -ge 6 ] || fail "praise after $answers answers, though six pictures make a set"
  sleep 1
  picture 4-congratulation
  say "play: a set solved with $answers answers, the congratulation is seen"
  # It takes a key only behind a pause of all keys.
  next_set_begun() {
    xdotool key Return
    sleep 1
    at_front 'Cserkó Igaz-hamis'
  }
  await 60 next_set_begun || fail "no next set begins"
  xdotool key alt+F4
  await_front "$main_window"

  settings=$(user_folder)/AppData/Local/cserko/cserko/főablak.ini
  [ ! -e "$settings" ] || fail "there are settings before any was made"
  xdotool key alt+f
  sleep 0.5
  xdotool key f
  await_front 'Főablak beállításai'
  xdotool key alt+g
  sleep 0.5
  picture 5-settings
  xdotool key Tab Tab Tab space
  await 20 test -s "$settings" || fail "no settings were written"
  await_front "$main_window"
  sleep 2
  picture 6-graphic-window
  xdotool key alt+F4
  await 30 gone "$program" || fail "the program does not end"

  start_program
  await_front "$main_window" 120
  sleep 3
  picture 7-graphic-window-again
  [ "$(differing_pixels 1-main-window 6-graphic-window)" -gt 100000 ] || fail "the setting changes nothing"
  [ "$(differing_pixels 6-graphic-window 7-graphic-window-again)" -lt 1000 ] || fail "the setting was not read back"
  xdotool key alt+F4
  await 30 gone "$program" || fail "the program does not end"
  say "play: a setting written and read back: $(od -An -c "$settings" | tr -s ' \n' ' ')"
}

# on_tested PROGRAM ARGUMENT...: one of the programs of the tests, with a user folder of its own.
on_tested() {
  (cd "$tested" && CSERKO_USER_DIR='C:\próba ő' wine "$@")
}

# look NAME PROGRAM ARGUMENT...: what it finds wrong stands in its log, a line each; its last line sums up.
look() {
  name=$1
  shift
  status=0
  CSERKO_SEED=1 on_tested "$@" >"$work/$name.log" 2>&1 || status=$?
  sum=$(tr -d '\r' <"$work/$name.log" | tail -n 1)
  case "$status $sum" in
  "0 "*" pictures, 0 faults") say "$name: $sum" ;;
  *)
    tr -d '\r' <"$work/$name.log" | head -n -1 | tee -a "$report"
    fault "$name ends with $status: $sum"
    ;;
  esac
}

step_tour() {
  rm -rf "$pictures/tour" "$WINEPREFIX/drive_c/próba ő"
  mkdir -p "$pictures/tour"
  look tour cserko-tour.exe "$(windows_path "$pictures/tour")"
}

step_help() {
  mkdir -p "$pictures/tour"
  look help cserko-help-tour.exe "$(windows_path "$tested/pack/cserko/help")" "$(windows_path "$pictures/tour")"
}

step_players() {
  for exercise in $(sed -n 's/.*{\.name = "\([a-z_]*\)".*/\1/p' "$root"/tests/players/*_player.cpp); do
    for way in mouse keyboard; do
      {
        status=0
        on_tested cserko-x11-play.exe "$exercise" "$way" 2>"$work/player.log" || status=$?
        echo "ends with $status"
      } | "$root/build/release/cserko-x11-events" >"$work/player.txt"
      said=$(tr -d '\r' <"$work/player.txt" | tr '\n' ' ')$(tr -d '\r' <"$work/player.log" | tail -n 1)
      case $said in
      *"ends with 0 "*) say "player $exercise by $way: $said" ;;
      *) fault "player $exercise by $way: $said" ;;
      esac
    done
  done
}

# Tests that say nothing about this side: they look at the clock, at the fonts and sound fonts of a Debian system, at
# programs that are not installed here, or into a recording that is still being written.
not_here() {
  case $1 in
  metafile_tests) echo 'Traps.*:PictureRender.*:Text.*:ExtText.*:Charset.*' ;;
  sdl_media_test)
    echo 'SoundFont.TheSystems*:SoundFont.AFileThat*:SdlMusic.*:SdlMusicAndSound.*:*.StrikingAgain*:*.TheSignalIsHeard*'
    ;;
  esac
}

step_logic() {
  for program in $tests; do
    status=0
    on_tested "$program.exe" --gtest_brief=1 --gtest_filter="-$(not_here "$program")" >"$work/$program.log" 2>&1 || status=$?
    passed=$(tr -d '\r' <"$work/$program.log" | sed -n 's/^\[  PASSED  \] //p')
    if [ "$status" -eq 0 ] && [ -n "$passed" ]; then
      say "$program: passed $passed"
    else
      fault "$program ends with $status, passed ${passed:-nothing}:" \
        "$(tr -d '\r' <"$work/$program.log" | sed -n 's/^\[  FAILED  \] \([^ ,]*\.[^ ,]*\).*/\1/p' | sort -u | tr '\n' ' ')"
    fi
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
! grep -q '^FAILED' "$report"
