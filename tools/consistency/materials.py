"""The bill of materials and what lies beside it: complete, true, and with the licences of what comes from elsewhere."""
import hashlib
import json

NAME = "materials.cdx.json"


def licence_of(component):
    """What the component says of its licence; empty when it says nothing."""
    return "".join(entry.get("expression") or entry.get("license", {}).get("name", "") for entry in component.get("licenses", []))


def check_files(folder, listed):
    findings = []
    there = {path.relative_to(folder).as_posix(): path for path in folder.rglob("*") if path.is_file() and path.name != NAME}
    for name in sorted(there.keys() - listed.keys()):
        findings.append(f"{folder / NAME}: does not list {name}")
    for name in sorted(listed.keys() - there.keys()):
        findings.append(f"{folder / NAME}: lists {name}, which is not there")
    for name in sorted(there.keys() & listed.keys()):
        found = hashlib.sha256(there[name].read_bytes()).hexdigest()
        if [found] != [entry["content"] for entry in listed[name].get("hashes", []) if entry["alg"] == "SHA-256"]:
            findings.append(f"{folder / NAME}: {name} has other bytes than listed")
    return findings


def check(folder):
    if not (folder / NAME).is_file():
        return [f"{folder / NAME}: not made"]
    bill = json.loads((folder / NAME).read_text(encoding="utf-8"))
    listed = {component["name"]: component for component in bill["components"] if component["type"] == "file"}
    libraries = {component["bom-ref"] for component in bill["components"] if component["type"] == "library"}
    findings = check_files(folder, listed)
    for component in bill["components"]:
        for what, value in (("version", component.get("version")), ("licence", licence_of(component)),
                            ("origin", "".join(entry["value"] for entry in component["properties"] if entry["name"] == "origin"))):
            if not value:
                findings.append(f"{folder / NAME}: {component['name']} has no {what}")
    for library in sorted(libraries):
        if f"licenses/{library.replace(' ', '-')}.txt" not in listed:
            findings.append(f"{folder}: the licence of {library} is missing")
    told = {entry["ref"]: set(entry["dependsOn"]) for entry in bill["dependencies"]}
    for name in sorted(listed):
        if name.endswith((".exe", ".dll")) and not told.get(name):
            findings.append(f"{folder / NAME}: does not say what {name} is made of")
    for name in sorted(set().union(*told.values()) - libraries):
        findings.append(f"{folder / NAME}: {name} is part of a file and not listed")
    return findings
