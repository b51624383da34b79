"""The documents: their links lead to files and headings, and what they quote is still there."""
import re

from tree import ROOT, line_at, place, text_of, tree

LINK = re.compile(r"!?\[[^\]\n]*\]\(([^)\s]+)\)")
FENCE = re.compile(r"^```.*?^```", re.M | re.S)
QUOTE = re.compile(r"^<!-- quote: (\S+) -->\n```\w*\n(.*?)^```", re.M | re.S)
HEADING = re.compile(r"^#+ +(.*?) *$", re.M)
# A name in code marks with a folder of the tree before it is a promise too.
PATH = re.compile(r"`((?:docs|editor|examples|fuzz|host|mfc|module|tests|tools|bench|cmake)/[\w./-]*)`")
IMAGES = ROOT / "docs/images"


def anchors(path):
    """The anchors of a document's headings, made as GitHub makes them."""
    found = set()
    for heading in HEADING.findall(FENCE.sub("", text_of(path))):
        name = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", heading).lower()
        found.add(re.sub(r"[^\w\- ]", "", name).replace(" ", "-"))
    return found


def check_links(path, text):
    for match in LINK.finditer(text):
        target, _, anchor = match.group(1).partition("#")
        if re.match(r"\w+:", match.group(1)):
            continue
        file = (path.parent / target).resolve() if target else path
        at = place(path, line_at(text, match.start()))
        if not file.exists():
            yield f"{at}: no file {target}"
        elif anchor and anchor not in anchors(file):
            yield f"{at}: no heading #{anchor} in {place(file)}"


def check_paths(path, text):
    for match in PATH.finditer(text):
        if not (ROOT / match.group(1)).exists():
            yield f"{place(path, line_at(text, match.start()))}: no file {match.group(1)}"


def check_quotes(path, text):
    for match in QUOTE.finditer(text):
        source = ROOT / match.group(1)
        at = place(path, line_at(text, match.start()))
        if not source.is_file():
            yield f"{at}: no file {match.group(1)}"
        elif match.group(2) not in text_of(source):
            yield f"{at}: {match.group(1)} does not hold this text"


def check():
    documents = [path for path in tree() if path.suffix == ".md"]
    findings, shown = [], set()
    for path in documents:
        text = text_of(path)
        prose = FENCE.sub(lambda block: re.sub(r"[^\n]", " ", block.group()), text)
        findings += [*check_links(path, prose), *check_paths(path, prose), *check_quotes(path, text)]
        shown |= {(path.parent / link).resolve() for link in LINK.findall(prose)}
    findings += [f"{place(image)}: no document shows it" for image in sorted(IMAGES.iterdir()) if image not in shown]
    return findings
