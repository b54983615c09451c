#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Brings demo/translations/*.ts up to date with the texts of the demo's and the
# kit's sources and of the scenarios. A text that is gone stays, marked "vanished", in case it comes
# back.
set -eu
cd "$(dirname "$0")/.."
PATH=/usr/lib/qt5/bin:$PATH # Debian keeps Qt 5's own tools there

# A scenario that lupdate cannot read would lose all its texts: it says so, but
# writes the file and succeeds. So it reads the scenarios for nothing first.
trial=$(mktemp -d)
trap 'rm -rf "$trial"' EXIT
complaints=$(lupdate -silent demo/scenarios -ts "$trial/trial.ts" 2>&1) || true
if [ -n "$complaints" ]; then
  printf '%s\n' "$complaints" "$0: nothing was changed" >&2
  exit 1
fi

lupdate -I . -extensions cpp,h,js -locations none demo hostkit -ts demo/translations/*.ts
