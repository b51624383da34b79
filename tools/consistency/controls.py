"""The control ids of the dialog templates and the code that uses them."""
import re

from tree import CODE, definitions, line_at, place, text_of, tree, without_comments, words

FOLDERS = ("host", "module", "editor")
ANONYMOUS = {"IDC_STATIC"}
# Where the id stands: after the text and a comma, or first for the kinds that have no text.
WITH_TEXT = r'(?:LTEXT|RTEXT|CTEXT|PUSHBUTTON|DEFPUSHBUTTON|GROUPBOX|AUTOCHECKBOX|CHECKBOX|AUTORADIOBUTTON|RADIOBUTTON|ICON|CONTROL)'
WITHOUT_TEXT = r"(?:EDITTEXT|COMBOBOX|LISTBOX|SCROLLBAR)"
STATEMENT = re.compile(
    rf'^[ \t]*(?:{WITH_TEXT}[ \t]+(?:"(?:""|[^"])*"|\w+)[ \t]*,|{WITHOUT_TEXT})[ \t]*([^,\n]+),', re.M)
DIALOG = re.compile(r"^[ \t]*(\w+)[ \t]+DIALOG(?:EX)?\b(.*?)^[ \t]*END\b", re.M | re.S)


def templates():
    for path in tree(*FOLDERS):
        if path.suffix == ".rc":
            text = without_comments(text_of(path))
            for dialog in DIALOG.finditer(text):
                controls = [
                    (re.sub(r"\s+", "", match.group(1)), line_at(text, dialog.start(2) + match.start()))
                    for match in STATEMENT.finditer(dialog.group(2))
                ]
                yield path, dialog.group(1), line_at(text, dialog.start()), controls


def value_of(control, defined):
    """The number of an id such as IDC_BOX+4; the text itself when a name in it is not the project's."""
    total = 0
    for term in control.split("+"):
        if term in defined:
            total += defined[term][2]
        elif term.isdigit():
            total += int(term)
        else:
            return control
    return total


def runs(defined, in_code):
    """The ids that lie, without a gap, between two ids of their header that code uses: it counts over them."""
    inside = set()
    for path in {path for path, _, _ in defined.values()}:
        ids = {value: name for name, (where, _, value) in defined.items() if where == path}
        used = {value for value, name in ids.items() if name in in_code}
        for value, name in ids.items():
            below = above = value
            while below in ids and below not in used:
                below -= 1
            while above in ids and above not in used:
                above += 1
            if below in ids and above in ids:
                inside.add(name)
    return inside


def check():
    defined = definitions(r"(?:KZ_)?ID[CD]_", FOLDERS)
    in_code = {}
    for path in tree(*FOLDERS):
        if path.suffix in CODE:
            for word in words(path):
                in_code.setdefault(word, path)
    used = set(in_code) | runs(defined, in_code) | ANONYMOUS | {"IDOK", "IDCANCEL"}
    in_templates, findings = set(), []
    for path, template, line, controls in templates():
        in_templates.add(template)
        if not template.isdigit() and template not in in_code:
            findings.append(f"{place(path, line)}: no code uses the template {template}")
        seen = set()
        for control, at in controls:
            symbols = set(re.findall(r"\b[A-Za-z_]\w*", control))
            in_templates |= symbols
            value = value_of(control, defined)
            if value in seen and control not in ANONYMOUS and control != "-1":
                findings.append(f"{place(path, at)}: {control} is twice in {template}")
            seen.add(value)
            findings += [f"{place(path, at)}: no code uses the control {symbol}" for symbol in sorted(symbols - used)]
    if not in_templates:
        findings.append("no dialog template found")
    for name, (path, line, _) in sorted(defined.items()):
        if name not in in_templates and name not in in_code:
            findings.append(f"{place(path, line)}: {name} is in no template and in no code")
    return findings
