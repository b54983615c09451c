#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Looks for faults without building or running anything: the formatting, the
# scripts, and what cppcheck finds in the product. A line for each tool that has
# nothing to say; fails when one has. About ten seconds.
#
# TUTORIAL_SKIP_BOOTSTRAP: set it to leave the system's packages alone.
set -eu
cd "$(dirname "$0")/.."

[ -n "${TUTORIAL_SKIP_BOOTSTRAP:-}" ] || scripts/bootstrap.sh

failed=0
check() { # NAME COMMAND...
  local name=$1
  shift
  if "$@"; then
    echo "$name: nothing to say"
  else
    echo "$name: see above" >&2
    failed=1
  fi
}

mapfile -t sources < <(git ls-files '*.cpp' '*.h')
mapfile -t scripts < <(git ls-files 'scripts/*.sh' '.ci/*')

check clang-format clang-format --dry-run -Werror "${sources[@]}"
# SC2317: functions that are called by name. SC2012: ls counts names that are numbers.
check shellcheck shellcheck --exclude=SC2317,SC2012 "${scripts[@]}"
check cppcheck cppcheck -j "$(nproc)" --quiet --error-exitcode=1 --std=c++17 --library=qt -I. \
  --enable=warning,performance,portability --inline-suppr --suppress=unknownMacro \
  --suppress=virtualCallInConstructor \
  app demo editor examples hostkit overlay resource tutorial
exit "$failed"
