# SPDX-FileCopyrightText: The KOBTraduction authors
"""scripts: shellcheck finds nothing in the shell scripts."""

import re
import subprocess

from tree import Outcome, ROOT

PROGRAM = "shellcheck"


def scripts():
    """Every file of the tree that says on its first line that a shell reads it."""
    listing = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=ROOT,
                             check=True, capture_output=True, text=True).stdout
    for name in sorted(set(listing.split("\0"))):
        path = ROOT / name
        if name and path.is_file():
            with path.open("rb") as file:
                if re.match(rb"#!.*\b(ba)?sh\b|# shellcheck shell=", file.readline(200)):
                    yield name


def run():
    files = list(scripts())
    said = subprocess.run([PROGRAM, "--external-sources", "--format=gcc", *files], cwd=ROOT, capture_output=True,
                          text=True)
    return Outcome(said.stdout.splitlines() + said.stderr.splitlines(), len(files))


def self_test():
    """A name that falls apart at its blanks."""
    said = subprocess.run([PROGRAM, "-"], input="#!/bin/sh\nrm $1\n", capture_output=True, text=True)
    return said.returncode == 1 and "SC2086" in said.stdout
