#!/usr/bin/env python3
# SPDX-FileCopyrightText: The KOBTraduction authors
"""The 32-bit server tried under a Wine for 32-bit programs: tests32.py BUILD. What was built there is registered and
tried by script hosts, called from C++, and given the golden cases. Prints "passed failed skipped" as its last line."""

import os
import pathlib
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))
import results  # noqa: E402

PROGRAMS = ("automation_host_object_test", "automation_registration_test", "automation_server_test",
            "script_golden_test")


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    reports = build / "results"
    shutil.rmtree(reports, ignore_errors=True)
    reports.mkdir(parents=True)
    prefix = ROOT / "build/wine32"
    # Every run begins with a fresh prefix.
    shutil.rmtree(prefix, ignore_errors=True)
    environment = dict(os.environ, WINEARCH="win32", KOB_WINEPREFIX=str(prefix), KOB_WINE_SECONDS="500")
    # The C++ programs see the root of the file system as a drive.
    runs = {name: (f"xml:Z:{reports}/{name}.xml", [ROOT / "tools/windows/wine", build / f"bin/{name}.exe"])
            for name in PROGRAMS}
    runs["registered_test"] = (f"xml:{reports}/registered_test.xml", [
        ROOT / "tests/automation/hosts/registered_test.py", "--scripts-only", "--work", build / "registered",
        "--dll", build / "bin/KOBTraduction.dll", "--kobscript", build / "bin/kobscript.exe"])
    total = [0, 0, 0]
    for name, (report, command) in runs.items():
        with open(reports / f"{name}.log", "w+b") as log:
            done = subprocess.run(command, env=dict(environment, GTEST_OUTPUT=report), stdin=subprocess.DEVNULL,
                                  stdout=log, stderr=log, check=False)
            if done.returncode:
                log.seek(0)
                said = log.read().decode("utf-8", "backslashreplace").splitlines()
                print(f"FAILED: {name} ended with status {done.returncode}", *said[-40:], sep="\n", flush=True)
        counts = results.of_program(reports / f"{name}.xml", done.returncode != 0)
        print(f"{name}:", *counts, flush=True)
        total = [a + b for a, b in zip(total, counts)]
    subprocess.run(["wineserver", "-k"], env=dict(environment, WINEPREFIX=str(prefix)), check=False)
    print(*total)
    return 1 if total[1] or not total[0] else 0


if __name__ == "__main__":
    sys.exit(main())
