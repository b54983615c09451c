#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the fuzzers and runs them, all at once, for some time. An input that
# breaks a rule ends its fuzzer and is put into build/asan/findings; give the
# file to the program, build/asan/bin/fuzz_TARGET, to see it again.
#
#   scripts/fuzz.sh [SECONDS [TARGET ...]]     (60 check link scenario step untr)
#
# TUTORIAL_SKIP_BOOTSTRAP: set it to leave the system's packages alone.
set -eu
cd "$(dirname "$0")/.."

seconds=${1:-60}
targets=("${@:2}")
[ ${#targets[@]} -gt 0 ] || targets=(check link scenario step untr)

[ -n "${TUTORIAL_SKIP_BOOTSTRAP:-}" ] || scripts/bootstrap.sh
cmake --preset asan -DTUTORIAL_FUZZ_SECONDS="$seconds" >/dev/null
cmake --build --preset asan --target "${targets[@]/#/fuzz_}"
wanted=$(IFS='|' && echo "${targets[*]}")
ctest --preset asan --verbose --no-tests=error --parallel $((4 * ${#targets[@]})) \
  --tests-regex "^fuzz_($wanted)\$"
