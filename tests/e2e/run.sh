#!/usr/bin/env bash
# One end-to-end test: run.sh TEST LANGUAGE BUILD_FOLDER. The editor runs on a private display on a copy of examples/plant,
# is driven by a real mouse and keyboard, and what it printed and saved is compared. A Spanish run has a Spanish user, too,
# who writes 1,5. The pictures are under BUILD_FOLDER/e2e, that of a failure among them.
set -euo pipefail
test=$1 language=$2 build=$3
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
desktop_bin=$build/bin
desktop_probe=$build/tools/WindowProbe.exe
. "$root/tools/desktop.sh"
. "$root/tools/roads.sh"
. "$root/tests/e2e/documents.sh"
. "$root/tests/e2e/selection.sh"
. "$root/tests/e2e/options.sh"
. "$root/tests/e2e/settings.sh"
. "$root/tests/e2e/units.sh"
. "$root/tests/e2e/limits.sh"
. "$root/tests/e2e/project.sh"
. "$root/tests/e2e/window.sh"
. "$root/tests/e2e/plant.sh"

project=$desktop_folder/plant
pictures=$build/e2e/$test.$language

# equal WHAT FOUND WANTED
equal() {
  if [ "$2" != "$3" ]; then
    printf '%s:\n%s\nwanted:\n%s\n' "$1" "$2" "$3" >&2
    exit 1
  fi
}

# command_result STATUS LINE...: the editor, run with a command, ended so and printed these lines
command_result() {
  editor_end
  equal 'the exit status' "$editor_status" "$1"
  shift
  equal 'the output' "$editor_output" "$(lines "$@")"
}

# lines WORD...
lines() { printf '%s\n' "$@"; }

# in_language ENGLISH SPANISH: the one of the two that the user sees or types in this run
in_language() { if [ "$language" = es ]; then echo "$2"; else echo "$1"; fi; }

# snapshot NAME: one more picture of this test
snapshot() {
  snapshots=$((${snapshots:-0} + 1))
  picture "$(printf '%s/%d-%s.png' "$pictures" "$snapshots" "$1")"
}

if [ "$language" = es ]; then desktop_locale=es_ES; fi
rm -rf "$pictures"
mkdir -p "$pictures"
desktop_failure=$pictures/failure.png
cp -r "$root/examples/plant" "$project"
desktop_start
"test_$test"
