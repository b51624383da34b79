"""The names of the test cases, from the lists that ctest has asked the test programs for: a person can type them."""
import re
from pathlib import Path

CASE = re.compile(r"^add_test\(\[=*\[(.*?)\]=*\]", re.M)
TYPED = re.compile(r"[\w./]+")
NUMBERED = re.compile(r"/\d+$")


def check(folder=Path("build")):
    names = [name for path in sorted(folder.rglob("*_tests.cmake")) for name in CASE.findall(path.read_text(encoding="utf-8"))]
    if not names:
        return [f"{folder}: no list of test cases found"]
    return [f"{name}: give its parameter a name" for name in names if not TYPED.fullmatch(name) or NUMBERED.search(name)]
