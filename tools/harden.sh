#!/usr/bin/env bash
# Runs the Windows tests of a hardened build, then the dialogs' tests with a checked heap: harden.sh FOLDER
# FOLDER is the build folder of the preset "windows-hardened". The exit status is 1 when a test fails, when something traps
# or when the heap is damaged, and when the checks themselves overlook a mistake made on purpose.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/tools/wine-env.sh"
folder=$(realpath "$1")
tests=$folder/tests
log=$folder/harden.log
failed=0
options='HKLM\Software\Microsoft\Windows NT\CurrentVersion\Image File Execution Options'
# Tail checks, free checks, parameter checks and a validation of the whole heap at every call: Wine finds nothing without.
heap_flags=0xF0
# The limits dialog opens some two hundred times slower so. Of the dialogs with many controls it is therefore a choice of
# roads: open, show every page, change, refuse, save.
declare -A checked=(
  [device_dialog_tests]='*' [units_dialog_tests]='*' [module_entry_tests]='*' [options_zep_tests]='-*Limits*'
  [limits_dialog_tests]='LimitsDialog.SavesEveryPageThatChanged:LimitsDialog.ShowsThePageOfTheSelectedTab:*.NamesTheOrder*'
  [selection_dialog_tests]='SelectionDialog.HandsOver*:SelectionDialog.Cancel*:SelectionDialog.RefusesTheClick*:SelectionPages.Toggle*'
)

complain() { echo "harden: $*" >&2; failed=1; }

# run PROGRAM [ARGUMENT...]: into the log, with the source lines of crashes
run() {
  local status=0
  "$root/tools/run-wine.sh" "$tests/$1.exe" "${@:2}" > "$log.raw" 2>&1 || status=$?
  "$root/tools/crash-lines.sh" < "$log.raw" > "$log"
  rm -f "$log.raw"
  return "$status"
}

# Whether the last run reported damage to its heap.
heap_damaged() { grep -q 'err:heap' "$log"; }

check_traps() {
  local status=0
  run deliberate --gtest_filter=Deliberate.Overflow || status=$?
  if [ "$status" != 99 ] || ! grep -q '^crash: .*Next.*Deliberate.cpp:[0-9]' "$log"; then
    cat "$log" >&2
    complain "an overflow on purpose ended with $status instead of 99, or its line was not named"
  fi
}

run_tests() {
  ctest --test-dir "$folder" -L wine --parallel "$(nproc)" --output-on-failure --no-tests=error --no-label-summary 2>&1 |
    "$root/tools/crash-lines.sh" || complain "tests failed in the hardened build"
}

heap_checks() {
  local program
  for program in deliberate "${!checked[@]}"; do
    if [ "$1" = on ]; then wine_reg "$options\\$program.exe" GlobalFlag REG_DWORD "$heap_flags"
    else "${wine_pin[@]}" wine reg delete "$options\\$program.exe" /f > /dev/null 2>&1 || true; fi
  done
}

check_heap() {
  export KZ_WINE_DEBUG=-all,err+heap KZ_TEST_TIMEOUT=1800
  run deliberate --gtest_filter=Deliberate.HeapOverrun || true
  heap_damaged || complain "an overrun on purpose was overlooked"
  local program started
  for program in "${!checked[@]}"; do
    started=$(date +%s)
    run "$program" --gtest_brief=1 --gtest_filter="${checked[$program]}" || { grep -F '[  FAILED  ]' "$log" >&2 || tail -5 "$log" >&2; complain "$program failed with a checked heap"; }
    if heap_damaged; then grep 'err:heap' "$log" >&2; complain "$program damages its heap"; fi
    echo "$program: $(tail -1 "$log"), $(($(date +%s) - started)) s"
  done
}

wine_use 96
echo "== Mistakes on purpose"
check_traps
echo "== The Windows tests, hardened"
run_tests
echo "== The dialogs' tests with a checked heap"
trap 'heap_checks off' EXIT
heap_checks on
check_heap
exit "$failed"
