#!/usr/bin/env bash
# Runs the tests of both coverage builds and reports what they executed: coverage.sh NATIVE WINDOWS REPORT
# NATIVE and WINDOWS are the build folders of the presets "coverage-native" and "coverage-windows", REPORT is a folder for the
# report. The exit status is 1 when a test failed or the module misses its goal.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
mkdir -p "$3/log"
native=$(realpath "$1") windows=$(realpath "$2") report=$(realpath "$3")
failed=0

# run_tests FOLDER LABEL [ARGUMENT...]
run_tests() {
  local log=$report/log/$2.txt
  ctest --test-dir "$1" -L "$2" --parallel "$(nproc)" --output-on-failure --no-tests=error "${@:3}" > "$log" 2>&1 && return
  failed=1
  echo "coverage: $2 tests failed, see $log" >&2
  sed -n '/^The following tests FAILED/,$p' "$log" >&2
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

run_tests "$native" native
# Other resolutions and users take the same lines.
run_tests "$windows" wine -LE 'dpi|locale'
run_tests "$windows" e2e

# count FOLDER GCOV NAME: without the branches that the compiler adds for exceptions and for what cannot be reached, as no
# source has written them
count() {
  KZ_GCOV=$2 gcovr --root "$root" --gcov-executable "$root/tools/coverage-gcov.sh" \
    --filter "$root/(module|host|access|mfc|plant|editor)/" --exclude-throw-branches --exclude-unreachable-branches \
    --json "$report/$3.json" "$1"
  # gcovr gives up where a function stands on other lines for another platform; nobody asks for its list of functions.
  python3 - "$report/$3.json" <<'END'
import json
import sys
with open(sys.argv[1], "r+", encoding="utf-8") as report:
    counts = json.load(report)
    for file in counts["files"]:
        file["functions"] = []
    report.seek(0)
    report.truncate()
    json.dump(counts, report)
END
}
count "$native" gcov native
count "$windows" x86_64-w64-mingw32-gcov windows
combined() { gcovr --root "$root" --add-tracefile "$report/native.json" --add-tracefile "$report/windows.json" "$@"; }
combined --html-details "$report/index.html" --json-summary "$report/summary.json" --txt "$report/lines.txt"
combined --branches --txt "$report/branches.txt"
python3 -B "$root/tools/coverage-table.py" "$report/summary.json" || failed=1
exit "$failed"
