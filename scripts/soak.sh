#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Plays a scenario in a loop, the learner included, in a virtual X server, and
# watches the demo and its tutorial meanwhile. Prints how their memory, windows
# and file descriptors have changed, and fails when one has grown, when a
# sanitizer reports something, or when the scenario gets stuck.
#
#   scripts/soak.sh [MINUTES [PRESET]]     (60 release)
#
# Under ten minutes the figures are only shown. What was measured is left in
# build/soak/PRESET/soak.csv, what the programs said in soak.log beside it. It
# runs copies of the programs, so that a build meanwhile does no harm.
#
# TUTORIAL_SKIP_BOOTSTRAP: set it to leave the system's packages alone.
set -eu
cd "$(dirname "$0")/.."

minutes=${1:-60}
preset=${2:-release}
results=$PWD/build/soak/$preset
log=$results/soak.log
csv=$results/soak.csv
export results log csv minutes

[ -n "${TUTORIAL_SKIP_BOOTSTRAP:-}" ] || scripts/bootstrap.sh
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" --target tutorial tutorial-demo >/dev/null
rm -rf "$results"
mkdir -p "$results"
cp "build/$preset/bin/tutorial" "build/$preset/bin/tutorial-demo" "$results"
export LSAN_OPTIONS=suppressions=$PWD/cmake/lsan.supp:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1

# sample NAME PID: a line of the table. Memory is what the process alone made
# dirty: pages of libraries come and go with other processes that use them.
# Windows, pixmaps and bytes are what the X server keeps for the process.
sample() {
  local memory status fds server
  memory=$(awk '/^(Pss_Anon|Pss_Shmem|SwapPss):/ { sum += $2 } END { print sum }' \
    "/proc/$2/smaps_rollup")
  status=$(awk '/^(VmRSS|Threads):/ { printf "%d,", $2 }' "/proc/$2/status")
  fds=$(ls "/proc/$2/fd" | wc -l)
  server=$(xrestop -b -m 1 | awk -v pid="$2" '
    /^[0-9]+ - / { own = $0 ~ "PID: *" pid " " }
    own { sum[$1 $2] += $NF }
    END { printf "%d,%d,%d", sum["windows:"], sum["pixmaps:"], sum["pixmapbytes"] / 1024 }')
  echo "$SECONDS,$1,$memory,$status$fds,$server" >>"$csv"
}

watched() {
  echo seconds,process,memory_kb,rss_kb,threads,fds,windows,pixmaps,pixmaps_kb >"$csv"
  "$results/tutorial-demo" --autoplay all-conditions --language en --minutes "$minutes" \
    >"$log" 2>&1 &
  local demo=$! pause=$((minutes < 10 ? minutes : 10)) tutorial
  while kill -0 "$demo" 2>/dev/null; do
    sleep "$pause"
    tutorial=$(cat /proc/"$demo"/task/*/children 2>/dev/null)
    if [ -n "$tutorial" ]; then
      # Either may end while it is looked at.
      { sample tutorial-demo "$demo"; sample tutorial "${tutorial% }"; } 2>/dev/null
    fi
  done
  wait "$demo"
}
export -f sample watched

result=0
scripts/with-display.sh bash -c watched || result=1
# What was freed stays for a while in the quarantine of a sanitized program.
judge_memory=1
[ "$preset" != asan ] || judge_memory=0
awk -v judgeMemory=$judge_memory -f scripts/soak.awk "$csv" || result=1
if grep -E -A 20 'Sanitizer|runtime error:' "$log" >&2; then result=1; fi
grep -E 'failed:|^round' "$log" | tail -n 1
exit $result
