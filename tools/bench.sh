#!/usr/bin/env bash
# Runs the benchmarks and puts their figures into one table: bench.sh FOLDER [--record]
# FOLDER holds the programs. The table goes to build/bench/performance.md; --record puts it into docs/performance.md too.
# The exit status is 1 when a figure exceeds its limit.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
programs=(names records saving open_dialogs clicks bound_controls library memory devices tables fields changes opening start)
begin='<!-- figures: ./dev bench --record -->'
end='<!-- end of the figures -->'
table=$root/build/bench/performance.md
document=$root/docs/performance.md

folder=$1
record=${2:-}
case $record in '' | --record) ;; *) echo "bench.sh: there is no option \"$record\"" >&2; exit 2 ;; esac
mkdir -p "$(dirname "$table")"

machine() {
  local model compiler
  model=$(sed -n 's/^model name[[:space:]]*: //p' /proc/cpuinfo | head -n 1)
  compiler=$(x86_64-w64-mingw32-g++-posix -dumpversion)
  echo "Measured on $(date +%Y-%m-%d): ${model:-unknown processor}, $(nproc --all) logical processors;" \
    "$(wine --version 2> /dev/null); MinGW-w64 GCC $compiler; load average at the start $(cut -d ' ' -f 1 /proc/loadavg)."
}

{
  machine
  echo
  echo '| figure | time | beside | its time | ratio | quartiles of the ratio | limit |'
  echo '|---|---|---|---|---|---|---|'
} > "$table"

over=()
rows=$(mktemp)
trap 'rm -f "$rows"' EXIT
for program in "${programs[@]}"; do
  "$root/tools/run-wine.sh" "$folder/${program}_bench.exe" > "$rows" || over+=("$program")
  sed -i 's/\r$//' "$rows"
  cat "$rows"
  grep '^|' "$rows" | sed 's/  *|/ |/g' >> "$table" || { echo "bench.sh: $program printed no figures" >&2; exit 1; }
done

if [ "$record" = --record ]; then
  if ! grep -qxF "$begin" "$document" || ! grep -qxF "$end" "$document"; then
    echo "bench.sh: $document lacks its marks" >&2
    exit 1
  fi
  awk -v begin="$begin" -v end="$end" -v table="$table" '
    $0 == end { inside = 0 }
    !inside { print }
    $0 == begin { inside = 1; while ((getline line < table) > 0) print line }
  ' "$document" > "$rows"
  cat "$rows" > "$document"
fi
if [ ${#over[@]} -gt 0 ]; then
  echo "bench.sh: these exceed a limit, or failed: ${over[*]}" >&2
  exit 1
fi
