#!/usr/bin/env python3
"""Names the functions of a crash report: resolve-crash.py REPORT SYMBOLS

REPORT is a file of %LOCALAPPDATA%\\KZEditor\\crash, SYMBOLS the folder of the same build's symbols: build/windows/symbols,
or what ./dev package has put beside the packages. The report comes out as it is, with its frames resolved. The exit status is 1 when
no frame of ours could be.
"""
import bisect
import re
import struct
import subprocess
import sys
from pathlib import Path


def build_id(path):
    """What the linker wrote into the file, as in the report; empty when there is nothing."""
    data = path.read_bytes()
    pe, = struct.unpack_from("<I", data, 0x3C)
    count, = struct.unpack_from("<H", data, pe + 6)
    optional, = struct.unpack_from("<H", data, pe + 20)
    for index in range(count):
        name, size, start = struct.unpack_from("<8s8xII", data, pe + 24 + optional + 40 * index)
        if name == b".buildid":
            _, found, rest = data[start:start + size].partition(b"RSDS")
            return rest[:16].hex() if found else ""
    return ""


def image_base(path):
    data = path.read_bytes()
    pe, = struct.unpack_from("<I", data, 0x3C)
    return struct.unpack_from("<Q", data, pe + 24 + 24)[0]


def symbols_of(report, folder):
    """{file: its functions} for the files of the report whose symbols are there, and what is wrong with others."""
    found, told = {}, []
    for name, build in re.findall(r"^module (\S+) \S+ (\S+)$", report, re.M):
        path = folder / f"{name}.debug"
        if not path.is_file():
            continue
        if build_id(path) == build:
            found[name] = Functions(path)
        else:
            told.append(f"{path}: the symbols of another build than {name}'s")
    return found, told


class Functions:
    """The functions of a file, by where they begin."""

    def __init__(self, path):
        table = subprocess.run(["x86_64-w64-mingw32-nm", "-C", "--defined-only", str(path)], check=True, capture_output=True,
                               text=True).stdout
        found = re.findall(r"^([0-9a-f]+) [tT] (.+)$", table, re.M)
        self.base = image_base(path)
        self.names = sorted((int(address, 16), name) for address, name in found if not name.startswith("."))

    def at(self, offset):
        place = bisect.bisect_right(self.names, (self.base + offset, chr(0x10FFFF)))
        return self.names[place - 1][1] if place else "?"


def main(arguments):
    if len(arguments) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    report = Path(arguments[0]).read_text(encoding="utf-8")
    symbols, told = symbols_of(report, Path(arguments[1]))
    count = 0
    for line in report.splitlines():
        print(line)
        frame = re.fullmatch(r"frame (\S+) ([0-9a-f]+)", line)
        if frame and frame.group(1) in symbols:
            print(f"    {symbols[frame.group(1)].at(int(frame.group(2), 16))}")
            count += 1
    for what in told:
        print(f"resolve-crash.py: {what}", file=sys.stderr)
    if count == 0:
        print(f"resolve-crash.py: {arguments[1]} has no symbols of these files", file=sys.stderr)
    return 0 if count else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
