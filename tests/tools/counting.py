#!/usr/bin/env python3
# SPDX-FileCopyrightText: The KOBTraduction authors
"""tools/results.py counts what became of each case."""

import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
import results  # noqa: E402


def program(name, inner="", status="run"):
    return f'<testcase name="{name}" status="{status}">{inner}</testcase>'


PASSED = '<testcase name="a" status="run" result="completed"/>'
FAILED = '<testcase name="b" status="run" result="completed"><failure message="no"/></testcase>'
SKIPPED = '<testcase name="c" status="run" result="skipped"><skipped message="why"/></testcase>'


class Counting(unittest.TestCase):
    def count(self, programs, reports):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            (folder / "ctest.xml").write_text(f"<testsuite>{programs}</testsuite>")
            for report, text in reports.items():
                (folder / f"{report}.xml").write_text(text)
            return results.count(folder / "ctest.xml", folder)

    def test_cases_are_counted_one_by_one(self):
        report = f"<testsuites><testsuite>{PASSED}{PASSED}{SKIPPED}</testsuite></testsuites>"
        self.assertEqual(self.count(program("one"), {"one": report}), [2, 0, 1])

    def test_a_failed_case_is_one_failure(self):
        report = f"<testsuites><testsuite>{PASSED}{FAILED}</testsuite></testsuites>"
        self.assertEqual(self.count(program("one", "<failure/>", "fail"), {"one": report}), [1, 1, 0])

    def test_a_program_that_failed_after_its_cases_is_one_failure_more(self):
        report = f"<testsuites><testsuite>{PASSED}</testsuite></testsuites>"
        self.assertEqual(self.count(program("one", "<failure/>", "fail"), {"one": report}), [1, 1, 0])

    def test_a_program_without_a_report_is_one_case(self):
        self.assertEqual(self.count(program("one"), {}), [1, 0, 0])
        self.assertEqual(self.count(program("one", "<failure/>", "fail"), {}), [0, 1, 0])
        self.assertEqual(self.count(program("one", "<skipped/>", "notrun"), {}), [0, 0, 1])

    def test_a_report_that_was_cut_counts_as_none(self):
        self.assertEqual(self.count(program("one", "<failure/>", "fail"), {"one": "<testsuites><testsu"}), [0, 1, 0])

    def test_a_program_whose_report_holds_no_case_fails_when_it_failed(self):
        self.assertEqual(self.count(program("one", "<failure/>", "fail"), {"one": "<testsuites/>"}), [0, 1, 0])


if __name__ == "__main__":
    unittest.main()
