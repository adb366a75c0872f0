# SPDX-FileCopyrightText: The KOBTraduction authors
"""uppercase: the upper-case table that is checked in is what its generator gives."""

import pathlib
import shutil
import subprocess
import tempfile

from tree import Outcome, ROOT

FOLDER = ROOT / "kobtraduction" / "base"
NOT_INSTALLED = 4


def check(generator):
    return subprocess.run([generator, "--check"], capture_output=True, text=True)


def run():
    outcome = check(FOLDER / "UpperCaseTable.py")
    if outcome.returncode == NOT_INSTALLED:
        return Outcome([], 0, outcome.stderr.strip())
    return Outcome(outcome.stderr.splitlines() if outcome.returncode else [], 1)


def self_test():
    """A table in which the upper case of one letter was changed."""
    with tempfile.TemporaryDirectory() as folder:
        generator = shutil.copy(FOLDER / "UpperCaseTable.py", folder)
        table = (FOLDER / "UpperCaseTable.cpp").read_text(encoding="utf-8")
        pathlib.Path(folder, "UpperCaseTable.cpp").write_text(table.replace("0xFFE0", "0xFFE1", 1), encoding="utf-8")
        return check(generator).returncode in (1, NOT_INSTALLED)
