#!/usr/bin/env python3
# SPDX-FileCopyrightText: The KOBTraduction authors
"""Runs the lint rules, each first on something that breaks it: lint.py [--sample] [--counts FILE] [RULE...]"""

import argparse
import pathlib
import sys
import time

import firstline
import format as layout
import layers
import scripts
import tidy
import uppercase

RULES = {"format": layout, "layers": layers, "first-line": firstline, "uppercase": uppercase,
         "scripts": scripts, "tidy": tidy}
SHOWN = 100


def main():
    arguments = argparse.ArgumentParser(description=__doc__)
    arguments.add_argument("rules", nargs="*", choices=[[], *RULES], metavar="RULE", help=", ".join(RULES))
    arguments.add_argument("--counts", type=pathlib.Path, help="write 'passed failed skipped' to this file")
    arguments.add_argument("--sample", action="store_true", help="tidy: only a part of the tests and benchmarks")
    chosen = arguments.parse_args()
    passed = failed = skipped = 0
    for name in chosen.rules or RULES:
        begun = time.monotonic()
        if RULES[name].self_test():
            passed += 1
        else:
            failed += 1
            print(f"{name}: the rule does not see what breaks it")
        outcome = RULES[name].run(sample=chosen.sample) if name == "tidy" else RULES[name].run()
        for finding in outcome.findings[:SHOWN]:
            print(finding)
        if outcome.skipped:
            skipped += 1
            said = f"skipped: {outcome.skipped}"
        elif outcome.findings:
            failed += 1
            said = f"{len(outcome.findings)} findings in {outcome.looked_at} files"
        else:
            passed += 1
            said = f"{outcome.looked_at} files, nothing found"
        print(f"{name}: {said} ({time.monotonic() - begun:.0f} s)", flush=True)
    if chosen.counts:
        chosen.counts.write_text(f"{passed} {failed} {skipped}\n")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
