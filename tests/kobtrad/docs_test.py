#!/usr/bin/env python3
# SPDX-FileCopyrightText: The KOBTraduction authors
"""What the README and the guide show on a terminal is what a person gets who types it."""

import os
import pathlib
import re
import subprocess

import harness


def sessions(page):
    """The commands of a page with what it shows below each, in order."""
    blocks = re.findall(r"^```console\n(.*?)^```$", page, re.MULTILINE | re.DOTALL)
    for block in blocks:
        for command, shown in re.findall(r"^\$ (.*)\n((?:(?!\$ ).*\n)*)", block, re.MULTILINE):
            yield command, shown


class Docs(harness.CommandTest):
    def follow(self, name):
        """Types every command of a page, in one folder; how many there were."""
        (self.folder / "docs").symlink_to(harness.PROJECT / "docs")
        folder = pathlib.Path(harness.command()).parent
        environment = harness.environment() | {"PATH": f"{folder}:{os.environ['PATH']}"}
        count = 0
        for command, shown in sessions((harness.PROJECT / name).read_text(encoding="utf-8")):
            done = subprocess.run(["bash", "-c", command], cwd=self.folder, env=environment, encoding="utf-8",
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL,
                                  timeout=120, check=False)
            self.assertEqual(done.stdout, shown, command)
            count += 1
        return count

    def test_the_readme(self):
        self.assertGreaterEqual(self.follow("README.md"), 6)
        self.assertTrue(self.bytes("commande-en.png").startswith(b"\x89PNG"))

    def test_the_guide(self):
        self.assertGreaterEqual(self.follow("docs/kobtrad.md"), 20)
        self.assertNotEqual(self.bytes("commande-en.png"), self.bytes("commande-test.png"))

    def test_the_guide_tells_every_exit_code_as_the_help_does(self):
        page = (harness.PROJECT / "docs/kobtrad.md").read_text(encoding="utf-8")
        told = re.findall(r"^  (\d)  \S", self.kobtrad("--help").out, re.MULTILINE)
        self.assertEqual(re.findall(r"^\| (\d) \|", page, re.MULTILINE), told)


if __name__ == "__main__":
    harness.main()
