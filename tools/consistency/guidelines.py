"""What the platform's guidelines want of dialog templates and captions, as far as a script can see it."""
import re

from controls import DIALOG
from texts import TABLES, entries
from tree import line_at, place, text_of, tree, without_comments

MARGIN = 7
RELATED = 4
FRAME = re.compile(r"\b(?:GROUPBOX|SysTabControl32)\b")
PLACE = re.compile(r",\s*(\d+)\s*,\s*(\d+)\s*,\s*(\d+)\s*,\s*(\d+)\b(?!.*,\s*\d+\s*,\s*\d+\s*,\s*\d+\s*,\s*\d+\b)")
SIZE = re.compile(r"\s*(?:\w+\s+)*?\d+\s*,\s*\d+\s*,\s*(\d+)\s*,\s*(\d+)")
# The captions of the options hub's sections, which have access keys.
SECTION = re.compile(r"KZ_IDS_OPTIONS_(?:DRIVER|DEVICE|LIMITS|UNITS|INPUTS_OUTPUTS|GENERIC\d)$")


def expanded(text):
    """The script with its own macros of places replaced."""
    for name, value in re.findall(r"^#define[ \t]+(\w+)[ \t]+(.+?)[ \t]*$", text, re.M):
        text = re.sub(rf"\b{name}\b(?!.*#define)", value, text)
    return text


def controls_of(dialog):
    """(line within the dialog, left, top, right, bottom) of each control, frames left out."""
    for number, line in enumerate(dialog.splitlines()):
        found = PLACE.search(line)
        if found and not FRAME.search(line) and "STYLE" not in line:
            left, top, width, height = map(int, found.groups())
            yield number, left, top, left + width, top + height


def gap(one, other):
    """How far two controls are apart that stand in one row or column; None for others, and for one inside the other."""
    (_, left, top, right, bottom), (_, left2, top2, right2, bottom2) = one, other
    across, down = max(left, left2) - min(right, right2), max(top, top2) - min(bottom, bottom2)
    if across >= 0 and down < 0:
        return across
    return down if down >= 0 and across < 0 else None


def templates():
    findings = []
    for path in tree("host"):
        if path.suffix != ".rc":
            continue
        text = expanded(without_comments(text_of(path)))
        for dialog in DIALOG.finditer(text):
            width, height = map(int, SIZE.match(dialog.group(2)).groups())
            first = line_at(text, dialog.start(2))
            placed = list(controls_of(dialog.group(2)))
            if not placed:
                findings.append(f"{place(path, first)}: no control was found in {dialog.group(1)}")
            for number, left, top, right, bottom in placed:
                if min(left, top, width - right, height - bottom) < MARGIN:
                    findings.append(f"{place(path, first + number)}: nearer to the edge than {MARGIN} dialog units")
            for index, one in enumerate(placed):
                for other in placed[index + 1:]:
                    apart = gap(one, other)
                    if apart is not None and apart < RELATED:
                        findings.append(f"{place(path, first + other[0])}: nearer to another control than {RELATED}"
                                        " dialog units")
    return findings


def access_key(text):
    keys = re.findall(r"&(.)", text.replace("&&", ""))
    return keys[0].lower() if len(keys) == 1 else None


def captions():
    """The hub's sections have an access key each, none twice in a language; the texts that modules use have none."""
    findings, taken, sections = [], {}, 0
    for folder, language, name, text, path, line in entries():
        if SECTION.match(name):
            sections += 1
            key = access_key(text)
            if key is None:
                findings.append(f"{place(path, line)}: {name} has no access key, or several")
            elif taken.setdefault((language, key), name) != name:
                findings.append(f"{place(path, line)}: {name} has the access key of {taken[language, key]}")
        elif name.startswith("KZS_") and "&" in text:
            findings.append(f"{place(path, line)}: {name} stands in dialogs of modules, which have no access keys")
    if sections == 0:
        findings.append(f"{'/, '.join(TABLES)}/: no caption of a section was found")
    return findings


def check():
    return templates() + captions()
