#!/usr/bin/env bash
# Lets every fuzzer run for its share of some seconds: fuzz.sh FOLDER SECONDS
# FOLDER is the build folder of the preset "fuzz". What the fuzzers learn stays in FOLDER/learned, for the next run. An input
# that breaks a rule stays in FOLDER/found, and the exit status is 1.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
folder=$1
seconds=$2

targets=()
for corpus in "$root"/fuzz/corpus/*/; do targets+=("$(basename "$corpus")"); done
share=$((seconds / ${#targets[@]}))
if [ "$share" = 0 ]; then share=1; fi

# fuzz TARGET: one line about the run
fuzz() {
  local target=$1 learned=$folder/learned/$1 log=$folder/$1.log status=0 started
  mkdir -p "$learned" "$folder/found"
  started=$(date +%s)
  nice "$folder/fuzz/$target" -max_total_time="$share" -timeout=10 -max_len=4096 -print_final_stats=1 \
    -dict="$root/fuzz/dictionaries/$target.dict" -artifact_prefix="$folder/found/$target-" \
    "$learned" "$root/fuzz/corpus/$target" > "$log" 2>&1 || status=$?
  printf '%-22s %10s runs %5s s   %s\n' "$target" "$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")" \
    "$(($(date +%s) - started))" "$([ "$status" = 0 ] && echo 'all rules hold' || echo FAILED)"
  if [ "$status" = 0 ]; then return; fi
  grep -E '^broken rule|^SUMMARY|Test unit written to|ERROR: ' "$log" | sed 's/^/    /' || tail -5 "$log"
  return 1
}

failed=0
for target in "${targets[@]}"; do fuzz "$target" || failed=1; done
exit "$failed"
