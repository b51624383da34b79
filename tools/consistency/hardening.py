"""What the headers of the shipped programs and libraries let Windows protect."""
import struct

# Bits of DllCharacteristics.
WANTED = {
    0x0020: "the addresses are not chosen from 64 bits (HIGHENTROPYVA)",
    0x0040: "it is always loaded at the same address (ASLR)",
    0x0100: "data may be executed (DEP)",
}
DIRECTORY_OF_RELOCATIONS = 5
EXECUTE, WRITE = 0x20000000, 0x80000000


class Image:
    """The headers of a 64-bit program or library."""

    def __init__(self, data):
        pe, = struct.unpack_from("<I", data, 0x3C)
        signature, _, count, _, _, _, size, _ = struct.unpack_from("<4sHHIIIHH", data, pe)
        magic, = struct.unpack_from("<H", data, pe + 24)
        if signature != b"PE\0\0" or magic != 0x20B:
            raise ValueError("not a 64-bit program or library")
        self.flags, = struct.unpack_from("<H", data, pe + 24 + 70)
        _, self.relocations = struct.unpack_from("<II", data, pe + 24 + 112 + 8 * DIRECTORY_OF_RELOCATIONS)
        headers = [struct.unpack_from("<8s28xI", data, pe + 24 + size + 40 * index) for index in range(count)]
        self.sections = [(name.rstrip(b"\0").decode(), flags) for name, flags in headers]


def findings_of(data):
    try:
        image = Image(data)
    except (ValueError, struct.error) as error:
        return [str(error)]
    findings = [what for bit, what in WANTED.items() if not image.flags & bit]
    if not image.relocations:
        findings.append("it has no relocations, so that it cannot be moved")
    return findings + [f"the section {name} is writable and executable" for name, flags in image.sections
                       if flags & EXECUTE and flags & WRITE]


def check(folder):
    files = sorted(path for path in folder.rglob("*") if path.suffix.lower() in {".exe", ".dll"})
    if not files:
        return [f"{folder}: holds no program"]
    return [f"{path}: {what}" for path in files for what in findings_of(path.read_bytes())]
