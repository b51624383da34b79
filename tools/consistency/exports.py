"""What the products export and import, read from the files that were built."""
import re
import subprocess

import contract
from tree import ROOT, text_of

EXPORTS = ROOT / "tests/exports/KZUsrZEP.txt"
PRODUCTS = ("libcsv.dll", "KZMfc.dll", "KZHost.dll", "KZUsrZEP.dll", "KZEditor.exe")
RUNTIME = {"libstdc++-6.dll", "libgcc_s_seh-1.dll", "libwinpthread-1.dll"}
SYSTEM = {
    "advapi32.dll", "comctl32.dll", "gdi32.dll", "kernel32.dll", "msvcrt.dll", "ole32.dll", "oleaut32.dll", "shell32.dll",
    "shlwapi.dll", "user32.dll", "uxtheme.dll", "windowscodecs.dll", "oleacc.dll", "comdlg32.dll", "imm32.dll", "ucrtbase.dll",
    "ntdll.dll", "version.dll",
}
MAY_USE = {
    "libcsv.dll": set(),
    "KZMfc.dll": set(),
    "KZHost.dll": {"KZMfc.dll"},
    "KZUsrZEP.dll": {"KZMfc.dll", "KZHost.dll"},
    "KZEditor.exe": {"KZMfc.dll", "KZHost.dll", "libcsv.dll"},
}
# In Windows 10 but not in every Wine: linking to one keeps the file from loading there.
TOO_NEW = {"SetDialogDpiChangeBehavior", "SetDialogControlDpiChangeBehavior"}


def dump(path):
    return subprocess.run(["x86_64-w64-mingw32-objdump", "-p", str(path)], check=True, capture_output=True, text=True).stdout


def exported(headers):
    table = headers.partition("[Ordinal/Name Pointer] Table")[2]
    return {match.group(1) for match in re.finditer(r"^\s+\[\s*\d+\]\s+(?:\+base\[\s*\d+\]\s+(?:[0-9a-f]+\s+)?)?(\S+)$",
                                                    table.split("\n\n")[0], re.M)}


def check(folder):
    findings = []
    for product in PRODUCTS:
        path = folder / product
        if not path.is_file():
            findings.append(f"{path}: not built")
            continue
        headers = dump(path)
        used = set(re.findall(r"DLL Name: (\S+)", headers))
        for dll in sorted(used):
            if dll.lower() not in SYSTEM and dll not in RUNTIME | MAY_USE[product]:
                findings.append(f"{product}: must not use {dll}")
        for name in sorted(TOO_NEW & set(re.findall(r"\w+", headers.partition("[Ordinal/Name")[0]))):
            findings.append(f"{product}: must not link to {name}")
        if product == "KZUsrZEP.dll":
            findings += compare(exported(headers)) + contract.check(imported(headers, "KZHost.dll"))
    return findings


def imported(headers, dll):
    """The names that the file whose headers these are imports from a DLL."""
    table = headers.partition(f"DLL Name: {dll}")[2].split("\n\n")[0]
    return set(re.findall(r"^\s+[0-9a-f]+\s+\d+\s+(\S+)$", table, re.M))


def compare(found):
    wanted = {line for line in text_of(EXPORTS).split("\n") if line and not line.startswith("#")}
    name = EXPORTS.relative_to(ROOT)
    return [f"KZUsrZEP.dll: exports {symbol}, which {name} does not list" for symbol in sorted(found - wanted)] + [
        f"KZUsrZEP.dll: does not export {symbol}, which {name} lists" for symbol in sorted(wanted - found)]
