#!/usr/bin/env python3
# SPDX-FileCopyrightText: The KOBTraduction authors
"""kobscript itself: kobscript_test.py KOBSCRIPT.EXE. A host that swallowed an error would let every other script pass."""

import pathlib
import sys
import tempfile

from cases import Cases, equal
from wine import windows_path, wine

VBS, JS = "vbs", "js"


class Kobscript:
    def __init__(self, program, folder):
        self.program = program
        self.folder = folder

    def run(self, extension, text, *arguments):
        script = self.folder / f"script.{extension}"
        script.write_bytes(text.encode("utf-8"))
        return wine(self.program, windows_path(script), *arguments)

    def expect_output(self, extension, text, output, *arguments):
        done = self.run(extension, text, *arguments)
        equal("", done.stderr)
        equal(0, done.returncode)
        equal(output, done.stdout)

    def expect_error(self, extension, text, place, message, source_line):
        done = self.run(extension, text)
        equal(1, done.returncode, "status")
        first, *others = done.stderr.splitlines()
        if not first.startswith(windows_path(self.folder / f"script.{extension}") + place) or message not in first:
            raise AssertionError(f"{first!r} names not {place!r} or not {message!r}")
        equal(["    " + source_line], others)


def main():
    cases = Cases("kobscript")
    with tempfile.TemporaryDirectory(dir=pathlib.Path(sys.argv[1]).resolve().parent) as folder:
        host = Kobscript(sys.argv[1], pathlib.Path(folder))
        output, error = host.expect_output, host.expect_error

        cases.run("vbscript is read and prints in UTF-8", output, VBS, 'Print "é", "Ωж", 12', "é Ωж 12\n")
        cases.run("jscript is read and prints in UTF-8", output, JS, 'Print("é", "Ωж", 12);', "é Ωж 12\n")
        cases.run("a byte order mark is no part of the script", output, VBS, "\ufeffPrint 1", "1\n")
        cases.run("arguments arrive", output, VBS, "Print ArgumentCount, Argument(1), Argument(2)", "2 a b c\n",
                  "a", "b c")
        cases.run("texts, numbers and objects are equal to themselves", output, VBS,
                  'Dim l\nSet l = NewList()\nAssertEqual "a", "a"\nAssertEqual 2, 2.0\nAssertEqual l, l\nPrint "FIN"',
                  "FIN\n")
        cases.run("a list is enumerated and indexed", output, VBS,
                  'Dim l\nSet l = NewList()\nl.Add "a"\nl.Add 3\nFor Each x In l\n  Print x\nNext\nPrint l.Count, l(2)',
                  "a\n3\n2 3\n")
        cases.run("a list is enumerated by jscript", output, JS,
                  'var l = NewList(); l.Add("a");\nfor (var e = new Enumerator(l); !e.atEnd(); e.moveNext()) '
                  'Print(e.item(), l.Item(1));', "a a\n")

        cases.run("a run-time error names its line", error, VBS, "Dim x\n\n  x = NoSuchFunction(3)", "(3,",
                  "error 800A01B6", "  x = NoSuchFunction(3)")
        cases.run("a run-time error of jscript names its line", error, JS, "var x;\nx.y = 1;", "(2,", "error 800A",
                  "x.y = 1;")
        cases.run("a script that cannot be read names its line", error, VBS, "Dim x\nIf x Then (", "(2,", "error 8",
                  "If x Then (")
        cases.run("an object that is not there", error, VBS, 'Dim o\nSet o = CreateObject("No.Such")', "(2,",
                  "error 800A01AD", 'Set o = CreateObject("No.Such")')
        cases.run("a failed expectation names its line and both values", error, VBS, 'AssertEqual "1", 1, "the é"',
                  "(1,", 'the é: expected "1", seen 1', 'AssertEqual "1", 1, "the é"')
        cases.run("a Boolean is no number", error, VBS, "AssertEqual True, -1", "(1,", "expected True, seen -1",
                  "AssertEqual True, -1")
        cases.run("nothing is no object", error, VBS, "AssertEqual NewList(), Nothing", "(1,",
                  "expected an object, seen nothing", "AssertEqual NewList(), Nothing")
        cases.run("a script may fail by itself", error, JS, '\nFail("enough");', "(2,", "enough", 'Fail("enough");')
        cases.run("a file that is no library", error, VBS,
                  'CreateFromFile "C:\\windows\\system32\\kernel32.dll", "KOBModeleTraduction"', "(1,",
                  "the file hands out no classes",
                  'CreateFromFile "C:\\windows\\system32\\kernel32.dll", "KOBModeleTraduction"')

        def quits():
            done = host.run(VBS, 'On Error Resume Next\nPrint "a"\nQuit 7\nPrint "b"')
            equal((7, "a\n", ""), (done.returncode, done.stdout, done.stderr))
        cases.run("Quit ends at once, with its status", quits)

        def unknown_kind():
            done = host.run("txt", "Print 1")
            equal((2, ""), (done.returncode, done.stdout))
        cases.run("a file of another kind is refused", unknown_kind)

        cases.run("boxes are answered and told", output, VBS,
                  'AssertEqual 1, MsgBox("Ouvert" & vbCrLf & "é", 0, "")\n'
                  'AssertEqual 1, MsgBox("Erreur", 16, "KOBCN")\nAnswerBox True\nAnswerBox False\n'
                  'AssertEqual 6, MsgBox("un", 4, "")\nAssertEqual 7, MsgBox("deux", 4, "")\n'
                  'AssertEqual 7, MsgBox("trois", 4, "")\nPrint Boxes() & "."\nPrint Boxes() & "."',
                  'notice "Ouvert\\r\\né"\nnotice "Erreur" title="KOBCN" critical\nquestion "un" -> Yes\n'
                  'question "deux" -> No\nquestion "trois" -> unanswered\n.\n.\n')
    return cases.finish()


if __name__ == "__main__":
    sys.exit(main())
