"""Each dialog template has a test that works its window."""
import re

from controls import ANONYMOUS, templates
from tree import CODE, ROOT, place, tree, words

# What a window test uses: helpers that run, find or look at real windows.
WINDOW_HELPERS = {"ExpectNothingClippedOrOverlapping"}


def check():
    sources = {path: words(path) for path in tree("host", "module", "editor") if path.suffix in CODE}
    tests = {path: words(path) for path in tree("tests") if path.suffix in CODE}
    looks = {path for path, used in tests.items() if WINDOW_HELPERS & used}
    # A fixture's header speaks for the tests beside it.
    looked = set().union(*(used for path, used in tests.items() if {look.parent for look in looks} & {path.parent}))
    findings = []
    for path, template, line, controls in templates():
        users = {source.stem for source, used in sources.items() if template in used}
        ids = {word for control, _ in controls for word in re.findall(r"\w*IDC_\w+", control)} - ANONYMOUS
        if not (users | ids | {template}) & looked:
            findings.append(f"{place(path, line)}: no test looks at the dialog {template} ({', '.join(sorted(users))})")
    if not looks:
        findings.append(f"{place(ROOT / 'tests')}: no window test found")
    return findings
