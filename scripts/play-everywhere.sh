#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Plays the demo's tutorials and that of the notes, the learner included, with other
# fonts, scales, languages and windows than they were written for. Every step has to
# find its target, and the arrow's tip has to stand in it, as the screen's windows
# tell, before the learner acts there.
#
#   scripts/play-everywhere.sh [BUILD]     (build/release)
#
# About half an hour. A line for each run; fails when one does.
set -u
cd "$(dirname "$0")/.." || exit
bin=${1:-build/release}/bin
export TUTORIAL_SCREEN=${TUTORIAL_SCREEN:-2600x1700}

failed=0
# play NAME ENVIRONMENT COMMAND...: the environment's settings in one word.
play() {
  local name=$1 environment=$2 output
  shift 2
  # shellcheck disable=SC2086
  if output=$(timeout 300 env $environment scripts/with-display.sh "$@" 2>&1); then
    echo "ok      $name"
  else
    echo "FAILED  $name"
    tail -n 3 <<<"$output"
    failed=1
  fi
}

bare=$(mktemp -d)
trap 'rm -rf "$bare"' EXIT
settings=(QT_FONT_DPI=96 QT_FONT_DPI=144 QT_FONT_DPI=192 QT_SCALE_FACTOR=1.5 QT_SCALE_FACTOR=2)
for scenario in first-steps all-conditions; do
  for setting in "${settings[@]}"; do
    play "$scenario, $setting" "$setting" "$bin/tutorial-demo" --autoplay "$scenario" --language en
    play "$scenario, $setting, German, small, closed" "$setting" \
      "$bin/tutorial-demo" --autoplay "$scenario" --language de --small --closed
  done
  for option in "--language de" --small --closed; do
    # shellcheck disable=SC2086
    play "$scenario, $option" "" "$bin/tutorial-demo" --autoplay "$scenario" $option
  done
  # As it was written, by x, y and followWindow alone.
  grep -v '"target":' "demo/scenarios/$scenario.js" >"$bare/$scenario.js"
  play "$scenario without targets" "" "$bin/tutorial-demo" --autoplay "$bare/$scenario.js" \
    --language en
done
for setting in "${settings[@]}"; do
  play "notes, $setting" "$setting" "$bin/notes-autoplay" "$bin/tutorial"
done
exit $failed
