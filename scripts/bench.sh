#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the release and measures it beside the floor, the least program of the
# same kind. Prints the medians as a table in Markdown, and fails when a limit
# is not kept. It takes about five minutes; leave the machine alone meanwhile.
#
# TUTORIAL_SKIP_BOOTSTRAP=1: do not look for missing packages.
set -eu
cd "$(dirname "$0")/.."

[ "${TUTORIAL_SKIP_BOOTSTRAP:-0}" = 1 ] || scripts/bootstrap.sh
cmake --preset release >&2
cmake --build --preset release >&2
bin=build/release/bin

# Qt wants this folder, and complains in each program where it is missing.
XDG_RUNTIME_DIR=$(mktemp -d)
export XDG_RUNTIME_DIR
trap 'rm -rf "$XDG_RUNTIME_DIR"' EXIT

result=0
echo "| what | ours | floor | ours to floor | limit | kept |"
echo "|---|---|---|---|---|---|"
scripts/with-display.sh "$bin/bench_link" "$bin/tutorial" "$bin/bench_floor" || result=1
scripts/with-display.sh "$bin/bench_dispatch" || result=1
QT_QPA_PLATFORM=offscreen "$bin/bench_hint" || result=1
QT_QPA_PLATFORM=offscreen "$bin/bench_editor" || result=1
scripts/with-display.sh "$bin/bench_targets" || result=1
scripts/with-display.sh "$bin/bench_flood" "$bin/tutorial" || result=1
exit $result
