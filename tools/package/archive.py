#!/usr/bin/env python3
"""Packs a folder into a ZIP that is the same for the same files: archive.py FOLDER ZIP

Names are sorted, times are SOURCE_DATE_EPOCH's in UTC, and nothing of the machine that packs is in it.
"""
import os
import sys
import time
import zipfile
from pathlib import Path


def main(arguments):
    if len(arguments) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    folder, target = Path(arguments[0]), Path(arguments[1])
    moment = time.gmtime(int(os.environ["SOURCE_DATE_EPOCH"]))[:6]
    files = sorted((path.relative_to(folder).as_posix(), path) for path in folder.rglob("*") if path.is_file())
    with zipfile.ZipFile(target, "w") as archive:
        for name, path in files:
            entry = zipfile.ZipInfo(name, moment)
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.external_attr = 0o100644 << 16
            archive.writestr(entry, path.read_bytes(), compresslevel=9)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
