#!/bin/sh
# Runs a command on an X server of its own with a window manager, on whatever display is free, and takes both down
# again. No sound device is touched, and a user folder of its own is made unless one is named.
#
# Usage: with-display.sh WIDTHxHEIGHT COMMAND...
set -eu

size=$1
shift

work=$(mktemp -d)
server=
manager=
clean_up() {
  # The window manager goes first: without a server it would only complain.
  for process in $manager $server; do
    kill "$process" 2>/dev/null || continue
    wait "$process" 2>/dev/null || true
  done
  rm -rf "$work"
}
trap clean_up EXIT
trap 'exit 130' HUP INT TERM

waits=0
# await FILE PROCESS LOG: until the file has content; 20 s at most.
await() {
  until [ -s "$1" ]; do
    waits=$((waits + 1))
    if [ "$waits" -gt 400 ] || ! kill -0 "$2" 2>/dev/null; then
      cat "$3" >&2
      exit 3
    fi
    sleep 0.05
  done
}

# The server writes the number of the display that it has found free when it is ready.
Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp -noreset 3>"$work/display" >"$work/server.log" 2>&1 &
server=$!
await "$work/display" "$server" "$work/server.log"
DISPLAY=:$(tr -d '[:space:]' <"$work/display")
export DISPLAY
unset WAYLAND_DISPLAY SESSION_MANAGER

openbox --sm-disable --startup "cp $work/display $work/managed" >"$work/manager.log" 2>&1 &
manager=$!
await "$work/managed" "$manager" "$work/manager.log"

export QT_QPA_PLATFORM=xcb
export SDL_AUDIODRIVER=dummy
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$work}"
if [ -z "${CSERKO_USER_DIR:-}" ]; then
  CSERKO_USER_DIR=$work/user
  export CSERKO_USER_DIR
fi

"$@"
