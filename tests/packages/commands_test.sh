#!/bin/sh
# What the programs say of themselves where there is no screen: version and help, in Hungarian, and what they do not
# understand.
#
# Usage: commands_test.sh VERSION PROGRAM...
set -eu
export LC_ALL=C.UTF-8
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM XDG_RUNTIME_DIR

version=$1
shift
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
  echo "$1" >&2
  cat "$work/out" "$work/err" >&2
  exit 1
}
# run STATUS COMMAND...: its output goes to the files out and err.
run() {
  expected=$1
  shift
  status=0
  "$@" >"$work/out" 2>"$work/err" || status=$?
  [ "$status" -eq "$expected" ] || fail "$*: status $status instead of $expected"
}

for program; do
  name=$(basename "$program")
  run 0 "$program" --version
  [ "$(cat "$work/out")" = "$name $version" ] || fail "$name: another version than $version"
  for option in --help -h; do
    run 0 "$program" "$option"
    [ ! -s "$work/err" ] || fail "$name: help that complains"
    for word in Használat: Kapcsolók: 'A program verzióját írja ki.' 'Ezt a leírást írja ki.'; do
      grep -q -F "$word" "$work/out" || fail "$name: no \"$word\" in its help"
    done
    ! grep -q -E 'Usage|Options|Arguments|Displays' "$work/out" || fail "$name: English in its help"
  done
done
for program; do
  case $program in
  *tintabrowser) continue ;; # any word may be a part of a page's name
  *szó)
    run 2 "$program" --name
    grep -q -F 'Hiányzik az érték: --name.' "$work/err" || fail "$program: no word on what is missing"
    run 0 "$program" --help
    grep -q '^Kilépési kód: 0,' "$work/out" || fail "$program: no exit codes in its help"
    ;;
  *)
    run 0 "$program" --help
    grep -q '^  CSERKO_PACK_DIR ' "$work/out" || fail "$program: no variables in its help"
    ;;
  esac
  run 2 "$program" --nosuch --help
  grep -q -F 'Ismeretlen kapcsoló: nosuch.' "$work/err" || fail "$program: no word on what is unknown"
  [ ! -s "$work/out" ] || fail "$program: an answer to what is wrong"
done
