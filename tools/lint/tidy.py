# SPDX-FileCopyrightText: The KOBTraduction authors
"""tidy: clang-tidy with the checks of .clang-tidy, over every file of the release build, and those that only the build
for Windows has where that is configured.

Most of the time goes into the headers of others, so files that are compiled alike are looked at several at once, as
one source that includes them; where that does not compile (two of them use one name), by halves.
A file that was clean is not looked at again until it, a header of ours that it includes, how it is compiled, or the
checks change (stamps in build/tidy).
"""

import concurrent.futures
import functools
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
# A file that several builds have is looked at as the first one compiles it.
BUILDS = [ROOT / "build" / name for name in ("release", "windows64")]
STAMPS = ROOT / "build" / "tidy"
AT_ONCE = 8
# What the other compiler is told and clang has no word for.
UNKNOWN_FLAGS = ("-Winvalid-pch", "-fno-keep-inline-dllexport", "-flto=auto", "-fno-fat-lto-objects")
# Of what only tests and measures, or is for another system, a sample takes one group in so many.
SAMPLED = ("tests/", "bench/", "fuzz/")
ONE_IN = 4
# What cannot be said of a file that is included by another.
ALONE_ONLY = ("-misc-definitions-in-headers", "-bugprone-suspicious-include")
# Not asked of what is for Windows: a handle there is a pointer by another name, and it is the handle that is constant; and
# what a type library names stands in no namespace, though it bears the names of the component's classes.
NOT_CROSS = ("-misc-misplaced-const", "-bugprone-forward-declaration-namespace")


@functools.cache
def cross_flags(compiler):
    """How clang is told to look at files as a compiler for another system does: its target, and its headers."""
    target = re.match(r"\w+-w64-mingw32", os.path.basename(compiler))
    if not target:
        return []
    said = subprocess.run([compiler, "-x", "c++", "-E", "-v", os.devnull], capture_output=True, text=True).stderr
    folders = re.search(r"#include <\.\.\.> search starts here:\n(.*?)End of search list", said, re.S).group(1).split()
    # Not those of the processor's own instructions: clang has others.
    return [f"--target={target.group(0)}", *(f"-isystem{folder}" for folder in folders
                                            if not re.search(r"/lib/gcc/[^/]+/[^/]+/include(-fixed)?$", folder))]


def flags_of(entry):
    """How a file is compiled, without the compiler's name and the file's own."""
    words = shlex.split(entry["command"])
    # Precompiled headers are the other compiler's, and would hide what a file forgets to include.
    while "-include" in words:
        at = words.index("-include")
        del words[at:at + 2]
    begin = next(i for i, word in enumerate(words) if word.startswith("-"))
    flags = [word for word in words[begin:words.index("-o")] if word not in UNKNOWN_FLAGS]
    return tuple(cross_flags(words[begin - 1]) + flags)


def is_cross(flags):
    return flags[0].startswith("--target=")


def commands():
    """Each of our own files that is compiled, and its flags."""
    ours = {str(ROOT / path) for path in cpp_files()}
    found = {}
    for database in (build / "compile_commands.json" for build in BUILDS):
        for entry in json.loads(database.read_text()) if database.exists() else []:
            if entry["file"] in ours and entry["file"] not in found:
                found[entry["file"]] = flags_of(entry)
    return found


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


def tidy(source, flags, without=()):
    """The findings in a source without some of the checks, and whether it compiled."""
    left_out = ",".join((*without, *(NOT_CROSS if is_cross(flags) else ())))
    said = subprocess.run([PROGRAM, "--quiet", f"--checks={left_out}", str(source), "--", *flags], cwd=ROOT,
                          capture_output=True, text=True)
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
        findings, has_compiled = tidy(source, flags, ALONE_ONLY)
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
    files, flags = group
    return not is_cross(flags) and not files[0].removeprefix(f"{ROOT}/").startswith(SAMPLED)


def sample_of(groups):
    """All code, and always the same part of the rest."""
    return ([group for group in groups if is_code(group)] +
            [group for group in groups if not is_code(group)][::ONE_IN])


def generate_sources(build):
    """What a build generates and our files include: the toolkit's meta-objects and forms, the interface's header. The
    end of what the build said when that failed."""
    targets = subprocess.run(["ninja", "-C", build, "-t", "targets", "all"], check=True, capture_output=True,
                             text=True).stdout
    generating = re.findall(r"^(\S+_autogen|kob_automation_interface): phony", targets, re.M)
    if not generating:
        return ""
    said = subprocess.run(["ninja", "-C", build, *dict.fromkeys(generating)], capture_output=True, text=True)
    return f"{build.name}: the tree does not build: {said.stdout[-2000:]}" if said.returncode else ""


def run(sample=False):
    failures = [failure for build in BUILDS if (build / "build.ninja").exists() and (failure := generate_sources(build))]
    if failures:
        return Outcome(failures, 0)
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
