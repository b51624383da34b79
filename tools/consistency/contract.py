"""What KZUsrZEP.dll may import from KZHost.dll: the symbols of a list whose groups name the headers that promise them."""
import re
import subprocess

from tree import ROOT, place, text_of, without_comments

IMPORTS = ROOT / "tests/imports/KZUsrZEP.txt"
HEADERS = ROOT / "host/include"
# What MFC's macros declare.
MACROS = {"GetThisClass": "DECLARE_DYNAMIC", "GetRuntimeClass": "DECLARE_DYNAMIC", "GetThisMessageMap": "DECLARE_MESSAGE_MAP"}


def promised():
    """{symbol: (line, header)} of the list."""
    found, header = {}, None
    for line, text in enumerate(text_of(IMPORTS).splitlines(), 1):
        group = re.match(r"# (\w+\.h): ", text)
        if group:
            header = group.group(1)
        elif text and not text.startswith("#"):
            found[text] = (line, header)
    return found


def declared_names(symbols):
    """{symbol: the names that a header must have to declare it}: the class or classes, and the member or function."""
    demangled = subprocess.run(["x86_64-w64-mingw32-c++filt"], input="\n".join(symbols), check=True, capture_output=True,
                               text=True).stdout.splitlines()
    plain = (re.sub(r"^(vtable|typeinfo) for |\(.*", "", name) for name in demangled)
    return {symbol: {name.lstrip("~") for name in scoped.split("::")} for symbol, scoped in zip(symbols, plain)}


def header_words(name):
    path = HEADERS / name
    return set(re.findall(r"\w+", without_comments(text_of(path)))) if path.is_file() else set()


def declares(words, names):
    return all(name in words or MACROS.get(name) in words for name in names)


def check(found):
    wanted = promised()
    names = declared_names(sorted(found | wanted.keys()))
    headers = {path.name: header_words(path.name) for path in sorted(HEADERS.glob("*.h"))}
    findings = [f"{place(IMPORTS, line)}: {header or 'no header'} does not declare {symbol}"
                for symbol, (line, header) in wanted.items() if not declares(headers.get(header, set()), names[symbol])]
    for symbol in sorted(found - wanted.keys()):
        homes = [header for header, words in headers.items() if declares(words, names[symbol])]
        findings.append(f"KZUsrZEP.dll: imports {symbol} ({', '.join(homes) or 'no header of host/include'}) from KZHost.dll, "
                        f"which {IMPORTS.relative_to(ROOT)} does not list")
    return findings
