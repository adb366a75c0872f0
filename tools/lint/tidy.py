# SPDX-FileCopyrightText: The KOBTraduction authors
"""tidy: clang-tidy with the checks of .clang-tidy, over every file of the release build.

Most of the time goes into the headers of others, so files that are compiled alike are looked at several at once, as
one source that includes them; where that does not compile (two of them use one name), by halves.
A file that was clean is not looked at again until it, a header of ours that it includes, how it is compiled, or the
checks change (stamps in build/tidy).
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import tempfile

from layers import includes
from tree import Outcome, ROOT, cpp_files

PROGRAM = "clang-tidy-14"
BUILD = ROOT / "build" / "release"
STAMPS = ROOT / "build" / "tidy"
AT_ONCE = 8
# Of what only tests and measures, a sample takes one group in so many.
SAMPLED = ("tests/", "bench/", "fuzz/")
ONE_IN = 4
# What cannot be said of a file that is included by another.
ALONE_ONLY = "-misc-definitions-in-headers,-bugprone-suspicious-include"


def flags_of(entry):
    """How a file is compiled, without the compiler's name and the file's own."""
    words = shlex.split(entry["command"])
    # Precompiled headers are the other compiler's, and would hide what a file forgets to include.
    while "-include" in words:
        at = words.index("-include")
        del words[at:at + 2]
    words = [word for word in words if word != "-Winvalid-pch"]
    return tuple(words[next(i for i, word in enumerate(words) if word.startswith("-")):words.index("-o")])


def commands():
    """Each of our own files that is compiled, and its flags."""
    ours = {str(ROOT / path) for path in cpp_files()}
    return {entry["file"]: flags_of(entry) for entry in json.loads((BUILD / "compile_commands.json").read_text())
            if entry["file"] in ours}


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


def key(file, flags, checks):
    path = pathlib.Path(file)
    folders = [pathlib.Path(flag.removeprefix("-I")) for flag in flags if flag.startswith(f"-I{ROOT}")]
    digest = hashlib.sha256((" ".join(flags) + checks).encode())
    for header in sorted({path} | own_headers(path, folders, set())):
        digest.update(header.read_bytes())
    return digest.hexdigest()


def tidy(source, flags, *options):
    """The findings in a source, and whether it compiled."""
    said = subprocess.run([PROGRAM, "--quiet", *options, str(source), "--", *flags], cwd=ROOT, capture_output=True,
                          text=True)
    found = re.findall(r"^(\S+:\d+):\d+: (?:warning|error): (.*)$", said.stdout, re.M)
    findings = {f"{place.removeprefix(str(ROOT) + '/')}: {what}" for place, what in found}
    if said.returncode and not findings:
        findings = {f"{source}: {PROGRAM} failed: {said.stderr.strip()[-400:]}"}
    return findings, not any("[clang-diagnostic-error" in finding or " failed: " in finding for finding in findings)


def tidy_group(files, flags):
    if len(files) == 1:
        return tidy(files[0], flags)[0]
    with tempfile.TemporaryDirectory(dir=STAMPS.parent) as folder:
        source = pathlib.Path(folder, "group.cpp")
        source.write_text("".join(f'#include "{file}"\n' for file in files))
        findings, has_compiled = tidy(source, flags, f"--checks={ALONE_ONLY}")
    if has_compiled:
        return findings
    half = len(files) // 2
    return tidy_group(files[:half], flags) | tidy_group(files[half:], flags)


def groups_of(entries):
    """Files of one folder that are compiled alike, a few at a time."""
    alike = {}
    for file, flags in sorted(entries.items()):
        alike.setdefault((os.path.dirname(file), flags), []).append(file)
    return [(files[start:start + AT_ONCE], flags) for (_, flags), files in alike.items()
            for start in range(0, len(files), AT_ONCE)]


def is_code(group):
    return not group[0][0].removeprefix(f"{ROOT}/").startswith(SAMPLED)


def sample_of(groups):
    """All code, and always the same part of the rest."""
    return ([group for group in groups if is_code(group)] +
            [group for group in groups if not is_code(group)][::ONE_IN])


def generate_sources():
    """What the build generates and our files include: the toolkit's meta-objects and forms. The end of what the build
    said when that failed."""
    targets = subprocess.run(["ninja", "-C", BUILD, "-t", "targets", "all"], check=True, capture_output=True,
                             text=True).stdout
    autogen = re.findall(r"^(\S+_autogen): phony", targets, re.M)
    if not autogen:
        return ""
    said = subprocess.run(["ninja", "-C", BUILD, *dict.fromkeys(autogen)], capture_output=True, text=True)
    return said.stdout[-2000:] if said.returncode else ""


def run(sample=False):
    if failure := generate_sources():
        return Outcome([f"{BUILD.name}: the tree does not build: {failure}"], 0)
    entries = commands()
    version = subprocess.run([PROGRAM, "--version"], capture_output=True, text=True).stdout
    checks = (ROOT / ".clang-tidy").read_text() + version
    STAMPS.mkdir(parents=True, exist_ok=True)
    stamps = {file: STAMPS / key(file, flags, checks) for file, flags in entries.items()}
    groups = groups_of(entries)
    if sample:
        groups = sample_of(groups)
    looked_at = sum(len(files) for files, _ in groups)
    groups = [(left, flags) for files, flags in groups
              if (left := [file for file in files if not stamps[file].exists()])]
    findings = set()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for (files, _), found in zip(groups, pool.map(lambda group: tidy_group(*group), groups)):
            findings |= found
            if not found:
                for file in files:
                    stamps[file].touch()
    return Outcome(sorted(findings), looked_at)


def self_test():
    """A text read after it was moved away."""
    STAMPS.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory(dir=STAMPS.parent) as folder:
        file = pathlib.Path(folder, "self_test.cpp")
        file.write_text("#include <string>\n#include <utility>\n"
                        "std::size_t lost(std::string a) { std::string b = std::move(a); return a.size() + b.size(); }\n")
        said = subprocess.run([PROGRAM, "--quiet", f"--config-file={ROOT / '.clang-tidy'}", str(file), "--",
                               "-std=c++20"], capture_output=True, text=True)
        return "bugprone-use-after-move" in said.stdout and said.returncode != 0
