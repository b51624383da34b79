#!/usr/bin/env bash
# Runs the tests of both coverage builds and reports what they executed: coverage.sh NATIVE WINDOWS REPORT
# NATIVE and WINDOWS are the build folders of the presets "coverage-native" and "coverage-windows", REPORT is a folder for the
# report. The exit status is 1 when a test failed or the module misses its goal.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
mkdir -p "$3/log"
native=$(realpath "$1") windows=$(realpath "$2") report=$(realpath "$3")
failed=0

# run PROGRAM NAME [ARGUMENT...]
run() {
  local log=$report/log/$2.txt
  "$1" "${@:3}" > "$log" 2>&1 && return
  failed=1
  echo "coverage: $2 failed:" >&2
  grep -F '[  FAILED  ]' "$log" >&2 || tail -5 "$log" >&2
}

# What an earlier state of the sources has left would be counted too: objects that the build no longer makes, and their notes.
forget_the_past() {
  ninja -C "$1" -t cleandead > /dev/null
  find "$1" -name '*.gcda' -delete
  local note
  while IFS= read -r -d '' note; do
    [ -e "${note%.gcno}.o" ] || [ -e "${note%.gcno}.obj" ] || rm "$note"
  done < <(find "$1" -name '*.gcno' -print0)
}
forget_the_past "$native"
forget_the_past "$windows"

# Whole programs, not single cases: each start under Wine adds its counts to one file per source.
run ctest native --test-dir "$native" -L native --parallel "$(nproc)" --output-on-failure --no-tests=error
mapfile -t programs < <(find "$windows/tests" -name '*_include.cmake' -printf '%f\n' | sed 's/\[.*//' | sort -u)
for program in "${programs[@]}"; do
  [ ! -e "$windows/tests/$program.exe" ] || run "$root/tools/run-wine.sh" "$program" "$windows/tests/$program.exe"
done
# The editor's own windows are worked by mouse and keyboard.
run ctest e2e --test-dir "$windows" -L e2e --output-on-failure --no-tests=error

# count FOLDER GCOV NAME: without the branches that the compiler adds for exceptions and for what cannot be reached, as no
# source has written them
count() {
  KZ_GCOV=$2 gcovr --root "$root" --gcov-executable "$root/tools/coverage-gcov.sh" \
    --filter "$root/(module|host|access|mfc|plant|editor)/" --exclude-throw-branches --exclude-unreachable-branches \
    --json "$report/$3.json" "$1"
}
count "$native" gcov native
count "$windows" x86_64-w64-mingw32-gcov windows
combined() { gcovr --root "$root" --add-tracefile "$report/native.json" --add-tracefile "$report/windows.json" "$@"; }
combined --html-details "$report/index.html" --json-summary "$report/summary.json" --txt "$report/lines.txt"
combined --branches --txt "$report/branches.txt"
python3 -B "$root/tools/coverage-table.py" "$report/summary.json" || failed=1
exit "$failed"
