# SPDX-FileCopyrightText: The KOBTraduction authors
"""Windows programs run by tools/windows/wine, and paths as they see them."""

import os
import pathlib
import subprocess
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[3]


def windows_path(path):
    return "Z:" + str(pathlib.Path(path).resolve()).replace("/", "\\")


def wine(*words, seconds=60, folder=None):
    """Runs a program to its end, in a folder or in the present one; what it wrote is text in UTF-8."""
    environment = dict(os.environ, KOB_WINE_SECONDS=str(seconds))
    # Not through pipes: Wine's own processes would keep them open for seconds after the program's end.
    with tempfile.TemporaryFile() as output, tempfile.TemporaryFile() as errors:
        done = subprocess.run([ROOT / "tools/windows/wine", *map(str, words)], env=environment, stdout=output,
                              stderr=errors, stdin=subprocess.DEVNULL, cwd=folder, check=False)
        output.seek(0)
        errors.seek(0)
        done.stdout = output.read().decode("utf-8", "backslashreplace")
        done.stderr = errors.read().decode("utf-8", "backslashreplace")
    return done
