#!/usr/bin/env python3
"""Runs clang-tidy over the product's sources: tidy.py BUILD_FOLDER... [-- SOURCE...]

The builds must be up to date: they tell how each source is compiled and which files it reads. A source is looked at again
only when its command, one of those files or .clang-tidy has changed; build/tidy remembers that. Exits with 1 when there
are findings.
"""
import hashlib
import json
import os
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from functools import lru_cache
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
PRODUCT = ("access/", "editor/", "host/", "mfc/", "module/", "plant/")
TIDY = "clang-tidy-14"
STAMPS = ROOT / "build/tidy"


@lru_cache(maxsize=None)
def digest(path):
    return hashlib.sha256(path.read_bytes()).digest() if path.is_file() else b"gone"


def read_files(build):
    """{object: the files that its compilation has read}, from ninja's own record."""
    output = subprocess.run(["ninja", "-C", build, "-t", "deps"], check=True, capture_output=True, text=True).stdout
    found, files = {}, []
    for line in output.splitlines():
        if line.startswith("    "):
            files.append(build / line.strip())
        elif ": #deps" in line:
            files = found.setdefault(line.partition(": #deps")[0], [])
    return found


def commands(build):
    """The build's commands, for clang: without g++'s precompiled headers. They are kept where clang-tidy looks for them."""
    text = (build / "compile_commands.json").read_text(encoding="utf-8")
    text = re.sub(r" -Winvalid-pch -include \S+", "", text)
    kept = STAMPS / build.name / "compile_commands.json"
    kept.parent.mkdir(parents=True, exist_ok=True)
    kept.write_text(text, encoding="utf-8")
    return json.loads(text)


def jobs(build, sources):
    """{source: (build, source, stamp, its new content)} of each of the product's sources that this build compiles."""
    files, found = read_files(build), {}
    for entry in commands(build):
        name = os.path.relpath(entry["file"], ROOT)
        if not name.startswith(PRODUCT) or not name.endswith(".cpp") or name in found or (sources and name not in sources):
            continue
        read = files.get(re.search(r" -o (\S+)", entry["command"]).group(1))
        if not read:  # a target that was not asked for
            continue
        state = hashlib.sha256(entry["command"].encode())
        for path in [ROOT / ".clang-tidy", *read]:
            state.update(digest(path))
        found[name] = build, name, STAMPS / build.name / (name + ".stamp"), state.hexdigest()
    return found.values()


def look(job):
    build, source, stamp, state = job
    if stamp.is_file() and stamp.read_text(encoding="ascii") == state:
        return True
    done = subprocess.run([TIDY, "-p", STAMPS / build.name, "--quiet", ROOT / source], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    if done.returncode == 0 and not done.stdout:
        stamp.parent.mkdir(parents=True, exist_ok=True)
        stamp.write_text(state, encoding="ascii")
        return True
    print(done.stdout or f"{source}: {TIDY} failed without a word", flush=True)
    return False


def main(arguments):
    split = arguments.index("--") if "--" in arguments else len(arguments)
    builds, sources = [Path(build).resolve() for build in arguments[:split]], arguments[split + 1:]
    if not builds:
        print(__doc__, file=sys.stderr)
        return 2
    todo = [job for build in builds for job in jobs(build, sources)]
    if not todo:
        print("tidy.py: no source to look at", file=sys.stderr)
        return 2
    with ThreadPoolExecutor(len(os.sched_getaffinity(0))) as pool:
        return 0 if all(list(pool.map(look, todo))) else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
