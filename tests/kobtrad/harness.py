# SPDX-FileCopyrightText: The KOBTraduction authors
"""Runs the real command as a person would, in a folder of its own, and writes what became of each case to a file that
is counted with those of the other test programs."""

import dataclasses
import hashlib
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

PROJECT = pathlib.Path(__file__).resolve().parents[2]
FORM = PROJECT / "docs/example/commande.ui"


@dataclasses.dataclass
class Ended:
    code: int
    out: str
    err: str


def environment():
    """Without anything that could stand for a screen."""
    hidden = ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")
    return {name: value for name, value in os.environ.items() if name not in hidden}


class CommandTest(unittest.TestCase):
    """Each case begins in an empty folder. self.kobtrad(...) runs the command there."""

    maxDiff = None

    def setUp(self):
        self.addCleanup(self.makeFolder().cleanup)

    def makeFolder(self):
        folder = tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(folder.name)
        return folder

    def kobtrad(self, *arguments, feed="", code=0, **options):
        """Runs it and expects an exit code; what it wrote."""
        done = subprocess.run([COMMAND, *map(str, arguments)], cwd=self.folder, env=environment(), input=feed,
                              capture_output=True, encoding="utf-8", timeout=120, **options)
        self.assertEqual(done.returncode, code, f"{arguments}\n{done.stdout}\n{done.stderr}")
        return Ended(done.returncode, done.stdout, done.stderr)

    def file(self, name):
        return self.folder / name

    def bytes(self, name):
        return self.file(name).read_bytes()

    def sum(self, name):
        return hashlib.sha256(self.bytes(name)).hexdigest()

    def names(self):
        return sorted(path.name for path in self.folder.iterdir())

    def harvested(self, name="app.trad", form=FORM):
        """A translation file with the texts of a form."""
        self.kobtrad("harvest", form, "-o", name)
        return name

    def settled(self, name="app.trad"):
        """The same, read and written once: the first reading normalises the indicators of left and width."""
        self.harvested(name)
        self.kobtrad("languages", name, 6, "--in-place")
        return name

    def form(self, name, **replaced):
        """The example's form as a file, with texts replaced."""
        text = FORM.read_text(encoding="utf-8")
        for old, new in replaced.items():
            self.assertIn(old, text)
            text = text.replace(old, new)
        self.file(name).write_text(text, encoding="utf-8")
        return name


class Results(unittest.TextTestResult):
    """Keeps the name of every case with what became of it."""

    def __init__(self, *arguments, **options):
        super().__init__(*arguments, **options)
        self.cases = []

    def addSuccess(self, test):
        super().addSuccess(test)
        self.cases.append((test.id(), None))

    def addFailure(self, test, err):
        super().addFailure(test, err)
        self.cases.append((test.id(), "failure"))

    def addError(self, test, err):
        super().addError(test, err)
        self.cases.append((test.id(), "failure"))

    def addSkip(self, test, reason):
        super().addSkip(test, reason)
        self.cases.append((test.id(), "skipped"))


def write(cases, path):
    suite = ElementTree.Element("testsuite")
    for name, outcome in cases:
        case = ElementTree.SubElement(suite, "testcase", name=name)
        if outcome:
            ElementTree.SubElement(case, outcome)
    path.parent.mkdir(parents=True, exist_ok=True)
    ElementTree.ElementTree(suite).write(path)


def main():
    """NAME_test.py COMMAND PAGES RESULTS: runs the cases of the calling file."""
    global COMMAND, PAGES
    COMMAND, PAGES, results = (str(pathlib.Path(argument).resolve()) for argument in sys.argv[1:4])
    suite = unittest.defaultTestLoader.loadTestsFromModule(sys.modules["__main__"])
    done = unittest.TextTestRunner(resultclass=Results, verbosity=1).run(suite)
    write(done.cases, pathlib.Path(results))
    sys.exit(0 if done.wasSuccessful() and done.testsRun > 0 else 1)


COMMAND = PAGES = ""


def command():
    return COMMAND


def pages():
    return pathlib.Path(PAGES)
