"""The user guide quotes the product's messages as they read, with "…" for what is filled in."""
import re

import texts
from tree import ROOT, place, text_of

GUIDE = ROOT / "docs/user-guide.md"
LANGUAGE = "LANG_ENGLISH"
MESSAGES = re.compile(r"^\| message \|.*\n\|[-|]+\n((?:\|.*\n)+)", re.M)


def patterns():
    """A pattern for each English text of the product."""
    for _, language, _, literal, _, _ in texts.entries():
        if language == LANGUAGE:
            plain = "".join(re.findall(r'"((?:""|\\.|[^"])*)"', literal)).replace('""', '"').replace("\\n", " ")
            pieces = re.split(r"%[ds]", " ".join(plain.split()))
            yield re.compile(".+".join(re.escape(piece.replace("%%", "%")) for piece in pieces))


def check():
    rows = "".join(MESSAGES.findall(text_of(GUIDE))).splitlines()
    quotes = [quote.strip() for row in rows for quote in row.split("|")[1].split(" / ")]
    if not quotes:
        return [f"{place(GUIDE)}: no table of messages found"]
    known = list(patterns())
    return [f"{place(GUIDE)}: no text of the product reads \"{quote}\""
            for quote in quotes if not any(pattern.fullmatch(quote) for pattern in known)]
