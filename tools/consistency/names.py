"""The names of the test cases, from the lists that ctest has asked the test programs for: a person can type them."""
import re
from pathlib import Path

TYPED = re.compile(r"[\w./]+")
NUMBERED = re.compile(r"/\d+$")


def cases(listing):
    """The names "Suite.Case" of one program's list: its suites, and below each, indented, its cases."""
    suite = ""
    # Values of parameters stand behind the names, and may be no text at all.
    for line in listing.read_text(encoding="utf-8", errors="replace").splitlines():
        name = line.split("#")[0].rstrip()
        if not line.startswith(" "):
            suite = name
        elif suite.endswith("."):
            yield suite + name.strip()


def check(folder=Path("build")):
    names = [name for path in sorted(folder.rglob("*_suites.txt")) for name in cases(path)]
    if not names:
        return [f"{folder}: no list of test cases found"]
    return [f"{name}: give its parameter a name" for name in names if not TYPED.fullmatch(name) or NUMBERED.search(name)]
