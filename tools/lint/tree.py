# SPDX-FileCopyrightText: The KOBTraduction authors
"""The tree as the lint rules see it."""

import dataclasses
import pathlib
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]


@dataclasses.dataclass
class Outcome:
    """What a rule found ("file:line: what"), in how many files it looked, and why it could not look, if so."""
    findings: list
    looked_at: int
    skipped: str = ""


def cpp_files():
    """Every C++ file of the tree, relative to its root: what git knows or would add."""
    listing = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard",
                              "--", "*.h", "*.cpp"], cwd=ROOT, check=True, capture_output=True, text=True).stdout
    files = {pathlib.PurePosixPath(name) for name in listing.split("\0") if name}
    return sorted(name for name in files if (ROOT / name).is_file())


def read(path):
    return (ROOT / path).read_text(encoding="utf-8")
