#!/usr/bin/env python3
"""Writes a header with the characters of encodings, as this system's iconv has them.

    encoding_tables.py HEADER

For each encoding it has a table of its byte sequences (as big-endian numbers) and their characters, by sequence. An
encoding that combines two characters into one, as windows-1258 does, is left as single characters.
"""

import ctypes
import errno
import sys

LIBC = ctypes.CDLL(None, use_errno=True)
LIBC.iconv_open.restype = ctypes.c_void_p
LIBC.iconv.restype = ctypes.c_size_t
LIBC.iconv.argtypes = [ctypes.c_void_p] + 2 * [ctypes.POINTER(ctypes.c_char_p), ctypes.POINTER(ctypes.c_size_t)]
LIBC.iconv_close.argtypes = [ctypes.c_void_p]
FAILED = ctypes.c_size_t(-1).value

# What the library lets through to libxml2 and libxml2 does not decode itself, with the names that glibc knows.
PARTS = range(1, 17)
NAMES = (
    [form.format(part) for part in PARTS for form in ("ISO-8859-{}", "ISO_8859-{}", "ISO8859-{}", "LATIN{}")]
    + [form.format(page) for page in range(1250, 1259) for form in ("WINDOWS-{}", "CP{}")]
    + ["KOI8-R", "KOI8-U", "KOI8-RU", "KOI8-T", "TIS-620", "GB2312"]
    + ["EUC-CN", "EUC-JP", "EUC-KR", "EUC-TW"]
)


class Converter:
    """This system's iconv from one encoding."""

    def __init__(self, name):
        self._handle = LIBC.iconv_open(b"UTF-32BE", name.encode())
        if self._handle == ctypes.c_void_p(-1).value:
            raise LookupError(name)

    def close(self):
        LIBC.iconv_close(self._handle)

    def convert(self, sequence):
        """The characters of a sequence; None if it is only a beginning. ValueError for one that means nothing."""
        LIBC.iconv(self._handle, None, None, None, None)
        room = ctypes.create_string_buffer(64)
        source, left = ctypes.c_char_p(sequence), ctypes.c_size_t(len(sequence))
        target, free = ctypes.cast(room, ctypes.c_char_p), ctypes.c_size_t(len(room))
        arguments = [ctypes.byref(value) for value in (source, left, target, free)]
        failed = LIBC.iconv(self._handle, *arguments) == FAILED
        if failed and ctypes.get_errno() == errno.EINVAL:
            return None
        if failed:
            raise ValueError(sequence)
        LIBC.iconv(self._handle, None, None, *arguments[2:])
        return room.raw[: len(room) - free.value].decode("utf-32-be")


def table_of(name):
    """The sequences of an encoding as big-endian numbers, with their characters."""
    converter = Converter(name)
    table, beginnings = {}, [b""]
    while beginnings:
        beginning = beginnings.pop()
        for byte in range(256):
            sequence = beginning + bytes([byte])
            try:
                text = converter.convert(sequence)
            except ValueError:
                continue
            if text is None:
                beginnings.append(sequence)
            elif len(text) == 1:
                table[int.from_bytes(sequence, "big")] = ord(text)
    converter.close()
    return tuple(sorted(table.items()))


def main():
    tables = {}
    for name in NAMES:
        try:
            tables.setdefault(table_of(name), []).append(name)
        except LookupError:
            pass
    lines = ["// Generated from this system's iconv.", "// clang-format off"]
    for number, table in enumerate(tables):
        lines.append(f"constexpr Sequence kTable{number}[] = {{")
        pairs = [f"{{{sequence},{character}}}" for sequence, character in table]
        lines += [",".join(pairs[i : i + 12]) + "," for i in range(0, len(pairs), 12)]
        lines.append("};")
    lines.append("constexpr Encoding kEncodings[] = {")
    for number, names in enumerate(tables.values()):
        lines += [f'{{"{name}", kTable{number}}},' for name in names]
    lines.append("};")
    with open(sys.argv[1], "w", encoding="ascii") as file:
        file.write("\n".join(lines) + "\n")


if __name__ == "__main__":
    main()
