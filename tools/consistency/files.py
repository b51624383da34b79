"""What holds for every text file of the tree."""
import re

from tree import SOURCE, place, tree

LONGEST = 400
MEASURED = {".h", ".cpp", ".rc", ".py", ".sh", ".cmake"}
MACHINE_PATH = re.compile(r"(?<![\w.$}])/(?:home|root|work|tmp|Users)/\w")


def check():
    findings = []
    for path in tree():
        if path.suffix not in SOURCE:
            continue
        data = path.read_bytes()
        try:
            text = data.decode("utf-8")
        except UnicodeDecodeError:
            findings.append(f"{place(path)}: not UTF-8")
            continue
        if b"\r" in data:
            findings.append(f"{place(path)}: line ends other than LF")
        lines = text.split("\n")
        if path.suffix in MEASURED and len(lines) > LONGEST + 1:
            findings.append(f"{place(path)}: {len(lines) - 1} lines, more than {LONGEST}")
        for number, line in enumerate(lines, 1):
            if MACHINE_PATH.search(line):
                findings.append(f"{place(path, number)}: a path of one machine")
            if line != line.rstrip() and path.suffix != ".md":
                findings.append(f"{place(path, number)}: blanks at the end of the line")
            if "\t" in line and path.suffix in MEASURED:
                findings.append(f"{place(path, number)}: a tab")
    return findings
