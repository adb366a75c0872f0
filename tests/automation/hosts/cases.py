# SPDX-FileCopyrightText: The KOBTraduction authors
"""Test cases of a Python program: run in order, counted like those of the other test programs.

What became of each case goes to the file that GTEST_OUTPUT names ("xml:FILE"), so that tools/results.py counts them.
"""

import os
import pathlib
import time
import traceback
import xml.etree.ElementTree as ElementTree


class Skipped(Exception):
    """The case cannot run here; the text says why."""


def equal(expected, seen, what=""):
    if expected != seen:
        raise AssertionError(f"{what + ': ' if what else ''}expected {expected!r}, seen {seen!r}")


class Cases:
    def __init__(self, name):
        self.name = name
        self.suite = ElementTree.Element("testsuite", name=name)
        self.counts = {"passed": 0, "failed": 0, "skipped": 0}

    def run(self, name, function, *arguments):
        entry = ElementTree.SubElement(self.suite, "testcase", name=name, classname=self.name)
        begun = time.monotonic()
        try:
            function(*arguments)
            outcome = "passed"
        except Skipped as why:
            outcome = "skipped"
            ElementTree.SubElement(entry, "skipped", message=str(why))
            print(f"skipped: {name}: {why}")
        except Exception as failure:  # pylint: disable=broad-except
            outcome = "failed"
            text = str(failure) if isinstance(failure, AssertionError) else traceback.format_exc()
            ElementTree.SubElement(entry, "failure", message=text)
            print(f"FAILED: {name}\n  " + text.replace("\n", "\n  "))
        entry.set("time", f"{time.monotonic() - begun:.3f}")
        self.counts[outcome] += 1

    def finish(self):
        """Writes the report; the exit status of the program. No case at all is a failure."""
        target = os.environ.get("GTEST_OUTPUT", "")
        if target.startswith("xml:"):
            path = pathlib.Path(target[len("xml:"):])
            path.parent.mkdir(parents=True, exist_ok=True)
            ElementTree.ElementTree(self.suite).write(path)
        print(f"{self.name}: " + ", ".join(f"{count} {what}" for what, count in self.counts.items()))
        return 1 if self.counts["failed"] or not sum(self.counts.values()) else 0
