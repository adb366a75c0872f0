#!/usr/bin/env python3
# SPDX-FileCopyrightText: The KOBTraduction authors
"""format: every C++ file is laid out as .clang-format says. Called with --fix, lays them out."""

import re
import subprocess
import sys

from tree import Outcome, ROOT, cpp_files

PROGRAM = "clang-format-14"


def run():
    files = cpp_files()
    said = subprocess.run([PROGRAM, "--dry-run", *map(str, files)], cwd=ROOT, capture_output=True, text=True)
    lines = re.findall(r"^(\S+:\d+):\d+: (?:warning|error): code should be clang-formatted", said.stderr, re.M)
    findings = [f"{place}: not laid out as .clang-format says (./dev format)" for place in dict.fromkeys(lines)]
    if said.returncode and not findings:
        findings = said.stderr.splitlines()
    return Outcome(findings, len(files))


def self_test():
    """A line that any layout would change."""
    said = subprocess.run([PROGRAM, "--dry-run", "-Werror", "--assume-filename", str(ROOT / "self_test.cpp")],
                          input="int   main( ){return 0 ;}\n", cwd=ROOT, capture_output=True, text=True)
    return said.returncode != 0


if __name__ == "__main__" and "--fix" in sys.argv:
    sys.exit(subprocess.run([PROGRAM, "-i", *map(str, cpp_files())], cwd=ROOT).returncode)
