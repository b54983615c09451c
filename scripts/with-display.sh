#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs a command inside a virtual X server of its own, with a window manager
# and a compositor, and returns the command's exit code.
#
#   scripts/with-display.sh COMMAND [ARG ...]
#
# TUTORIAL_COMPOSITOR: "none" for a screen without one.
# TUTORIAL_SCREEN: size of the screen, WIDTHxHEIGHT (1280x800).
set -u

if [ $# -eq 0 ]; then
  echo "usage: $0 COMMAND [ARG ...]" >&2
  exit 2
fi

screen=${TUTORIAL_SCREEN:-1280x800}
folder=$(mktemp -d)
pids=()

finish() {
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null; done
  for pid in "${pids[@]}"; do wait "$pid" 2>/dev/null; done
  rm -rf "$folder"
}
trap finish EXIT
trap 'exit 143' TERM
trap 'exit 130' INT

# wait_for WHAT COMMAND...: until the command succeeds, 20 seconds at most.
wait_for() {
  local what=$1
  shift
  for _ in $(seq 200); do
    if "$@" >/dev/null 2>&1; then return 0; fi
    sleep 0.1
  done
  echo "$0: $what did not start" >&2
  cat "$folder"/*.log >&2
  exit 1
}

managed() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }
composited() { kill -0 "$picom" && xwininfo -root -tree | grep -q picom; }

exec 3>"$folder/display"
Xvfb -displayfd 3 -screen 0 "${screen}x24" -nolisten tcp -noreset >"$folder/xvfb.log" 2>&1 &
pids+=($!)
exec 3>&-
wait_for Xvfb test -s "$folder/display"
DISPLAY=:$(cat "$folder/display")
export DISPLAY
unset WAYLAND_DISPLAY
export XDG_SESSION_TYPE=x11
if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
  mkdir -m 700 "$folder/runtime"
  export XDG_RUNTIME_DIR=$folder/runtime
fi

openbox >"$folder/openbox.log" 2>&1 &
pids+=($!)
wait_for openbox managed
if [ "${TUTORIAL_COMPOSITOR:-}" != none ]; then
  picom --backend xrender --no-fading-openclose --config /dev/null >"$folder/picom.log" 2>&1 &
  picom=$!
  pids+=("$picom")
  wait_for picom composited
fi

"$@"
