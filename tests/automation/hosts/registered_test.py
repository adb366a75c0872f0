#!/usr/bin/env python3
# SPDX-FileCopyrightText: The KOBTraduction authors
"""The public route: the DLL registered, its classes made by name, by hosts that nobody here wrote or that know nothing
else of it: the system's script host and a program of Free Pascal.

  registered_test.py --dll DLL --work FOLDER [--kobscript EXE] [--scripts-only]

With kobscript, the script of the guide (docs/automation.md) runs as it stands there.

Under Wine, cscript ends with status 0 whatever happened: a script has passed when its last line is FIN. It reads no
UTF-8, so these files are ASCII.
"""

import argparse
import pathlib
import re
import shutil
import subprocess
import sys

from cases import Cases, Skipped, equal
from wine import ROOT, windows_path, wine

HERE = pathlib.Path(__file__).resolve().parent

# What the guide's script has around it: a form, then a translator's work, then what must be seen.
BEFORE = """Class Control
  Public Name
  Public Container
  Public Controls
  Public Caption
  Public ToolTipText
  Public tag
  Public left
  Public width
End Class
Dim form, label
Set form = New Control
form.Name = "FrmMain"
form.Caption = "Accueil"
form.width = 500
Set label = New Control
label.Name = "Label1"
label.Caption = "Prénom"
Set label.Container = form
Set form.Controls = NewList()
form.Controls.Add label
"""
BETWEEN = """
model.GetCell("FrmMain\Label1").ColTraduction.Item(1).ChangeTraduction "First name", 2
model.Racine.AddNoeuds "Messages"
model.GetCell("Messages").AddMessage "Quitter", "Voulez-vous quitter ?"
model.GetCell("Messages\Quitter").Traduction.ChangeTraduction "Do you want to quit?", 2
model.Save "app.trad"
AssertEqual "Prénom", label.Caption
"""
AFTER = """
AssertEqual "First name", label.Caption
AssertEqual "Accueil", form.Caption
Print Boxes() & "FIN"
"""


def last_line(program, *arguments):
    done = wine(program, *arguments)
    equal(0, done.returncode, done.stdout + done.stderr)
    return done.stdout.replace("\r\n", "\n").splitlines()[-1:]


def script_passes(name, *arguments):
    equal(["FIN"], last_line("cscript.exe", "//nologo", windows_path(HERE / "cscript" / name), *arguments), "last line")


def guide_passes(kobscript, folder):
    page = (ROOT / "docs/automation.md").read_text(encoding="utf-8")
    script = re.search(r"^```vb\n(.*?)^```$", page, re.M | re.S).group(1)
    recording, showing = re.split(r"^(?=' At run time)", script, flags=re.M)
    (folder / "guide.vbs").write_text(BEFORE + recording + BETWEEN + showing + AFTER, encoding="utf-8")
    done = wine(kobscript, "guide.vbs", folder=folder)
    equal((0, ""), (done.returncode, done.stderr))
    equal('notice "Do you want to quit?"\nFIN\n', done.stdout)


def pascal_passes(folder):
    if shutil.which("ppcx64") is None or not pathlib.Path("/usr/share/fpcsrc").is_dir():
        raise Skipped("Free Pascal and its sources are not installed")
    built = subprocess.run([HERE / "pascal/build.sh", folder], capture_output=True, text=True, check=False)
    equal(0, built.returncode, built.stderr)
    equal(["FIN"], last_line(folder / "client.exe"), "last line")


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("--dll", required=True)
    arguments.add_argument("--work", required=True, type=pathlib.Path)
    arguments.add_argument("--kobscript", type=pathlib.Path)
    arguments.add_argument("--scripts-only", action="store_true", help="without the Pascal program, which is of 64 bits")
    given = arguments.parse_args()
    given.work.mkdir(parents=True, exist_ok=True)
    library = windows_path(given.dll)
    cases = Cases("registered")

    def register(*options):
        done = wine("regsvr32.exe", *options, "/s", library)
        equal((0, ""), (done.returncode, done.stderr), "status and errors")

    def is_gone():
        script = windows_path(HERE / "cscript/cells.vbs")
        equal(False, "FIN" in wine("cscript.exe", "//nologo", script).stdout, "a class was made")

    cases.run("nothing is registered before", is_gone)
    cases.run("the DLL registers itself", register)
    cases.run("a form of VBScript classes is harvested and translated", script_passes, "harvest.vbs")
    cases.run("cells, entries, collections and errors", script_passes, "cells.vbs")
    cases.run("a model is saved and loaded by JScript", script_passes, "save.js",
              windows_path(given.work / "cscript é.trad"))
    if given.kobscript:
        cases.run("the script of the guide", guide_passes, given.kobscript.resolve(), given.work)
    if not given.scripts_only:
        cases.run("a late-bound program of another compiler, with forms of its own", pascal_passes,
                  given.work / "pascal")
    cases.run("the DLL unregisters itself", register, "/u")
    cases.run("its classes are gone then", is_gone)
    return cases.finish()


if __name__ == "__main__":
    sys.exit(main())
