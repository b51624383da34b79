"""The project's files, and what several checks read from them."""
import re
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
CODE = {".h", ".cpp"}
SOURCE = CODE | {".rc", ".py", ".sh", ".cmake", ".txt", ".md", ".json", ".svg", ".xml", ""}
IGNORED = {"build", ".git", "__pycache__"}


def tree(*folders):
    """Every file under the folders (the whole tree unless named), build results left out."""
    for folder in folders or ("",):
        for path in sorted((ROOT / folder).rglob("*")):
            if path.is_file() and not IGNORED.intersection(path.relative_to(ROOT).parts):
                yield path


def place(path, line=None):
    name = path.relative_to(ROOT) if path.is_relative_to(ROOT) else path
    return f"{name}:{line}" if line else str(name)


def text_of(path):
    return path.read_text(encoding="utf-8")


def without_comments(text):
    """The text with its comments blanked, so that line numbers stay."""
    def blank(match):
        token = match.group()
        return token if token[0] in "\"'" else re.sub(r"[^\n]", " ", token)
    return re.sub(r'"(?:\\.|""|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'|//[^\n]*|/\*.*?\*/', blank, text, flags=re.S)


def line_at(text, position):
    return text.count("\n", 0, position) + 1


def definitions(prefix, folders):
    """{name: (path, line, value)} of the numeric macros whose name starts so."""
    found = {}
    for path in tree(*folders):
        if path.suffix == ".h":
            text = without_comments(text_of(path))
            for match in re.finditer(rf"^#define ({prefix}\w*)[ \t]+(0x[0-9A-Fa-f]+|\d+)", text, re.M):
                found[match.group(1)] = (path, line_at(text, match.start()), int(match.group(2), 0))
    return found


def words(path, skip_definitions=True):
    """The identifiers of a file; the names that its #define lines introduce do not count."""
    text = without_comments(text_of(path))
    if skip_definitions:
        text = re.sub(r"^#define \w+", "", text, flags=re.M)
    return set(re.findall(r"\b[A-Za-z_]\w*\b", text))
