#!/usr/bin/env python3
"""Names the functions and lines of a crash report: resolve-crash.py REPORT SYMBOLS

REPORT is a file of %LOCALAPPDATA%\\KZEditor\\crash, SYMBOLS the folder of the same build's symbols: build/windows/symbols,
or what ./dev package has put beside the packages. The report comes out as it is, with its frames resolved. The exit status is 1 when
no frame of ours could be.
"""
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
    """{file: its symbols} for the files of the report whose symbols are there."""
    found, told = {}, []
    for name, build in re.findall(r"^module (\S+) \S+ (\S+)$", report, re.M):
        path = folder / f"{name}.debug"
        if not path.is_file():
            continue
        if build_id(path) == build:
            found[name] = path
        else:
            told.append(f"{path}: the symbols of another build than {name}'s")
    return found, told


def resolved(path, offset):
    """The calls at a place, the innermost first: several where the compiler has put functions into each other."""
    out = subprocess.run(["x86_64-w64-mingw32-addr2line", "-fCie", str(path), hex(image_base(path) + offset)], check=True,
                         capture_output=True, text=True).stdout.splitlines()
    return [f"{function} at {line}" for function, line in zip(out[::2], out[1::2])]


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
            for call in resolved(symbols[frame.group(1)], int(frame.group(2), 16)):
                print(f"    {call}")
            count += 1
    for what in told:
        print(f"resolve-crash.py: {what}", file=sys.stderr)
    if count == 0:
        print(f"resolve-crash.py: {arguments[1]} has no symbols of these files", file=sys.stderr)
    return 0 if count else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
