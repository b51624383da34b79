# shellcheck shell=bash disable=SC2154
# What the project's documents hold.

# changes FILE: the lines of a document of the project that differ from the example, without their indentation
changes() {
  diff -U0 "$root/examples/plant/$1" "$project/$1" | sed -n '/^[-+][-+]/d; s/^\([-+]\) */\1/p'
}

# unchanged FILE...: as in the example, byte for byte
unchanged() {
  local file
  for file; do cmp "$root/examples/plant/$file" "$project/$file"; done
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
