# SPDX-FileCopyrightText: 2026 The batchcore developers
# SPDX-License-Identifier: MIT

"""Adds to small HEIF and AVIF files what their encoder does not write; see tests/data/README.md.

    items.py SOURCE RESULT created | apple-gain-map | depth | depth-of-mpeg | transparency | tone-map
"""
import datetime
import struct
import sys

AUXILIARY_KINDS = {
    "apple-gain-map": b"urn:com:apple:photo:2020:aux:hdrgainmap",
    "depth": b"urn:mpeg:hevc:2015:auxid:2",
    "depth-of-mpeg": b"urn:mpeg:mpegB:cicp:systems:auxiliary:depth",
    "transparency": b"urn:mpeg:hevc:2015:auxid:1",
}


def boxes(data, start, end):
    while start + 8 <= end:
        size, kind = struct.unpack(">I4s", data[start:start + 8])
        yield kind, start, start + (size or end - start)
        start += size or end - start


def find(data, path):
    """Where the boxes of `path` begin, and where the last one ends."""
    start, end, begins = 0, len(data), []
    for wanted in path:
        for kind, first, last in boxes(data, start, end):
            if kind == wanted:
                begins.append(first)
                start, end = first + 8 + {b"meta": 4, b"iinf": 6}.get(wanted, 0), last
                break
        else:
            raise SystemExit(f"there is no {wanted}")
    return begins, end


def items_of_iloc(data):
    """The items, and where their places in the file are. For versions 0 and 1 with one part each and sizes of 4:
    number, in version 1 what the place counts from, reference, place if it has a base, count, place, length."""
    begins, end = find(data, [b"meta", b"iloc"])
    version, base = data[begins[-1] + 8], data[begins[-1] + 13] >> 4
    first, size, place = begins[-1] + 16, 14 + 2 * version + base, (4 if base else 6) + 2 * version
    items = [data[start:start + size] for start in range(first, end, size)]
    in_file = [version == 0 or item[3] & 15 == 0 for item in items]
    return items, [first + i * size + place for i, moves in enumerate(in_file) if moves]


def count_up(data, place):
    return data[:place] + struct.pack(">H", struct.unpack(">H", data[place:place + 2])[0] + 1) + data[place + 2:]


def insert(data, path, content):
    """Adds `content` at the end of the last box of `path`, and moves what comes behind."""
    begins, end = find(data, path)
    data = bytearray(data)
    for begin in begins:
        size = struct.unpack(">I", data[begin:begin + 4])[0]
        data[begin:begin + 4] = struct.pack(">I", size + len(content))
    data[end:end] = content
    for place in items_of_iloc(data)[1]:
        data[place:place + 4] = struct.pack(">I", struct.unpack(">I", data[place:place + 4])[0] + len(content))
    return bytes(data)


def box(kind, content):
    return struct.pack(">I4s", len(content) + 8, kind) + content


def main(source, result, what):
    with open(source, "rb") as file:
        data = file.read()
    properties = [b"meta", b"iprp", b"ipco"]
    if what == "created":
        since = datetime.datetime(2017, 8, 9, 10, 11, 12) - datetime.datetime(1904, 1, 1)
        time = struct.pack(">Q", int(since.total_seconds()) * 1_000_000)
        data = insert(data, properties, box(b"crtt", bytes(4) + time))
    elif what in AUXILIARY_KINDS:
        data = insert(data, properties, box(b"auxC", bytes(4) + AUXILIARY_KINDS[what] + b"\0"))
    elif what == "tone-map":  # an item whose data are those of the picture
        number = struct.pack(">H", 4000)
        data = count_up(data, find(data, [b"meta", b"iinf"])[0][-1] + 12)
        item = box(b"infe", b"\2\0\0\1" + number + b"\0\0tmap\0")
        data = insert(data, [b"meta", b"iinf"], item)
        first = items_of_iloc(data)[0][0]
        data = count_up(data, find(data, [b"meta", b"iloc"])[0][-1] + 14)
        data = insert(data, [b"meta", b"iloc"], number + first[2:])
    with open(result, "wb") as file:
        file.write(data)


main(*sys.argv[1:])
