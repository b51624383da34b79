"""Who may include whom."""
import re

from tree import CODE, ROOT, line_at, place, text_of, tree, without_comments

# The first folder that contains a file is its area.
FOLDERS = ("access", "mfc", "host", "module", "plant", "editor")
AREAS = [
    "access", "mfc", "host/include", "host", "module/entry", "module/device", "module/options", "module/limits",
    "module/variables", "module/resources", "module/shared", "plant", "editor",
]
PUBLIC = {"access", "mfc", "host/include"}
BASE = PUBLIC | {"module/shared", "module/resources"}
ALLOWED = {
    "access": set(),
    "mfc": set(),
    "host/include": {"mfc"},
    "host": PUBLIC,
    "module/shared": BASE,
    "module/resources": BASE,
    "module/device": BASE,
    "module/limits": BASE,
    "module/variables": BASE,
    "module/options": BASE | {"module/device", "module/limits"},
    "module/entry": BASE | {"module/options", "module/variables"},
    # What of the module is rules and records, native_sources says.
    "plant": {"host/include", "module/device", "module/limits", "module/options", "module/shared", "module/variables"},
    "editor": PUBLIC | {"plant"},
}
WINDOW_HEADERS = re.compile(r"windows\.h|windowsx\.h|commctrl\.h|win\w+\.h|afx\w*\.h", re.I)


def area_of(path):
    name = path.relative_to(ROOT).as_posix()
    return next((area for area in AREAS if name.startswith(area + "/")), None)


def includes_of(path):
    text = without_comments(text_of(path))
    for match in re.finditer(r'^[ \t]*#[ \t]*include[ \t]*[<"]([^>"]+)[>"]', text, re.M):
        yield match.group(1), line_at(text, match.start())


def project_headers():
    headers = {}
    for path in tree(*FOLDERS):
        if path.suffix in CODE | {".rc"}:
            headers.setdefault(path.name, []).append(path)
    return headers


def candidates(headers, including, name):
    """The project's files that the include may mean: the one beside the file, else those whose path ends so."""
    beside = (including.parent / name).resolve()
    if beside.is_file():
        return [beside]
    tail = "/" + name
    return [path for path in headers.get(name.rsplit("/", 1)[-1], []) if path.as_posix().endswith(tail)]


def check():
    headers = project_headers()
    findings = []
    for path in tree(*FOLDERS):
        area = area_of(path)
        if path.suffix not in CODE | {".rc"} or area is None:
            continue
        # A template may take its ids from any folder of the module.
        allowed = set(AREAS) - {"editor"} if path.suffix == ".rc" and area.startswith("module/") else ALLOWED[area] | {area}
        for name, line in includes_of(path):
            found = candidates(headers, path, name)
            areas = {area_of(candidate) for candidate in found}
            if found and not areas & allowed:
                findings.append(f"{place(path, line)}: {area} must not include {place(found[0])}")
    return findings + window_free(headers)


def native_sources():
    """The sources that CMake's lists of rules name: they are built without windows too."""
    for path in tree("host", "module", "plant"):
        if path.name != "CMakeLists.txt":
            continue
        text = re.sub(r"#[^\n]*", "", text_of(path))
        for block in re.finditer(r"(?:KZ_MODULE_RULES|KZ_HOST_CORE|kz_plant STATIC)\b([^)]*)\)", text):
            for name in re.findall(r"[\w/.-]+\.cpp", block.group(1)):
                if (path.parent / name).is_file():
                    yield path.parent / name


def window_free(headers):
    """No rule, record or part of the plant reaches a window header, through its own headers either."""
    findings, seen = [], set()
    waiting = sorted(set(native_sources()))
    if not waiting:
        return ["module/CMakeLists.txt: no list of rules found (KZ_MODULE_RULES)"]
    while waiting:
        path = waiting.pop()
        if path in seen or not any(path.is_relative_to(ROOT / folder) for folder in ("module", "plant")):
            continue
        seen.add(path)
        for name, line in includes_of(path):
            if WINDOW_HEADERS.fullmatch(name):
                findings.append(f"{place(path, line)}: what has no window must not include {name}")
            waiting += candidates(headers, path, name)
    return findings
