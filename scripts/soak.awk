# Judges what scripts/soak.sh has measured.
#
# After a warm-up of a tenth of the time the rest is cut into four quarters.
# Memory: the medians. It may be 2 % more in the last quarter than in the first,
# and it may not rise from quarter to quarter by more than 0.5 % in all. The
# rest, which comes and goes with each dialog: the least number, which is what
# is left when none is open.
BEGIN { FS = "," }
NR == 1 { for (i = 3; i <= NF; ++i) name[i] = $i; columns = NF; next }
{
  if (!($2 in lines)) order[++processes] = $2
  line = ++lines[$2]
  at[$2, line] = $1
  for (i = 3; i <= columns; ++i) value[$2, line, i] = $i
  end = $1
}

# The value in the middle, or the least, of a column in the quarter 0 to 3.
function figure(process, i, quarter, isMedian,    begin, length_, n, k, j, v, sorted) {
  begin = end * (0.1 + 0.225 * quarter)
  n = 0
  for (k = 1; k <= lines[process]; ++k) {
    if (at[process, k] < begin || at[process, k] > begin + 0.225 * end) continue
    v = value[process, k, i]
    for (j = n++; j > 0 && sorted[j] > v; --j) sorted[j + 1] = sorted[j]
    sorted[j + 1] = v
  }
  return n == 0 ? -1 : sorted[isMedian ? int((n + 1) / 2) : 1]
}

END {
  print "| process | what | first quarter | second | third | last | kept |"
  print "|---|---|---|---|---|---|---|"
  for (p = 1; p <= processes; ++p) {
    for (i = 3; i <= columns; ++i) {
      isMemory = name[i] == "memory_kb"
      isSize = name[i] ~ /_kb$/
      for (q = 0; q < 4; ++q) f[q] = figure(order[p], i, q, isSize)
      kept = "yes"
      if (f[0] < 0 || f[3] < 0) kept = "no"
      if (isMemory) {
        if (f[3] > f[0] * 1.02) kept = "no"
        if (f[1] > f[0] && f[2] > f[1] && f[3] > f[2] && f[3] > f[0] * 1.005) kept = "no"
        if (!judgeMemory) kept = "-"
      } else if (isSize) {
        kept = "-"
      } else if (f[3] != f[0]) {
        kept = "no"
      }
      if (kept == "no") failed = 1
      printf "| %s | %s | %d | %d | %d | %d | %s |\n", order[p], name[i], f[0], f[1], f[2], f[3], kept
    }
  }
  exit failed || processes == 0
}
