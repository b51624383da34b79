"""What the platform's guidelines want of dialog templates and captions, as far as a script can see it."""
import re

from controls import DIALOG
from texts import TABLES, entries
from tree import CODE, ROOT, line_at, place, text_of, tree, without_comments

MARGIN = 7
RELATED = 4
FRAME = re.compile(r"\b(?:GROUPBOX|SysTabControl32)\b")
PLACE = re.compile(r",\s*(\d+)\s*,\s*(\d+)\s*,\s*(\d+)\s*,\s*(\d+)\b(?!.*,\s*\d+\s*,\s*\d+\s*,\s*\d+\s*,\s*\d+\b)")
SIZE = re.compile(r"\s*(?:\w+\s+)*?\d+\s*,\s*\d+\s*,\s*(\d+)\s*,\s*(\d+)")
# What a label stands in front of.
FIELD = re.compile(r"^[ \t]*(?:EDITTEXT|COMBOBOX|LISTBOX|CONTROL)\b")
LABEL = re.compile(r'^[ \t]*LTEXT[ \t]+"[^"]*",[ \t]*(\w+)')
# A sentence, and a heading that counts, are labels as they are.
LABEL_END = re.compile(r'(?:[:.]|\(%d\))"$')
# Where the editor's code gives a control its text.
CAPTION = re.compile(r"(?:\{|\bSetDlgItemText\()(IDC_\w+),\s*(?:(?:Format)?EditorText\()?(IDS_\w+)")
COLUMN = re.compile(r"\{(IDS_\w*COLUMN_\w+), \d+(, LVCFMT_RIGHT)?\}")
NUMBERS = {"IDS_COLUMN_NUMBER", "IDS_COLUMN_CHOSEN", "IDS_COLUMN_VARIABLES", "IDS_HISTORY_COLUMN_DOCUMENTS"}
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


def is_laid_out(path, placed):
    """Whether code places the controls: by a plan of the page, or since the template leaves them all in one place."""
    code = path.with_suffix(".cpp")
    return code.exists() and "::PlanPage(" in text_of(code) or all(left == top == 0 for _, left, top, _, _ in placed)


def templates():
    findings = []
    for path in tree("host", "editor"):
        if path.suffix != ".rc":
            continue
        text = expanded(without_comments(text_of(path)))
        for dialog in DIALOG.finditer(text):
            width, height = map(int, SIZE.match(dialog.group(2)).groups())
            first = line_at(text, dialog.start(2))
            placed = list(controls_of(dialog.group(2)))
            if path.is_relative_to(ROOT / "editor") and is_laid_out(path, placed):
                continue
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


def editor_captions():
    """The texts of each control, and (column, whether it is aligned to the right, path, line) of each list's columns."""
    texts, columns = {}, []
    for path in tree("editor"):
        if path.suffix in CODE:
            text = without_comments(text_of(path))
            for control, name in CAPTION.findall(text):
                texts.setdefault(control, set()).add(name)
            columns += [(found.group(1), found.group(2), path, line_at(text, found.start()))
                        for found in COLUMN.finditer(text)]
    return texts, columns


def labels(texts):
    """(path, line, text id) of the labels in front of the editor's fields."""
    for path in tree("editor"):
        if path.suffix == ".rc":
            lines = without_comments(text_of(path)).splitlines()
            for number, (line, after) in enumerate(zip(lines, lines[1:]), 1):
                label = LABEL.match(line)
                if label and FIELD.match(after):
                    yield from ((path, number, name) for name in sorted(texts.get(label.group(1), ())))


def fields():
    """Labels end with a colon, numbers stand at the right, an ellipsis is one character and in both languages."""
    findings = []
    written = {}
    for folder, language, name, text, path, line in entries():
        if folder == "editor":
            written.setdefault(name, []).append((text, path, line))
    texts, columns = editor_captions()
    named = list(labels(texts))
    for path, line, name in named:
        findings += [f"{place(where, at)}: {name} labels a field and ends with no colon"
                     for text, where, at in written.get(name, ()) if not LABEL_END.search(text)]
    for name, is_right, path, line in columns:
        if name in NUMBERS and not is_right:
            findings.append(f"{place(path, line)}: numbers of {name} are not aligned to the right")
    for path in tree("editor"):
        if path.suffix == ".rc":
            for number, line in enumerate(text_of(path).splitlines(), 1):
                if "ES_NUMBER" in line and "ES_RIGHT" not in line:
                    findings.append(f"{place(path, number)}: its number is not aligned to the right")
    for name, found in sorted(written.items()):
        if len({text.endswith('…"') for text, _, _ in found}) > 1 or any("..." in text for text, _, _ in found):
            findings.append(f"{place(*found[0][1:])}: {name} has dots for an ellipsis, or one in one language alone")
    if not named or not NUMBERS <= {name for name, _, _, _ in columns}:
        findings.append("editor/: no label or no column of numbers was found")
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
    return templates() + captions() + fields()
