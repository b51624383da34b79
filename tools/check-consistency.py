#!/usr/bin/env python3
"""Proves what no compiler checks: check-consistency.py CHECK [BUILD_FOLDER]

  guidelines controls keep the distances of the platform's guidelines, captions their access keys, labels their colons,
             numbers stand at the right
  includes   every file includes only what its folder may know; rules and records include no window header
  controls   every control id of the templates is used in code, every id that is defined is in a template or in code
  dialogs    every dialog template has a test that looks at its window
  texts      every text id has its text in each language, the texts take the same arguments, and code uses every id
  formats    the arguments of a text are those that its header promises and that its callers pass
  exports    KZUsrZEP.dll exports exactly the committed list and imports from the host only what the other list promises;
             the products import only what ships with them
  hardening  every program and library that ships is moved to random addresses, cannot execute data and has no section that
             is writable and executable
  materials  the bill of materials lists every file that ships with its hash, origin, version and licence
  files      no machine paths, no file of more than 400 lines, UTF-8, LF, no tabs, no blanks at line ends
  documents  links lead to files and headings, quotes of the code are in the code, each picture is shown
  guide      the messages that the user guide explains are the product's own
  names      every test case has a name that a person can type
  verbs      each verb of ./dev help exists, is dispatched and is mentioned in a document; no document has another

Each finding is one line "file:line: what is wrong"; the exit status is 1 when there is one.
"""
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent / "consistency"))

import controls  # noqa: E402
import dialogs  # noqa: E402
import documents  # noqa: E402
import exports  # noqa: E402
import files  # noqa: E402
import formats  # noqa: E402
import guide  # noqa: E402
import guidelines  # noqa: E402
import hardening  # noqa: E402
import includes  # noqa: E402
import materials  # noqa: E402
import names  # noqa: E402
import texts  # noqa: E402
import verbs  # noqa: E402

CHECKS = {
    "includes": includes.check,
    "controls": controls.check,
    "dialogs": dialogs.check,
    "texts": texts.check,
    "formats": formats.check,
    "exports": exports.check,
    "hardening": hardening.check,
    "materials": materials.check,
    "files": files.check,
    "documents": documents.check,
    "guide": guide.check,
    "guidelines": guidelines.check,
    "names": names.check,
    "verbs": verbs.check,
}


def main(arguments):
    if not arguments or arguments[0] not in CHECKS:
        print(__doc__, file=sys.stderr)
        return 2
    findings = CHECKS[arguments[0]](*map(Path, arguments[1:]))
    for finding in findings:
        print(finding)
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
