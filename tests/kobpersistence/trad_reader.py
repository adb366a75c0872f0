#!/usr/bin/env python3
# SPDX-FileCopyrightText: The KOBTraduction authors
"""Reads a translation file and prints its objects as JSON; written from docs/file-format.md alone.

  trad_reader.py FILE...    a JSON line per file: its records, or {"refused": why}
  trad_reader.py --tree FILE...   the objects below the first one, nested, for a person

The exit code is 1 when a file was refused.
"""

import json
import struct
import sys

MAGIC = b"KOBTRAD\x1a"
HEADER, CHECKSUM = 40, 8
FACTOR, MASK = 0x9E3779B97F4A7C15, (1 << 64) - 1
DEEPEST = 10003
KNOWN = ["KOBTraduction.KOBModeleTraduction", "KOBTraduction.KOBCellTraduction", "KOBTraduction.KOBTraductionObj"]


class Refused(Exception):
    pass


def need(condition, why):
    if not condition:
        raise Refused(why)


def rot(number, bits):
    return ((number << bits) | (number >> (64 - bits))) & MASK


def step(lane, word):
    return rot(((lane ^ word) * FACTOR) & MASK, 29)


def checksum(data):
    def filled(part):
        return part + bytes(-len(part) % 32)

    lanes = [0x243F6A8885A308D3, 0x13198A2E03707344, 0xA4093822299F31D0, 0x082EFA98EC4E6C89]
    words = struct.iter_unpack("<4Q", filled(data[HEADER:-CHECKSUM]) + filled(data[:HEADER]))
    for four in words:
        lanes = [step(lane, word) for lane, word in zip(lanes, four)]
    total = 0
    for lane in lanes:
        total = rot(total, 17) ^ step(lane, FACTOR)
    return total


class Bytes:
    """A part of the file, read from its beginning to its end."""

    def __init__(self, data, at, end):
        self.data, self.at, self.end = data, at, end

    def take(self, size):
        need(size <= self.end - self.at, f"cut short at byte {self.at}")
        self.at += size
        return self.data[self.at - size:self.at]

    def byte(self):
        return self.take(1)[0]

    def varint(self):
        number = 0
        for shift in range(0, 35, 7):
            byte = self.byte()
            number |= (byte & 0x7F) << shift
            if byte < 0x80:
                need(byte != 0 or shift == 0, f"number too long at byte {self.at}")
                need(number < 1 << 32, f"number too large at byte {self.at}")
                return number
        raise Refused(f"number too long at byte {self.at}")

    def signed(self):
        number = self.varint()
        return number >> 1 if number % 2 == 0 else -(number + 1 >> 1)


def units_to_text(units):
    """As Python text; a surrogate without its other half stays one."""
    return struct.pack(f"<{len(units)}H", *units).decode("utf-16-le", "surrogatepass")


class File:
    def __init__(self, data):
        self.data = data
        need(data[:8] == MAGIC, "no translation file")
        need(len(data) >= HEADER + CHECKSUM, "cut short")
        version, classes, length, records, reserved, self.units = struct.unpack("<IIQIIQ", data[8:HEADER])
        need(version <= 1, f"format version {version}")
        need(length == len(data), f"{len(data)} bytes instead of {length}")
        need(struct.unpack("<Q", data[-CHECKSUM:])[0] == checksum(data), "checksum")
        need(version == 1 and reserved == 0 and classes <= 255 and records >= 1, "header")
        need(self.units <= 2 * length, "too many units")
        self.seen_units = 0
        body = Bytes(data, HEADER, len(data) - CHECKSUM)
        self.classes = [self.class_name(body) for _ in range(classes)]
        need(records <= len(data), "too many records")
        self.parts = [self.part(body) for _ in range(records)]
        need(body.at == body.end, "bytes behind the last record")
        self.records = [None] * records
        self.heights = [1] * records
        self.read_backwards()
        need(self.seen_units == self.units, "number of units")

    def class_name(self, body):
        length = struct.unpack("<H", body.take(2))[0]
        need(length > 0, "empty class")
        name = units_to_text(struct.unpack(f"<{length}H", body.take(2 * length)))
        need(name in KNOWN, f"unknown class {name}")
        return name

    def part(self, body):
        length = body.varint()
        need(length <= body.end - body.at, f"record cut short at byte {body.at}")
        part = Bytes(self.data, body.at, body.at + length)
        body.at += length
        part.class_number = part.byte()
        need(part.class_number < len(self.classes), "unknown class number")
        part.version = part.signed()
        return part

    def read_backwards(self):
        need(self.classes[self.parts[0].class_number] == KNOWN[0], "first object is no model")
        waiting = []
        for number in reversed(range(len(self.parts))):
            part = self.parts[number]
            values, before = [], None
            while part.at < part.end:
                before = self.value(part, number, values, before, waiting)
            need(self.heights[number] <= DEEPEST, "nested too deep")
            need(number == 0 or self.classes[part.class_number] != KNOWN[0], "a model within a model")
            self.records[number] = {"class": self.classes[part.class_number], "version": part.version,
                                    "values": values}
            waiting.append(number)
        need(waiting == [0], "records that nobody names")

    def names(self, number, named):
        self.heights[number] = max(self.heights[number], 1 + self.heights[named])
        return ["object", named]

    def value(self, part, number, values, before, waiting):
        """Appends the next value or values; the text that may be repeated next."""
        tag = part.byte()
        if tag == 0x02:
            small = part.signed()
            need(-0x8000 <= small < 0x8000, "small integer too large")
            values.append(["small", small])
        elif tag == 0x12:
            count = part.byte()
            need(1 <= count <= 16, "run of ones")
            values.extend([["small", 1]] * count)
        elif tag == 0x03:
            values.append(["long", part.signed()])
        elif tag == 0x05:
            values.append(["double", part.take(8).hex()])
        elif tag in (0x08, 0x18):
            length = part.varint()
            need(length > 0, "empty string")
            width = 2 if tag == 0x08 else 1
            raw = part.take(width * length)
            before = units_to_text(struct.unpack(f"<{length}{'H' if width == 2 else 'B'}", raw))
            self.seen_units += length
            values.append(["string", before])
        elif tag == 0x28:
            need(before is not None, "nothing to repeat")
            self.seen_units += len(before.encode("utf-16-le", "surrogatepass")) // 2
            values.append(["string", before])
            before = None
        elif tag == 0x38:
            values.append(["string", ""])
            before = None
        elif tag == 0x09:
            need(waiting, "no next object")
            values.append(self.names(number, waiting.pop()))
        elif tag == 0x19:
            named = part.varint()
            need(number < named < len(self.parts), "number of an object")
            values.append(self.names(number, named))
        elif tag == 0x29:
            values.append(["object", None])
        elif tag in (0x0B, 0x1B):
            values.append(["boolean", tag == 0x1B])
        else:
            raise Refused(f"unknown tag {tag:02X}")
        return before


def print_tree(file):
    """Each object in a line, those that it names below it."""
    left = [(0, 0)]
    while left:
        number, level = left.pop()
        record = file.records[number]
        values = [kind if kind == "object" else repr(value) for kind, value in record["values"]]
        print("  " * level + f"{number} {record['class'].split('.')[1]} v{record['version']}: {', '.join(values)}")
        named = [value for kind, value in record["values"] if kind == "object" and value is not None]
        left.extend((child, level + 1) for child in reversed(named))


def main(arguments):
    as_tree = arguments[:1] == ["--tree"]
    code = 0
    for name in arguments[1:] if as_tree else arguments:
        with open(name, "rb") as opened:
            data = opened.read()
        try:
            file = File(data)
        except Refused as why:
            print(json.dumps({"refused": str(why)}))
            code = 1
            continue
        if as_tree:
            print_tree(file)
        else:
            print(json.dumps(file.records))
    return code


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
