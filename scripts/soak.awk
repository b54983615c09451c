# SPDX-License-Identifier: MIT
# Judges what scripts/soak.sh has measured, after a warm-up of a tenth of the
# time, by the four quarters of the rest.
#
# Of memory the median is taken, which a dialog that happens to be open does not
# move. Most of it is kept by caches of Qt and the allocator, which reach their
# size only after a while: the last quarter may have 2 % more than the first.
# But what grows in every quarter, by more than half a percent in all, is a leak.
# Of all else the least is taken, which is what there is without a dialog, and
# that may not grow; a last look may find a program that closes its files.
#
# With judgeMemory=0 memory is only shown; under ten minutes everything is, as a
# quarter would be too short for a whole round.
BEGIN {
  FS = ","
  kWarmUp = 0.1
  kQuarter = 0.225
  kLeastSeconds = 600
}

NR == 1 {
  columns = NF
  for (i = 3; i <= NF; ++i) name[i] = $i
  next
}

# A process that ended while it was looked at leaves an incomplete line.
NF != columns || /,,|,0,/ { next }

{
  if (!($2 in lines)) process[++processes] = $2
  line = ++lines[$2]
  at[$2, line] = end = $1
  for (i = 3; i <= columns; ++i) value[$2, line, i] = $i
}

# The median, or else the least, of a process's column in the quarter 0 to 3.
function figure(of, column, quarter, isMedian,    begin, n, k, j, v, sorted) {
  begin = end * (kWarmUp + kQuarter * quarter)
  n = 0
  for (k = 1; k <= lines[of]; ++k) {
    if (at[of, k] < begin || at[of, k] > begin + kQuarter * end) continue
    v = value[of, k, column]
    for (j = n++; j > 0 && sorted[j] > v; --j) sorted[j + 1] = sorted[j]
    sorted[j + 1] = v
  }
  return isMedian ? sorted[int((n + 1) / 2)] : sorted[1]
}

function memoryGrows(f) {
  return f[3] > f[0] * 1.02 || (f[1] > f[0] && f[2] > f[1] && f[3] > f[2] && f[3] > f[0] * 1.005)
}

END {
  print "| process | what | first quarter | second | third | last | kept |"
  print "|---|---|---|---|---|---|---|"
  for (p = 1; p <= processes; ++p) {
    for (i = 3; i <= columns; ++i) {
      isSize = name[i] ~ /_kb$/
      for (q = 0; q < 4; ++q) f[q] = figure(process[p], i, q, isSize)
      kept = "yes"
      if (end < kLeastSeconds || (isSize && (name[i] != "memory_kb" || !judgeMemory))) kept = "-"
      else if (isSize ? memoryGrows(f) : f[3] > f[0]) kept = "no"
      failed = failed || kept == "no"
      printf "| %s | %s | %d | %d | %d | %d | %s |\n", process[p], name[i], f[0], f[1], f[2], f[3], kept
    }
  }
  exit failed || processes != 2
}
