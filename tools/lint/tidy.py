# SPDX-FileCopyrightText: The KOBTraduction authors
"""tidy: clang-tidy with the checks of .clang-tidy, over every file of the release build.

A file that was clean is not looked at again until it, a header of ours that it includes, how it is compiled, or the
checks change (stamps in build/tidy).
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import subprocess
import tempfile

from layers import includes
from tree import Outcome, ROOT, cpp_files

PROGRAM = "clang-tidy-14"
BUILD = ROOT / "build" / "release"
STAMPS = ROOT / "build" / "tidy"
# The precompiled headers of the build are another compiler's.
PRECOMPILED = re.compile(r"\s-Winvalid-pch|\s-include \S+cmake_pch\.hxx(?:\.pch)?")


def commands():
    """How each of our own files is compiled, without what only the other compiler understands."""
    ours = {str(ROOT / path) for path in cpp_files()}
    entries = {}
    for entry in json.loads((BUILD / "compile_commands.json").read_text()):
        if entry["file"] in ours:
            entry["command"] = PRECOMPILED.sub("", entry["command"])
            entries[entry["file"]] = entry
    return entries


def own_headers(path, folders, seen):
    """Every header of ours that the file includes, directly or not."""
    for _, name in includes(path.read_text(encoding="utf-8")):
        for folder in (path.parent, *folders):
            header = folder / name
            if header not in seen and header.is_file():
                seen.add(header)
                own_headers(header, folders, seen)
                break
    return seen


def key(entry, checks):
    path = pathlib.Path(entry["file"])
    folders = [pathlib.Path(folder) for folder in re.findall(r"-(?:I|isystem )\s*(\S+)", entry["command"])
               if folder.startswith(str(ROOT))]
    digest = hashlib.sha256((entry["command"] + checks).encode())
    for file in sorted({path} | own_headers(path, folders, set())):
        digest.update(file.read_bytes())
    return digest.hexdigest()


def tidy(file, database):
    said = subprocess.run([PROGRAM, "--quiet", "-p", database, file], cwd=ROOT, capture_output=True, text=True)
    found = re.findall(r"^(\S+:\d+):\d+: (?:warning|error): (.*)$", said.stdout, re.M)
    findings = [f"{place.removeprefix(str(ROOT) + '/')}: {what}" for place, what in found]
    if said.returncode and not findings:
        findings = [f"{file}: {PROGRAM} failed: {said.stderr.strip()[-400:]}"]
    return findings


def generate_sources():
    """What the build generates and our files include: the toolkit's meta-objects and forms."""
    targets = subprocess.run(["ninja", "-C", BUILD, "-t", "targets", "all"], check=True, capture_output=True,
                             text=True).stdout
    autogen = re.findall(r"^(\S+_autogen): phony", targets, re.M)
    if autogen:
        subprocess.run(["ninja", "-C", BUILD, *dict.fromkeys(autogen)], check=True, stdout=subprocess.DEVNULL)


def run():
    generate_sources()
    entries = commands()
    checks = (ROOT / ".clang-tidy").read_text() + subprocess.run([PROGRAM, "--version"], capture_output=True,
                                                                text=True).stdout
    STAMPS.mkdir(parents=True, exist_ok=True)
    stamps = {file: STAMPS / key(entry, checks) for file, entry in entries.items()}
    fresh = sorted(file for file, stamp in stamps.items() if not stamp.exists())
    findings = set()
    with tempfile.TemporaryDirectory() as database, concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        pathlib.Path(database, "compile_commands.json").write_text(json.dumps(list(entries.values())))
        for file, found in zip(fresh, pool.map(lambda file: tidy(file, database), fresh)):
            findings.update(found)
            if not found:
                stamps[file].touch()
    return Outcome(sorted(findings), len(entries))


def self_test():
    """A text read after it was moved away."""
    with tempfile.TemporaryDirectory(dir=STAMPS.parent) as folder:
        file = pathlib.Path(folder, "self_test.cpp")
        file.write_text("#include <string>\n#include <utility>\n"
                        "std::size_t lost(std::string a) { std::string b = std::move(a); return a.size() + b.size(); }\n")
        said = subprocess.run([PROGRAM, "--quiet", f"--config-file={ROOT / '.clang-tidy'}", str(file), "--",
                               "-std=c++20"], capture_output=True, text=True)
        return "bugprone-use-after-move" in said.stdout and said.returncode != 0
