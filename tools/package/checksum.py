#!/usr/bin/env python3
"""Gives a program the length and the checksum that signing it would: checksum.py PROGRAM

makensis does not. A signature that is taken away again then leaves the same bytes.
"""
import array
import struct
import sys
from pathlib import Path


def main(arguments):
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    path = Path(arguments[0])
    data = bytearray(path.read_bytes())
    data += bytes(-len(data) % 8)
    pe, = struct.unpack_from("<I", data, 0x3C)
    place = pe + 24 + 64
    struct.pack_into("<I", data, place, 0)
    words = array.array("H", bytes(data))
    if sys.byteorder == "big":
        words.byteswap()
    total = sum(words)
    while total >> 16:
        total = (total & 0xFFFF) + (total >> 16)
    struct.pack_into("<I", data, place, total + len(data))
    path.write_bytes(data)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
