#!/usr/bin/env python3
# SPDX-FileCopyrightText: The KOBTraduction authors
"""Looks into a DLL without running it: check_library.py DLL i686|x86_64 IDL.

It must be of that machine, export just the entry points of a server, need nothing but what every Windows has, and carry
a type library with every identifier of the interface file. Prints "passed failed 0" as its last line.
"""

import pathlib
import re
import struct
import sys
import uuid

MACHINES = {"i686": 0x014C, "x86_64": 0x8664}
ENTRY_POINTS = ["DllCanUnloadNow", "DllGetClassObject", "DllInstall", "DllRegisterServer", "DllUnregisterServer"]
OF_EVERY_WINDOWS = {"advapi32", "comctl32", "comdlg32", "gdi32", "kernel32", "msvcrt", "ole32", "oleaut32", "shell32",
                    "user32", "uxtheme"}


class Library:
    """A file in the portable executable format."""

    def __init__(self, path):
        self.data = pathlib.Path(path).read_bytes()
        header = self.number(0x3C)
        if self.data[:2] != b"MZ" or self.data[header:header + 4] != b"PE\0\0":
            raise ValueError(f"{path} is no library")
        self.machine, sections = struct.unpack_from("<HH", self.data, header + 4)
        optional_size, = struct.unpack_from("<H", self.data, header + 20)
        optional = header + 24
        is_long = struct.unpack_from("<H", self.data, optional)[0] == 0x20B
        self.directories = optional + (112 if is_long else 96)
        # Where each section is in memory, its size, and where in the file.
        self.sections = []
        for i in range(sections):
            _, address, size, place = struct.unpack_from("<IIII", self.data, optional + optional_size + 40 * i + 8)
            self.sections.append((address, size, place))

    def number(self, place):
        return struct.unpack_from("<I", self.data, place)[0]

    def place(self, address):
        return next(place + address - start for start, size, place in self.sections if start <= address < start + size)

    def text(self, address):
        place = self.place(address)
        return self.data[place:self.data.index(b"\0", place)].decode("ascii")

    def directory(self, index):
        return self.number(self.directories + 8 * index)

    def exports(self):
        table = self.place(self.directory(0))
        names = self.place(self.number(table + 32))
        return sorted(self.text(self.number(names + 4 * i)) for i in range(self.number(table + 24)))

    def imports(self):
        entry = self.place(self.directory(1))
        found = set()
        while self.number(entry + 12):
            found.add(self.text(self.number(entry + 12)).lower().removesuffix(".dll"))
            entry += 20
        return found

    def type_library(self):
        """The resource TYPELIB 1; None when there is none."""
        root = self.place(self.directory(2))

        def entries(folder):
            named, numbered = struct.unpack_from("<HH", self.data, folder + 12)
            for i in range(named + numbered):
                name, below = struct.unpack_from("<II", self.data, folder + 16 + 8 * i)
                yield name, below

        def string(name):
            at = root + (name & 0x7FFFFFFF)
            length, = struct.unpack_from("<H", self.data, at)
            return self.data[at + 2:at + 2 + 2 * length].decode("utf-16-le")

        for name, below in entries(root):
            if name & 0x80000000 and string(name) == "TYPELIB":
                while below & 0x80000000:
                    below = next(entries(root + (below & 0x7FFFFFFF)))[1]
                address, size = struct.unpack_from("<II", self.data, root + below)
                return self.data[self.place(address):self.place(address) + size]
        return None


def main():
    path, machine, interface = sys.argv[1:4]
    library = Library(path)
    types = library.type_library() or b""
    identifiers = re.findall(r"uuid\(([0-9A-Fa-f-]{36})\)", pathlib.Path(interface).read_text(encoding="utf-8"))
    foreign = sorted(library.imports() - OF_EVERY_WINDOWS)
    missing = [one for one in identifiers if uuid.UUID(one).bytes_le not in types]
    checks = [
        (f"it is of another machine: {library.machine:#x}", library.machine == MACHINES[machine]),
        (f"it exports {library.exports()}", library.exports() == ENTRY_POINTS),
        (f"it needs {foreign}", not foreign),
        ("it has no type library", types[:4] == b"MSFT"),
        (f"its type library lacks {missing}", bool(identifiers) and not missing),
    ]
    failed = [why for why, holds in checks if not holds]
    for why in failed:
        print(f"FAILED: {path}: {why}")
    print(len(checks) - len(failed), len(failed), 0)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
