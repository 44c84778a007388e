#!/usr/bin/env bash
# Prints the rows the benchmark programs collected as one aligned table.
set -euo pipefail
table=${1:?table file}
[ -s "$table" ] || { echo "no benchmark results in $table"; exit 1; }
echo
awk -F'\t' '
  { for (i = 1; i <= 5; i++) { cell[NR, i] = $i; if (length($i) > w[i]) w[i] = length($i) } }
  END {
    split("benchmark ratio goal result note", head, " ")
    for (i = 1; i <= 5; i++) if (length(head[i]) > w[i]) w[i] = length(head[i])
    fmt = "%-" w[1] "s  %" w[2] "s  %-" w[3] "s  %-" w[4] "s  %s\n"
    printf fmt, head[1], head[2], head[3], head[4], head[5]
    for (r = 1; r <= NR; r++) printf fmt, cell[r, 1], cell[r, 2], cell[r, 3], cell[r, 4], cell[r, 5]
  }' "$table"
