"""The texts of the string tables: complete in each language, with the same arguments, and used."""
import re

from tree import CODE, definitions, line_at, place, text_of, tree, without_comments, words

TABLES = ("host", "editor")
SOURCES = ("host", "module", "plant", "editor")
PREFIX = r"(?:KZS|KZ_IDS|IDS)_"
CONVERSION = re.compile(r"%(?:%|[-+ #0]*\d*(?:\.\d+)?(?:hh|h|ll|l|I64)?([diouxXeEfgGscp]))")
LANGUAGE = re.compile(r"^[ \t]*LANGUAGE[ \t]+(LANG_\w+)", re.M)
TABLE = re.compile(r"^[ \t]*STRINGTABLE\b(.*?)^[ \t]*END\b", re.M | re.S)
ENTRY = re.compile(r'^[ \t]*(\w+)[ \t]*,?[ \t]*(L?"(?:""|\\.|[^"])*"(?:\s+L?"(?:""|\\.|[^"])*")*)', re.M)


def entries():
    """(folder, language, id, text, path, line) of every text."""
    for path in tree(*TABLES):
        if path.suffix != ".rc":
            continue
        text = without_comments(text_of(path))
        languages = [(match.start(), match.group(1)) for match in LANGUAGE.finditer(text)]
        for table in TABLE.finditer(text):
            language = next((name for start, name in reversed(languages) if start < table.start()), "none")
            for entry in ENTRY.finditer(table.group(1)):
                line = line_at(text, table.start(1) + entry.start(1))
                yield path.parts[-3:][0], language, entry.group(1), entry.group(2), path, line


def conversions(text):
    return [kind for kind in CONVERSION.findall(text) if kind]


def check():
    texts, findings = {}, []
    for _, language, name, text, path, line in entries():
        if name in texts and language in texts[name]:
            findings.append(f"{place(path, line)}: {name} is twice in {language}")
        texts.setdefault(name, {})[language] = (text, path, line)
    languages = {language for found in texts.values() for language in found} - {"LANG_NEUTRAL"}
    if len(languages) != 2:
        findings.append(f"the texts are in {len(languages)} languages, not in 2: {', '.join(sorted(languages))}")
    defined = definitions(PREFIX, SOURCES)
    used = set()
    for path in tree(*SOURCES):
        if path.suffix in CODE:
            used |= words(path)
    for name, (path, line, _) in sorted(defined.items()):
        for language in sorted(languages - set(texts.get(name, {}))):
            findings.append(f"{place(path, line)}: {name} has no text in {language}")
        if name not in used:
            findings.append(f"{place(path, line)}: no code uses {name}")
    for name, found in sorted(texts.items()):
        path, line = next(iter(found.values()))[1:]
        if name not in defined:
            findings.append(f"{place(path, line)}: {name} is not defined")
        kinds = {tuple(conversions(text)) for text, _, _ in found.values()}
        if len(kinds) > 1:
            findings.append(f"{place(path, line)}: {name} takes other arguments in the other language")
    return findings
