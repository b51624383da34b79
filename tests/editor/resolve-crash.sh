#!/usr/bin/env bash
# From a crash of the product to the name of a function: resolve-crash.sh EDITOR_TESTS SYMBOLS
set -euo pipefail
tools=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../tools" && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
KZ_TEST_REPORT="Z:$folder/report.txt" "$tools/run-wine.sh" "$1" --gtest_filter=CrashReports.AFaultLeavesVersionsCallsAndCommands
"$tools/resolve-crash.py" "$folder/report.txt" "$2" | tee "$folder/resolved.txt"
grep -q '^    .*RunOnDevice' "$folder/resolved.txt"
grep -q '^    EditorApp::RunProgram()' "$folder/resolved.txt"

# The symbols of another build resolve nothing.
mkdir "$folder/other"
LC_ALL=C sed 's/RSDS./RSDS!/' "$2/KZEditor.exe.debug" > "$folder/other/KZEditor.exe.debug"
if "$tools/resolve-crash.py" "$folder/report.txt" "$folder/other" > "$folder/resolved.txt" 2>&1; then
  echo 'resolve-crash.sh: the symbols of another build were taken' >&2
  exit 1
fi
grep -q 'the symbols of another build' "$folder/resolved.txt"
