#!/usr/bin/env bash
# One end-to-end test: run.sh TEST LANGUAGE BUILD_FOLDER. The editor runs on a private display on a copy of examples/plant,
# is driven by a real mouse and keyboard, and what it printed and saved is compared.
set -euo pipefail
test=$1 language=$2 build=$3
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
desktop_bin=$build/bin
desktop_probe=$build/tools/WindowProbe.exe
. "$root/tools/desktop.sh"
. "$root/tools/roads.sh"
. "$root/tests/e2e/selection.sh"
. "$root/tests/e2e/options.sh"

project=$desktop_folder/plant

# equal WHAT FOUND WANTED
equal() {
  if [ "$2" != "$3" ]; then
    printf '%s:\n%s\nwanted:\n%s\n' "$1" "$2" "$3" >&2
    exit 1
  fi
}

# chosen DRIVER_ID: the names that main.xml keeps for the device, one per line
chosen() {
  python3 - "$project/main.xml" "$1" <<'END'
import sys, xml.etree.ElementTree as tree
for selection in tree.parse(sys.argv[1]).iter("selection"):
    if selection.findtext("driverId") == sys.argv[2]:
        print(selection.findtext("variables") or "")
END
}

# record SECTION DRIVER_ID ELEMENT: the element's texts in the device's record in a section of main.xml, on one line
record() {
  python3 - "$project/main.xml" "$@" <<'END'
import sys, xml.etree.ElementTree as tree
document, section, driver, element = sys.argv[1:]
for record in tree.parse(document).find(section):
    if record.findtext("driverId") == driver:
        print(*(found.text for found in record.iter(element)))
END
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

cp -r "$root/examples/plant" "$project"
desktop_start
"test_$test"
