#!/usr/bin/env python3
# SPDX-FileCopyrightText: The KOBTraduction authors
"""Models that cross from one system to the other.

  crossing_test.py --kobscript EXE --dll DLL --forms FOLDER --work FOLDER

Files made on Windows (by public members alone, and by harvesting the forms of frm_test.py, whose models lie in --forms)
and on this system are loaded and saved on both: both write the same bytes.
"""

import argparse
import pathlib
import shutil
import subprocess
import sys

from cases import Cases, equal
from wine import ROOT, windows_path, wine

HERE = pathlib.Path(__file__).resolve().parent
PROGRAMS = [ROOT / "build" / preset / "bin/kobresave" for preset in ("release", "no-gui", "dev")]

# What crossing/make.vbs makes.
WINDOWS_MODEL = r"""a message
  . ""
"Fenêtre \\ un" node control left=-1 width=1 alias="Ж 漢" left[2]=1.5 width[6]=0.333333333333333
  ."Entrée 1" "texte 1\r\n€ Ω"
  ."Entrée 2" "" 2="texte 2\r\n€ Ω"
  ."Entrée 3" "" 3="texte 3\r\n€ Ω"
  Titre message
    . "Bonjour"
  Vide node
    Profond node
"""


def here_program():
    """This system's half, of the newest build."""
    built = [path for path in PROGRAMS if path.exists()]
    if not built:
        raise AssertionError("kobresave is not built: ./dev build release kobresave")
    return max(built, key=lambda path: path.stat().st_mtime)


def main():
    arguments = argparse.ArgumentParser()
    for name in ("--kobscript", "--dll"):
        arguments.add_argument(name, required=True)
    for name in ("--forms", "--work"):
        arguments.add_argument(name, required=True, type=pathlib.Path)
    given = arguments.parse_args()
    work = given.work
    shutil.rmtree(work, ignore_errors=True)
    made, here, there = work / "made", work / "here", work / "there"
    for folder in (made, here, there):
        folder.mkdir(parents=True)
    cases = Cases("crossing")

    def script(name, *words):
        done = wine(given.kobscript, windows_path(HERE / "crossing" / name), windows_path(given.dll), *words, seconds=200)
        equal(0, done.returncode, done.stderr)
        return done.stdout

    def program(*words):
        done = subprocess.run([here_program(), *words], capture_output=True, text=True, check=False)
        equal(0, done.returncode, done.stderr)
        return done.stdout

    def make():
        script("make.vbs", windows_path(made / "windows.trad"))
        program("make", made / "here.trad")
        models = sorted(given.forms.glob("*.trad"))
        equal(True, len(models) > 2, "the models of frm_test.py are there")
        for model in models:
            shutil.copy(model, made)
    cases.run("models are made on both systems", make)

    names = []

    def again():
        names.extend(sorted(path.name for path in made.glob("*.trad")))
        (work / "names").write_text("\n".join(names), encoding="utf-8")
        equal(names, program("again", made, here).splitlines())
        seen = script("again.vbs", windows_path(made), windows_path(there), windows_path(work / "names"))
        equal(names, seen.splitlines())
    cases.run("each system loads and saves the models of both", again)

    def same_bytes():
        for name in names:
            if (here / name).read_bytes() != (there / name).read_bytes():
                raise AssertionError(f"{here / name} and {there / name} differ")
            if not program("show", there / name):
                raise AssertionError(f"{name} holds nothing")
        print(f"crossing: {len(names)} models")
    cases.run("both write the same bytes", same_bytes)

    def what_was_made():
        equal(WINDOWS_MODEL, program("show", made / "windows.trad"))
        equal(program("show", made / "here.trad"), program("show", there / "here.trad"))
    cases.run("nothing is lost on the way", what_was_made)
    return cases.finish()


if __name__ == "__main__":
    sys.exit(main())
