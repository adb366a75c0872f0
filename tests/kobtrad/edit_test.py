#!/usr/bin/env python3
# SPDX-FileCopyrightText: The KOBTraduction authors
"""The editor as the command opens it: on a screen of its own, with keys of the window system."""

import os
import shutil
import signal
import subprocess
import time
import unittest

import harness

CANCEL = "Commande\\BtnAnnuler"
PATIENCE = 30
# In a title: not saved.
MARK = "*"


class Refusals(harness.CommandTest):
    def test_without_a_screen_it_says_so(self):
        self.harvested()
        self.assertIn("needs a screen", self.kobtrad("edit", "app.trad", code=2).err)

    def test_more_than_six_languages_are_refused(self):
        self.harvested()
        self.kobtrad("languages", "app.trad", 8, "--in-place")
        done = self.kobtrad("edit", "app.trad", code=2)
        self.assertIn("app.trad has 8 languages, and the editor works with six", done.err)

    def test_a_path_that_is_not_there_is_answered_with_the_nearest(self):
        self.harvested()
        done = self.kobtrad("edit", "app.trad", "--path", "Commande\\BtnAnuler", code=2)
        self.assertIn(CANCEL, done.err)

    def test_a_file_that_is_not_there_is_unreadable(self):
        self.kobtrad("edit", "none.trad", code=3)

    def test_there_are_two_modes(self):
        self.harvested()
        self.kobtrad("edit", "app.trad", "--mode", 2, code=2)


@unittest.skipUnless(shutil.which("Xvfb") and shutil.which("xdotool"), "needs Xvfb and xdotool")
class OnScreen(harness.CommandTest):
    def setUp(self):
        super().setUp()
        reading, writing = os.pipe()
        screen = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x1024x24"],
                                  pass_fds=[writing], stderr=subprocess.DEVNULL)
        self.addCleanup(screen.wait)
        self.addCleanup(screen.terminate)
        os.close(writing)
        with os.fdopen(reading) as numbers:
            display = ":" + numbers.readline().strip()
        self.environment = harness.environment() | {"DISPLAY": display, "QT_QPA_PLATFORM": "xcb"}
        self.harvested()

    def open(self, *arguments):
        """Starts the editor; the process."""
        editor = subprocess.Popen([harness.command(), "edit", "app.trad", *arguments], cwd=self.folder,
                                  env=self.environment, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                                  encoding="utf-8")
        self.addCleanup(editor.communicate)
        self.addCleanup(editor.kill)
        return editor

    def hands(self, *arguments):
        subprocess.run(["xdotool", *arguments], env=self.environment, check=True, timeout=PATIENCE,
                       stdout=subprocess.DEVNULL)

    def focus(self, title):
        """Waits for the window of that title, and gives it the keyboard as a window manager would."""
        self.hands("search", "--sync", "--onlyvisible", "--name", title, "windowfocus", "--sync")
        time.sleep(0.3)

    def title(self):
        return subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^Traduction", "getwindowname"],
                              env=self.environment, check=True, timeout=PATIENCE, stdout=subprocess.PIPE,
                              encoding="utf-8").stdout

    def type(self, text):
        """Puts a text into the box of language 2."""
        self.hands("key", "ctrl+2", "ctrl+a")
        self.hands("type", text)

    def wait_for(self, happened):
        end = time.monotonic() + PATIENCE
        while not happened() and time.monotonic() < end:
            time.sleep(0.05)
        self.assertTrue(happened())

    def close(self, editor):
        self.hands("key", "ctrl+w")
        out, err = editor.communicate(timeout=PATIENCE)
        self.assertEqual((editor.returncode, out), (0, ""), err)
        return err

    def text(self):
        return self.kobtrad("get", "app.trad", CANCEL, 2).out

    def test_what_is_saved_is_in_the_file(self):
        editor = self.open("--path", CANCEL)
        self.focus("^Traduction")
        self.assertNotIn(MARK, self.title())
        self.type("Cancel")
        self.wait_for(lambda: MARK in self.title())
        self.hands("key", "ctrl+s")
        self.wait_for(lambda: self.text() == "Cancel\n")
        self.assertEqual(self.close(editor), "")
        self.assertEqual(self.names(), ["app.trad"])

    def test_closing_writes_nothing_and_leaves_nothing_behind(self):
        before = self.sum("app.trad")
        editor = self.open("--path", CANCEL)
        self.focus("^Traduction")
        self.type("Cancel")
        self.wait_for(lambda: "app.trad.recovery" in self.names())
        self.close(editor)
        self.assertEqual(self.sum("app.trad"), before)
        self.assertEqual(self.names(), ["app.trad"])

    def crash(self):
        editor = self.open("--path", CANCEL)
        self.focus("^Traduction")
        self.type("Cancel")
        self.wait_for(lambda: "app.trad.recovery" in self.names())
        # The copy may have been written in the midst of the typing.
        self.wait_for(lambda: self.kobtrad("get", "app.trad.recovery", CANCEL, 2).out == "Cancel\n")
        editor.send_signal(signal.SIGKILL)
        editor.wait(timeout=PATIENCE)
        self.assertEqual(self.text(), "\n")

    def test_after_a_crash_what_was_typed_is_taken_over(self):
        self.crash()
        editor = self.open("--path", CANCEL)
        self.focus("^kobtrad")
        self.hands("key", "alt+y")
        self.focus("^Traduction")
        self.assertIn(MARK, self.title(), "what was taken over is not in the file")
        self.hands("key", "ctrl+s")
        self.wait_for(lambda: self.text() == "Cancel\n")
        self.wait_for(lambda: MARK not in self.title())
        self.assertIn("took over app.trad.recovery", self.close(editor))
        self.assertEqual(self.names(), ["app.trad"])

    def test_what_was_taken_over_and_not_saved_is_offered_again(self):
        self.crash()
        editor = self.open("--path", CANCEL)
        self.focus("^kobtrad")
        self.hands("key", "alt+y")
        self.focus("^Traduction")
        self.close(editor)
        self.assertIn("app.trad.recovery", self.names())
        self.assertEqual(self.text(), "\n")

    def test_after_a_no_the_copy_is_put_aside(self):
        self.crash()
        editor = self.open("--path", CANCEL)
        self.focus("^kobtrad")
        self.hands("key", "Escape")
        self.focus("^Traduction")
        self.close(editor)
        self.assertEqual(self.names(), ["app.trad", "app.trad.recovery.old"])
        self.assertEqual(self.kobtrad("get", "app.trad.recovery.old", CANCEL, 2).out, "Cancel\n")

    @unittest.skipUnless("KOB_THREE_LANGUAGES" in os.environ, "needs KOB_THREE_LANGUAGES, which ctest gives")
    def test_three_languages_become_six_in_the_window_and_in_the_file_once_saved(self):
        subprocess.run([os.environ["KOB_THREE_LANGUAGES"], self.file("app.trad")], check=True)
        self.assertEqual(self.kobtrad("languages", "app.trad").out, "3\n")
        editor = self.open("--mode", "0", "--path", "Message")
        self.focus("^Traduction")
        self.assertIn(MARK, self.title(), "the file has three languages still")
        self.assertEqual(self.kobtrad("languages", "app.trad").out, "3\n")
        self.hands("key", "ctrl+s")
        self.wait_for(lambda: MARK not in self.title())
        self.assertIn("app.trad has fewer languages than the editor's six (3)", self.close(editor))
        self.assertEqual(self.kobtrad("languages", "app.trad").out, "6\n")
        self.assertEqual(self.kobtrad("get", "app.trad", "Message", 2).out, "Yes\n")

    def test_a_file_is_open_in_one_editor_only(self):
        editor = self.open()
        self.focus("^Traduction")
        second = self.open()
        self.assertIn("app.trad is open in another editor", second.communicate(timeout=PATIENCE)[1])
        self.assertEqual(second.returncode, 2)
        self.close(editor)


if __name__ == "__main__":
    harness.main()
