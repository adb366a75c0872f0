# SPDX-FileCopyrightText: The KOBTraduction authors
"""first-line: every C++ file begins with the SPDX line."""

from tree import Outcome, cpp_files, read

LINE = "// SPDX-FileCopyrightText: The KOBTraduction authors\n"


def breaks(text):
    return not text.startswith(LINE)


def run():
    files = cpp_files()
    return Outcome([f"{path}:1: the first line is not: {LINE.strip()}" for path in files if breaks(read(path))],
                   len(files))


def self_test():
    return breaks("#pragma once\n") and breaks("\n" + LINE) and not breaks(LINE + "#pragma once\n")
