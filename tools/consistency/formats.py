"""Texts with printf arguments: what the header promises, what the text takes and what the callers pass is the same."""
import re

import texts
from tree import CODE, line_at, place, text_of, tree, without_comments

FOLDERS = ("host", "module", "plant", "editor")
# "%d %d: the lowest and the highest value" behind an id
PROMISE = re.compile(r"^#define (\w+)[ \t]+\d+[ \t]*//[ \t]*((?:%[ds][ \t]*)+):", re.M)
ID = r"(?:KZS|KZ_IDS|IDS)_\w+"
CALL = re.compile(rf"\bFormat(?:Editor|Host)Text\(\s*({ID})\s*(?=[,)])|\bFormat\(\s*KZLoadString\(({ID})\)\.c_str\(\)\s*(?=[,)])")
# What shows its type by its look; a plain name does not.
TEXT = re.compile(r'c_str\(\)|\bL"')
NUMBER = re.compile(r"^\d+$|static_cast<int>|\bsize\(\)|\bNumber\(\)")


def arguments(text, position):
    """The arguments from a position behind the first one up to the call's closing bracket."""
    found, depth, start = [], 0, position
    for index in range(position, len(text)):
        character = text[index]
        if character in "([{":
            depth += 1
        elif character in ")]}":
            if depth == 0:
                return [argument.strip() for argument in [*found, text[start:index]] if argument.strip()]
            depth -= 1
        elif character == "," and depth == 0:
            found.append(text[start:index])
            start = index + 1
    return []


def conversions():
    """{id: the kinds of its arguments}, by the first language; texts.py compares the languages."""
    taken = {}
    for _, _, name, text, _, _ in texts.entries():
        taken.setdefault(name, texts.conversions(text))
    return taken


def promises():
    for path in tree(*FOLDERS):
        if path.suffix == ".h":
            text = text_of(path)
            for match in PROMISE.finditer(text):
                yield match.group(1), re.findall(r"%([ds])", match.group(2)), path, line_at(text, match.start())


def calls():
    for path in tree(*FOLDERS):
        if path.suffix in CODE:
            text = without_comments(text_of(path))
            for match in CALL.finditer(text):
                yield match.group(1) or match.group(2), arguments(text, match.end()), path, line_at(text, match.start())


def check():
    taken, findings = conversions(), []
    for name, kinds, path, line in promises():
        if kinds != taken.get(name):
            findings.append(f"{place(path, line)}: {name} takes other arguments: {' '.join(taken.get(name, []))}")
    found = list(calls())
    if not found:
        findings.append("no call with a formatted text found")
    for name, passed, path, line in found:
        kinds = taken.get(name, [])
        at = place(path, line)
        if len(kinds) != len(passed):
            findings.append(f"{at}: {name} takes {len(kinds)} arguments, not {len(passed)}")
        for kind, argument in zip(kinds, passed):
            if (NUMBER if kind == "s" else TEXT).search(argument):
                findings.append(f"{at}: {name} has %{kind} for {argument}")
    return findings
