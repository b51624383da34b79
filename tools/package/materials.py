#!/usr/bin/env python3
"""The bill of materials of what ships: materials.py FOLDER VERSION SOURCES

Writes FOLDER/materials.cdx.json (CycloneDX 1.5): every file of FOLDER with its SHA-256, origin, version and licence, and what was
compiled into it. Copies the licence texts of what comes from elsewhere into FOLDER/licenses. SOURCES holds the unpacked Debian source
packages; of other packages the machine's own are asked. A file that nobody has told the origin of is an error.
"""
import hashlib
import json
import re
import shutil
import subprocess
import sys
import uuid
from pathlib import Path
from urllib.parse import quote

NAME = "materials.cdx.json"
NO_LICENCE = "No licence has been chosen yet; all rights are reserved"

# name, SPDX licence, Debian package, whether its source is compiled here
ELSEWHERE = {
    "libcsv": ("LGPL-2.1-or-later", "libcsv", True),
    "pugixml": ("MIT", "pugixml", True),
    "expat": ("MIT", "expat", True),
    "CLI11": ("BSD-3-Clause", "libcli11-dev", False),
    "GCC runtime": ("GPL-3.0-or-later WITH GCC-exception-3.1", "gcc-mingw-w64-x86-64-posix-runtime", False),
    "MinGW-w64 runtime": ("MIT AND BSD-3-Clause AND LicenseRef-MinGW-w64", "mingw-w64-x86-64-dev", False),
}
# The start-up code of every program and library, and the parts of the C library that Windows lacks.
STARTUP = ["GCC runtime", "MinGW-w64 runtime"]
# Ours, with what is compiled into it.
OURS = {
    "KZEditor.exe": ["CLI11", *STARTUP],
    "KZHost.dll": ["pugixml", "expat", *STARTUP],
    "KZMfc.dll": STARTUP,
    "KZUsrZEP.dll": STARTUP,
}
# Others' files, with whose they are.
OTHERS = {
    "libcsv.dll": "libcsv",
    "libgcc_s_seh-1.dll": "GCC runtime",
    "libstdc++-6.dll": "GCC runtime",
    "libwinpthread-1.dll": "MinGW-w64 runtime",
}
# The common texts that the packages' own refer to.
COMMON = ("GPL-3", "LGPL-2.1")


def licence_file(name):
    return name.replace(" ", "-") + ".txt"


def origins(sources):
    """{name: (version, licence, address, file with the licence)} of what comes from elsewhere."""
    found = {}
    for name, (licence, package, is_source) in ELSEWHERE.items():
        if is_source:
            folder = sources / package / "debian"
            version = re.match(r"\S+ \(([^)]+)\)", (folder / "changelog").read_text(encoding="utf-8")).group(1)
            text, kind = folder / "copyright", "?arch=source"
        else:
            version = subprocess.run(["dpkg-query", "-W", "-f", "${Version}", package], check=True, capture_output=True,
                                     text=True).stdout
            text, kind = Path("/usr/share/doc") / package / "copyright", ""
        found[name] = (version, licence, f"pkg:deb/debian/{package}@{quote(version)}{kind}", text)
    return found


def copy_licences(folder, found):
    licences = folder / "licenses"
    shutil.rmtree(licences, ignore_errors=True)
    licences.mkdir()
    texts = {licence_file(name): [text] for name, (_, _, _, text) in found.items()}
    texts.update({f"{name}.txt": [Path("/usr/share/common-licenses") / name] for name in COMMON})
    for name, parts in texts.items():
        (licences / name).write_bytes(b"\n".join(part.read_bytes() for part in parts))
    (licences / "KZEditor.txt").write_text(
        f"{', '.join(OURS)} and the pictures in images are this project's own.\n{NO_LICENCE}.\n", encoding="utf-8")


def component(kind, name, version, licence, origin, **more):
    is_id = licence != NO_LICENCE
    licences = [{"expression": licence}] if is_id else [{"license": {"name": licence}}]
    return {"type": kind, "bom-ref": name, "name": name, "version": version, "licenses": licences,
            "properties": [{"name": "origin", "value": origin}], **more}


def file_component(folder, path, version, found):
    name = path.relative_to(folder).as_posix()
    whole = {"hashes": [{"alg": "SHA-256", "content": hashlib.sha256(path.read_bytes()).hexdigest()}]}
    if name in OTHERS:
        theirs, licence, address, _ = found[OTHERS[name]]
        return component("file", name, theirs, licence, address, **whole)
    is_licence = name.startswith("licenses/")
    if name in OURS or name.startswith("images/") or name == "licenses/KZEditor.txt":
        return component("file", name, version, NO_LICENCE, "this project", **whole)
    if is_licence:
        owner = next((found[other] for other in found if licence_file(other) == path.name), None)
        address = owner[2] if owner else "pkg:deb/debian/base-files"
        return component("file", name, owner[0] if owner else path.stem, "LicenseRef-text-of-a-licence", address, **whole)
    raise SystemExit(f"materials.py: nobody has told where {name} comes from")


def dependencies():
    rows = [(name, parts) for name, parts in OURS.items()] + [(name, [owner]) for name, owner in OTHERS.items()]
    return [{"ref": name, "dependsOn": sorted(parts)} for name, parts in sorted(rows)]


def bill(folder, version, found):
    files = sorted(path for path in folder.rglob("*") if path.is_file() and path.name != NAME)
    components = [file_component(folder, path, version, found) for path in files]
    components += [component("library", name, theirs, licence, address, purl=address)
                   for name, (theirs, licence, address, _) in sorted(found.items())]
    content = json.dumps(components, sort_keys=True)
    return {
        "bomFormat": "CycloneDX",
        "specVersion": "1.5",
        # The same for the same files, so that a build can be repeated.
        "serialNumber": f"urn:uuid:{uuid.uuid5(uuid.NAMESPACE_URL, content)}",
        "version": 1,
        "metadata": {"component": {"type": "application", "bom-ref": "KZEditor", "name": "KZEditor", "version": version}},
        "components": components,
        "dependencies": dependencies(),
    }


def main(arguments):
    if len(arguments) != 3:
        print(__doc__, file=sys.stderr)
        return 2
    folder, version, sources = Path(arguments[0]), arguments[1], Path(arguments[2])
    found = origins(sources)
    copy_licences(folder, found)
    text = json.dumps(bill(folder, version, found), indent=1, ensure_ascii=False) + "\n"
    (folder / NAME).write_text(text, encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
