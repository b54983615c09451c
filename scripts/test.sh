#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is needed, builds the program with Qt 5, with Qt 6 and with the
# sanitizers, without a warning, and runs every test with each, and each fuzzer
# for a minute. The last line counts the tests.
#
#   scripts/test.sh [PRESET ...]     (release qt6 asan)
#   scripts/test.sh --quick          release only, and no test that needs a screen
#
# TUTORIAL_SKIP_BOOTSTRAP: set it to leave the system's packages alone.
set -eu
cd "$(dirname "$0")/.."

[ -n "${TUTORIAL_SKIP_BOOTSTRAP:-}" ] || scripts/bootstrap.sh

target=all
labels=.
if [ "${1:-}" = --quick ]; then
  shift
  set -- release
  target=unit_tests
  labels=unit
fi
presets=("$@")
[ ${#presets[@]} -gt 0 ] || presets=(release qt6 asan)
jobs=$(nproc)
failed=0
logs=()
for preset in "${presets[@]}"; do
  # An hour that scripts/fuzz.sh was told to take is not meant for this.
  cmake --preset "$preset" -DTUTORIAL_WERROR=ON -UTUTORIAL_FUZZ_SECONDS >/dev/null
  cmake --build --preset "$preset" --parallel "$jobs" --target "$target"
  # What a test weighs is in cmake/ProjectTests.cmake: most of them only wait.
  ctest --preset "$preset" --parallel $((6 * jobs)) --label-regex "$labels" || failed=1
  logs+=("build/$preset/Testing/Temporary/LastTest.log")
done

# A test program reports its own cases; a scenario that was played counts as one,
# and so does a fuzzer.
awk -v broken="$failed" '
  /^Totals: / { passed += $2; failures += $4; cases = 1 }
  /^Test (Passed|Failed)\.$/ {
    if ($2 == "Passed.") { if (!cases) ++passed } else { if (!cases) ++failures }
    cases = 0
  }
  END {
    if (broken && !failures) failures = 1
    printf "%d passed, %d failed\n", passed, failures
    exit failures > 0
  }' "${logs[@]}"
