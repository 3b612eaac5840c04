#!/usr/bin/env python3
"""rename_font.py SOURCE TARGET NAME

Writes a copy of a TrueType font whose family and full name are NAME, without what would keep its letters
from being smoothed at small sizes: bitmaps, and the table that forbids it. Its lines are as high as those of Windows'
own interface fonts, of which the height of everything in a dialog follows.
"""

import struct
import sys


def name_table(name):
    """A minimal "name" table: one family, style, full and PostScript name for Windows, in American English."""
    texts = [(1, name), (2, "Regular"), (3, name + " stand-in"), (4, name), (6, name.replace(" ", ""))]
    records, storage = b"", b""
    for identifier, text in texts:
        encoded = text.encode("utf-16-be")
        records += struct.pack(">HHHHHH", 3, 1, 0x409, identifier, len(encoded), len(storage))
        storage += encoded
    return struct.pack(">HHH", 0, len(texts), 6 + len(records)) + records + storage


# Above and below the base line, in parts of the font's size: 15 pixels for 9 points at 96 dpi.
ASCENT, DESCENT = 1.0, 0.25


def with_line_height(tables):
    """The tables that say how high a line is: for Windows those of OS/2 count, for others those of hhea."""
    (units,) = struct.unpack(">H", tables[b"head"][18:20])
    up, down = round(ASCENT * units), round(DESCENT * units)
    hhea, os2 = tables[b"hhea"], tables[b"OS/2"]
    return {
        b"hhea": hhea[:4] + struct.pack(">hhh", up, -down, 0) + hhea[10:],
        b"OS/2": os2[:68] + struct.pack(">hhhHH", up, -down, 0, up, down) + os2[78:],
    }


def checksum(data):
    padded = data + b"\0" * (-len(data) % 4)
    return sum(struct.unpack(f">{len(padded) // 4}L", padded)) & 0xFFFFFFFF


def rename(font, name):
    version, count = struct.unpack(">LH", font[:6])
    tables = {}
    for i in range(count):
        tag, _, offset, length = struct.unpack(">4sLLL", font[12 + 16 * i : 28 + 16 * i])
        tables[tag] = font[offset : offset + length]
    tables[b"name"] = name_table(name)
    tables.update(with_line_height(tables))
    for dropped in (b"DSIG", b"EBDT", b"EBLC", b"EBSC", b"gasp"):
        tables.pop(dropped, None)
    # The whole file's checksum is taken with this field as zero.
    tables[b"head"] = tables[b"head"][:8] + b"\0\0\0\0" + tables[b"head"][12:]

    power = 1 << (len(tables).bit_length() - 1)
    header = struct.pack(">LHHHH", version, len(tables), power * 16, power.bit_length() - 1,
                         (len(tables) - power) * 16)
    directory, body = b"", b""
    start = len(header) + 16 * len(tables)
    for tag in sorted(tables):
        data = tables[tag]
        if tag == b"head":
            head_at = start + len(body)
        directory += struct.pack(">4sLLL", tag, checksum(data), start + len(body), len(data))
        body += data + b"\0" * (-len(data) % 4)
    result = header + directory + body
    adjustment = (0xB1B0AFBA - checksum(result)) & 0xFFFFFFFF
    return result[: head_at + 8] + struct.pack(">L", adjustment) + result[head_at + 12 :]


if __name__ == "__main__":
    source, target, wanted = sys.argv[1:4]
    with open(source, "rb") as file:
        renamed = rename(file.read(), wanted)
    with open(target, "wb") as file:
        file.write(renamed)
