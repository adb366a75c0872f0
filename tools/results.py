#!/usr/bin/env python3
# SPDX-FileCopyrightText: The KOBTraduction authors
"""Counts a run of ctest case by case: results.py JUNIT FOLDER prints "passed failed skipped".

JUNIT is what ctest --output-junit wrote: one entry per test program. FOLDER holds what the programs wrote themselves
(GTEST_OUTPUT), one file per program and one entry per case. A program that wrote nothing counts as one case, and one
that failed although its cases passed (a crash, a leak seen at the end) as one failure more.
"""

import pathlib
import sys
import xml.etree.ElementTree as ElementTree


def cases(path):
    """Passed, failed, skipped in a program's own report; none when it is missing or cut."""
    try:
        tree = ElementTree.parse(path)
    except (OSError, ElementTree.ParseError):
        return None
    counts = [0, 0, 0]
    for case in tree.iter("testcase"):
        if case.find("failure") is not None:
            counts[1] += 1
        elif case.find("skipped") is not None or case.get("status") == "notrun" or case.get("result") == "skipped":
            counts[2] += 1
        else:
            counts[0] += 1
    return counts


def of_program(path, failed, skipped=False):
    """The same of a program that ended so, whatever its report says."""
    counts = cases(path)
    if counts is None or sum(counts) == 0:
        return [0, 1, 0] if failed else [0, 0, 1] if skipped else [1, 0, 0]
    if failed and counts[1] == 0:
        counts[1] = 1
    return counts


def count(junit, folder):
    total = [0, 0, 0]
    for program in ElementTree.parse(junit).iter("testcase"):
        failed = program.find("failure") is not None or program.get("status") == "fail"
        skipped = program.find("skipped") is not None or program.get("status") in ("notrun", "disabled")
        counts = of_program(folder / (program.get("name") + ".xml"), failed, skipped)
        total = [a + b for a, b in zip(total, counts)]
    return total


if __name__ == "__main__":
    print(*count(sys.argv[1], pathlib.Path(sys.argv[2])))
