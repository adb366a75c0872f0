#!/usr/bin/env python3
# SPDX-FileCopyrightText: The KOBTraduction authors
"""--help, the manual page and the shell completion say the same: every verb and every option is in all three."""

import re
import shutil
import subprocess
import unittest

import harness

EVERY_VERB = ("harvest", "show", "get", "set", "edit", "apply", "languages", "stats", "check", "merge",
              "complete", "test-language", "clear-language")


def options_in(text):
    """The options that a help page lists."""
    return {name for line in text.splitlines() if re.match(r"  -", line)
            for name in re.findall(r"(?<![\w-])(--?[a-z][a-z-]*)", re.split(r"\s{2,}", line.strip())[0])}


class Pages(harness.CommandTest):
    def verbs(self):
        listed = self.kobtrad("--help").out.split("\nVerbs:\n")[1].split("\n\n")[0]
        return re.findall(r"^  (\S+)", listed, re.MULTILINE)

    def manual(self):
        page = (harness.pages() / "kobtrad.1").read_text(encoding="utf-8")
        return page.replace("\\-", "-").replace("\\fB", "").replace("\\fR", "").replace("\\fI", "")

    def section(self, verb):
        return self.manual().split(f"\n.SS {verb}\n")[1].split("\n.SS ")[0].split("\n.SH ")[0]

    def complete(self, *words):
        """What bash proposes for the last of the words."""
        script = ". \"$1\"; shift; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _kobtrad; " \
                 "printf '%s\\n' \"${COMPREPLY[@]}\""
        done = subprocess.run(["bash", "-c", script, "bash", harness.pages() / "kobtrad.bash", *words],
                              cwd=self.folder, check=True, capture_output=True, encoding="utf-8")
        return set(done.stdout.split())

    def test_help_lists_every_verb(self):
        self.assertLessEqual(set(EVERY_VERB), set(self.verbs()))

    def test_help_tells_every_exit_code(self):
        out = self.kobtrad("--help").out
        for code in range(5):
            self.assertRegex(out, rf"(?m)^  {code}  \S")

    def test_every_verb_has_help_with_its_call_and_examples(self):
        for verb in self.verbs():
            out = self.kobtrad(verb, "--help").out
            self.assertIn(f"Usage: kobtrad {verb} ", out)
            self.assertRegex(out, rf"\nExamples:\n  kobtrad {verb} ")
            self.assertIn("--help", options_in(out))

    def test_help_goes_to_standard_output(self):
        self.assertEqual(self.kobtrad("--help").err, "")
        self.assertEqual(self.kobtrad("set", "-h").err, "")

    def test_no_line_of_help_is_longer_than_a_terminal(self):
        for arguments in [[]] + [[verb] for verb in self.verbs()]:
            for line in self.kobtrad(*arguments, "--help").out.splitlines():
                self.assertLessEqual(len(line), 112, line)

    def test_the_manual_has_every_verb_and_no_other(self):
        listed = re.findall(r"^\.SS (\S+)$", self.manual(), re.MULTILINE)
        self.assertEqual(listed, self.verbs())

    def test_the_manual_has_every_option_and_no_other(self):
        for verb in self.verbs():
            described = {name for line in re.findall(r"^\.TP\n(-.*)$", self.section(verb), re.MULTILINE)
                         for name in re.findall(r"(?<![\w-])--?[a-z][a-z-]*", line)}
            self.assertEqual(described, options_in(self.kobtrad(verb, "--help").out), verb)

    def test_the_manual_has_every_argument(self):
        for verb in self.verbs():
            usage = re.search(r"Usage: (.*)", self.kobtrad(verb, "--help").out).group(1)
            for argument in re.findall(r"[A-Z]+", usage.replace("[OPTIONS]", "")):
                self.assertRegex(self.section(verb), rf"(?m)^\.TP\n{argument}$")

    def test_the_manual_tells_every_exit_code(self):
        ends = self.manual().split(".SH EXIT STATUS")[1]
        for code in range(5):
            self.assertRegex(ends, rf"(?m)^{code}  \S")

    @unittest.skipUnless(shutil.which("groff"), "groff is not installed")
    def test_the_manual_is_good_roff(self):
        done = subprocess.run(["groff", "-man", "-Tutf8", "-ww", "-z", "-K", "utf8", harness.pages() / "kobtrad.1"],
                              capture_output=True, encoding="utf-8", check=False)
        self.assertEqual((done.returncode, done.stderr), (0, ""))

    def test_bash_completes_every_verb(self):
        self.assertEqual(self.complete("kobtrad", "") - {"-h", "--help", "--version"}, set(self.verbs()))
        self.assertEqual(self.complete("kobtrad", "ha"), {"harvest"})

    def test_bash_completes_every_option_and_no_other(self):
        for verb in self.verbs():
            wanted = options_in(self.kobtrad(verb, "--help").out)
            self.assertEqual(self.complete("kobtrad", verb, "-"), wanted, verb)

    def test_bash_completes_values_and_files(self):
        self.harvested()
        self.assertEqual(self.complete("kobtrad", "harvest", "--overwrite", ""), {"yes", "no", "ask"})
        self.assertEqual(self.complete("kobtrad", "get", "--name", "C"), {"Caption"})
        self.assertEqual(self.complete("kobtrad", "show", "a"), {"app.trad"})
        self.assertEqual(self.complete("kobtrad", "set", "-o", "a"), {"app.trad"})
        self.assertEqual(self.complete("kobtrad", "apply", "--lang", ""), set())

    @unittest.skipUnless(shutil.which("shellcheck"), "shellcheck is not installed")
    def test_shellcheck_finds_nothing_in_the_completion(self):
        done = subprocess.run(["shellcheck", "-s", "bash", harness.pages() / "kobtrad.bash"], capture_output=True,
                              encoding="utf-8", check=False)
        self.assertEqual((done.returncode, done.stdout), (0, ""))


if __name__ == "__main__":
    harness.main()
