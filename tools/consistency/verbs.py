"""The verbs of ./dev: what its help promises is there, and a reader finds it in the documents."""
import re

from tree import ROOT, line_at, place, text_of, tree

DEV = ROOT / "dev"


def check():
    text = text_of(DEV)
    usage = text[text.index("usage()"):text.index("\nEND\n")]
    offered = {match.group(1): line_at(text, text.index("usage()") + match.start())
               for match in re.finditer(r"^\./dev (\w+)", usage, re.M)}
    functions = set(re.findall(r"^verb_(\w+)\(\)", text, re.M)) | {"help"}
    dispatch = text[text.rindex("\ncase "):]
    dispatched = set(re.findall(r"[\w-]+", " ".join(re.findall(r"^ +([^()\n]*)\)", dispatch, re.M))))
    prose = " ".join(text_of(path) for path in tree() if path.suffix == ".md")
    mentioned = set(re.findall(r"(?:^|`)\./dev (\w+)", prose, re.M))
    findings = []
    for verb, line in sorted(offered.items()):
        at = place(DEV, line)
        if verb not in functions:
            findings.append(f"{at}: there is no function verb_{verb}")
        if verb not in dispatched:
            findings.append(f"{at}: {verb} is not dispatched")
        if verb not in mentioned:
            findings.append(f"{at}: no document mentions ./dev {verb}")
    findings += [f"{place(DEV)}: the help does not offer {verb}" for verb in sorted(functions - set(offered))]
    findings += [f"{place(DEV)}: documents mention ./dev {verb}, which does not exist" for verb in sorted(mentioned - functions)]
    return findings
