#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the program and shows it at work.
#
# With a display, opens the small editor and starts its first tutorial. Without
# one, plays both tutorials in a virtual X server, the learner included, and
# leaves a picture of every step; fails when one does not come to its end.
#
# TUTORIAL_SKIP_BOOTSTRAP: set to leave the system's packages as they are.
set -eu
cd "$(dirname "$0")/.."

[ -n "${TUTORIAL_SKIP_BOOTSTRAP:-}" ] || scripts/bootstrap.sh
cmake --preset release
cmake --build --preset release --target tutorial tutorial-demo
demo=$PWD/build/release/bin/tutorial-demo

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$demo" --play first-steps
fi

result=0
for scenario in first-steps all-conditions; do
  pictures=$PWD/build/screenshots/$scenario
  rm -rf "$pictures"
  echo "playing $scenario"
  if scripts/with-display.sh "$demo" --autoplay "$scenario" --screenshots "$pictures"; then
    echo "the pictures are in $pictures"
  else
    echo "$scenario did not come to its end; the pictures so far are in $pictures" >&2
    result=1
  fi
done
exit $result
