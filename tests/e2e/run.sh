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

project=$desktop_folder/project

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

# lines WORD...
lines() { printf '%s\n' "$@"; }

cp -r "$root/examples/plant" "$project"
desktop_start
"test_$test"
