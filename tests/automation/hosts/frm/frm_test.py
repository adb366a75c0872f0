#!/usr/bin/env python3
# SPDX-FileCopyrightText: The KOBTraduction authors
"""Form files, harvested and translated through the DLL, beside what must become of their texts.

  frm_test.py --kobfrm EXE --dll DLL --work FOLDER

A form file becomes a live form of script objects (kobfrm); the component harvests it and saves the model, and a second
process loads the model and applies languages to a fresh form: a test language, and those that were published with the
form. Every cell, every text on the form and every message must be what expectation.py computes from the file alone.
The forms are those of forms/, and a fixed sample of ../shared/corpus/frm (all of it when KOB_WHOLE is set).
"""

import argparse
import concurrent.futures
import json
import os
import pathlib
import sys

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent))
from cases import Cases, Skipped  # noqa: E402
from wine import ROOT, windows_path, wine  # noqa: E402
import expectation  # noqa: E402
import formfile  # noqa: E402
from published import published  # noqa: E402

CORPUS = ROOT.parent / "shared/corpus/frm"
SAMPLE = 12  # of the corpus, every so many forms; those with tabs, toolbars and tags come on top
STYLES = [("vbscript", "class"), ("vbscript", "enumerated"), ("jscript", "class"), ("vbscript", "array"),
          ("jscript", "enumerated"), ("jscript", "array")]


def quoted(text):
    """As tests/doubles/Lines.h reads it."""
    result = ""
    for letter in text:
        if letter in '"\\':
            result += "\\" + letter
        elif letter < " ":
            result += {"\n": "\\n", "\r": "\\r", "\t": "\\t"}.get(letter, f"\\u{{{ord(letter):x}}}")
        else:
            result += letter
    return f'"{result}"'


def resources_of(application, path):
    """The texts that a form keeps in a file of its own, by the objects that have them."""
    file = application / "frx_strings.json"
    known = json.loads(file.read_text(encoding="utf-8")) if file.exists() else {}
    return {one["object"]: one["value"] for one in known.get(str(path.relative_to(application)), [])
            if one["property"] == "Caption"}


class Form:
    def __init__(self, path, application, translations, number, work):
        self.path = path
        self.name = str(path.relative_to(application.parent))
        self.data = path.read_bytes()
        self.resources = resources_of(application, path)
        self.model = work / f"{number:04}.trad"
        live = self.live()
        self.root, self.messages = expectation.harvest(live)
        self.captions = sum(len(cell.entries or []) for _, cell in all_cells(self.root))
        self.is_special = any(one.get("tabtitles") or one.get("buttons") or one.get("tag") for one in live.all)
        self.language, self.collections = STYLES[number % len(STYLES)]
        self.texts = list(translations.texts(self.root)) if translations else []
        for path_of_cell, name, language, text in self.texts:
            cell = expectation.find(self.root, path_of_cell)
            next(one for one in cell.entries if one[0] == name)[1][language - 1] = text
        self.harvested = {}
        self.applied = {}

    def live(self):
        return formfile.LiveForm(self.data, self.resources)

    def languages(self):
        """Those that were published, then the test language, then the forms' own."""
        return sorted({language for _, _, language, _ in self.texts}) + ["test", 1]

    def job(self, is_harvest):
        lines = [f'form {quoted(windows_path(self.path))} model={quoted(windows_path(self.model))} '
                 f'language={self.language} collections={self.collections}']
        lines += [f"  elsewhere {quoted(path)} {quoted(text)}" for path, text in self.resources.items()]
        if is_harvest:
            lines += [f"  text {quoted(path)} {name} {language} {quoted(text)}"
                      for path, name, language, text in self.texts]
        else:
            for language in self.languages():
                lines += ["  test 2", "  apply 2"] if language == "test" else [f"  apply {language}"]
        return "\n".join(lines) + "\n"

    def expected_states(self):
        live = self.live()
        messages = []
        states = []
        for language in self.languages():
            if language == "test":
                for _, cell in all_cells(self.root):
                    for _, texts in cell.entries or []:
                        texts[1] = f"** {texts[0]} **"
            messages += expectation.apply(live, self.root, 2 if language == "test" else language)
            states.append(expectation.described(live))
        return states, messages

    def check(self):
        unchanged = expectation.described(self.live())
        compare("the harvest's messages", message_text(self.messages), self.harvested.get("messages"), self.harvested)
        compare("the cells", self.root.described()["cells"], self.harvested.get("cells", {}).get("cells"))
        compare("the form after harvesting", unchanged, self.harvested.get("state"))
        states, messages = self.expected_states()
        compare("the messages of applying", message_text(messages), self.applied.get("messages"), self.applied)
        for language, expected, seen in zip(self.languages(), states, self.applied["states"], strict=True):
            compare(f"the form in language {language}", expected, seen)


def all_cells(cell, path=()):
    for child in cell.children or []:
        yield path + (child.name,), child
        yield from all_cells(child, path + (child.name,))


def message_text(messages):
    return "".join(f"{kind} {quoted(text)}" + "".join(f" -> {answer}" for answer in answers) + "\n"
                   for kind, text, *answers in messages)


def compare(what, expected, seen, context=None):
    if context is not None and "error" in (context or {"error": 1}):
        raise AssertionError(f"{what}: {context.get('error', 'kobfrm did not come to this form')}")
    if expected == seen:
        return
    if isinstance(expected, list) and isinstance(seen, list):
        pairs = [f"  expected {e!r}\n      seen {s!r}" for e, s in zip(expected, seen) if e != s]
        if len(expected) != len(seen):
            pairs.append(f"  {len(expected)} expected, {len(seen)} seen")
        raise AssertionError(f"{what}:\n" + "\n".join(pairs[:5]))
    raise AssertionError(f"{what}: expected {expected!r}, seen {seen!r}")


def run_batch(program, library, forms, work, number, is_harvest):
    """One process for many forms; what went wrong with the process itself."""
    verb = "harvest" if is_harvest else "apply"
    jobs, output = work / f"{verb}-{number}.jobs", work / f"{verb}-{number}.json"
    jobs.write_bytes("".join(form.job(is_harvest) for form in forms).encode("utf-8", "surrogatepass"))
    output.unlink(missing_ok=True)
    done = wine(program, verb, windows_path(library), windows_path(jobs), windows_path(output), seconds=300)
    by_path = {windows_path(form.path): form for form in forms}
    lines = output.read_text(encoding="ascii").splitlines() if output.exists() else []
    for line in lines:
        answer = json.loads(line)
        setattr(by_path[answer["form"]], "harvested" if is_harvest else "applied", answer)
    if done.returncode != 0 or len(lines) != len(forms):
        return f"{verb} {number}: status {done.returncode}, {len(lines)} of {len(forms)} forms\n{done.stderr[-2000:]}"
    return ""


def gather(is_whole, work):
    forms = []
    for path in sorted((HERE / "forms").glob("*.frm")):
        forms.append(Form(path, HERE / "forms", None, len(forms), work))
    applications = sorted(path for path in CORPUS.iterdir() if path.is_dir()) if CORPUS.is_dir() else []
    for application in applications:
        translations = published(application)
        for i, path in enumerate(sorted(application.rglob("*.frm"))):
            form = Form(path, application, translations, len(forms), work)
            if is_whole or i % SAMPLE == 0 or form.is_special:
                forms.append(form)
    return forms


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("--kobfrm", required=True)
    arguments.add_argument("--dll", required=True)
    arguments.add_argument("--work", required=True, type=pathlib.Path)
    given = arguments.parse_args()
    work = given.work.resolve()
    work.mkdir(parents=True, exist_ok=True)

    forms = gather("KOB_WHOLE" in os.environ, work)
    size = max(1, min(60, -(-len(forms) // (os.cpu_count() or 1))))
    batches = [forms[i:i + size] for i in range(0, len(forms), size)]
    wine("cmd", "/c", "exit")  # the prefix, once and not by several at a time
    problems = []
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for is_harvest in (True, False):
            problems += pool.map(lambda one, what=is_harvest: run_batch(given.kobfrm, given.dll, one[1], work, one[0],
                                                                        what), enumerate(batches))
    cases = Cases("frm")

    def processes():
        if any(problems):
            raise AssertionError("\n".join(filter(None, problems)))
    cases.run("every process came to its end", processes)
    for form in forms:
        cases.run(form.name, form.check)

    def number_of_captions():
        seen = sum(captions_in(form.harvested.get("cells", {})) for form in forms)
        expected = sum(form.captions for form in forms)
        compare("the number of texts", expected, seen)
        if not seen:
            raise AssertionError("no text was harvested")
        print(f"frm: {len(forms)} forms, {seen} texts, "
              f"{sum(len(form.texts) for form in forms)} published translations")
    cases.run("the number of texts is above zero and equal", number_of_captions)

    def corpus():
        if not CORPUS.is_dir():
            raise Skipped("there are no form files in ../shared/corpus/frm")
    cases.run("form files of real applications", corpus)
    return cases.finish()


def captions_in(cell):
    return len(cell.get("entries") or []) + sum(captions_in(one) for one in cell.get("cells", []))


if __name__ == "__main__":
    sys.exit(main())
