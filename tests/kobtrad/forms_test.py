#!/usr/bin/env python3
# SPDX-FileCopyrightText: The KOBTraduction authors
"""The verbs that show forms: harvest and apply, without a screen."""

import os
import pty
import re
import select
import subprocess

import harness

PNG = b"\x89PNG\r\n\x1a\n"
CANCEL = "Commande\\BtnAnnuler"
BOTH = {"&amp;Annuler": "&amp;Fermer", "Livraison urgente": "Livraison rapide"}


class Harvest(harness.CommandTest):
    def test_a_new_file_holds_the_texts(self):
        done = self.kobtrad("harvest", harness.FORM, "-o", "app.trad")
        lines = done.out.splitlines()
        self.assertEqual(lines[0], "new        Commande  Caption  \"Commande\"")
        self.assertEqual(lines[-1], "10 new, 0 changed, 0 unchanged, 0 refused")
        self.assertEqual(len(lines), 11)
        self.assertEqual(done.err, "")

    def test_an_existing_file_is_added_to(self):
        self.harvested()
        self.kobtrad("set", "app.trad", CANCEL, 2, "&Cancel", "--in-place")
        other = self.form("other.ui", Commande="Facture", **{"&amp;Annuler": "&amp;Fermer"})
        done = self.kobtrad("harvest", other, "-o", "app.trad")
        self.assertTrue(done.out.endswith("\n10 new, 0 changed, 0 unchanged, 0 refused\n"), done.out)
        self.assertEqual(self.kobtrad("get", "app.trad", "Facture\\BtnAnnuler", 1).out, "&Fermer\n")
        self.assertEqual(self.kobtrad("get", "app.trad", CANCEL, 2).out, "&Cancel\n")

    def test_the_second_time_all_is_unchanged(self):
        self.settled()
        before = self.sum("app.trad")
        done = self.kobtrad("harvest", harness.FORM, "-o", "app.trad")
        self.assertEqual(done.out, "0 new, 0 changed, 10 unchanged, 0 refused\n")
        self.assertEqual(self.sum("app.trad"), before)

    def test_verbose_lists_the_unchanged_ones(self):
        self.harvested()
        done = self.kobtrad("harvest", harness.FORM, "-o", "app.trad", "-v")
        self.assertEqual(len([line for line in done.out.splitlines() if line.startswith("unchanged  ")]), 10)

    def test_without_a_terminal_a_question_is_answered_no(self):
        self.harvested()
        done = self.kobtrad("harvest", self.form("new.ui", **BOTH), "-o", "app.trad", code=1)
        # Only the check box has a caption and a tool tip; the button's text is replaced without a question.
        self.assertEqual(done.out, """\
changed    Commande\\BtnAnnuler  Caption  "&Annuler" -> "&Fermer"
refused    Commande\\ChkUrgent  Caption  "Livraison urgente" -> "Livraison rapide"
0 new, 1 changed, 8 unchanged, 1 refused
""")
        self.assertEqual(self.kobtrad("get", "app.trad", CANCEL, 1).out, "&Fermer\n")
        urgent = self.kobtrad("get", "app.trad", "Commande\\ChkUrgent", 1, "--name", "Caption")
        self.assertEqual(urgent.out, "Livraison urgente\n")

    def test_overwrite_yes_takes_the_text_of_the_form(self):
        self.harvested()
        done = self.kobtrad("harvest", self.form("new.ui", **BOTH), "-o", "app.trad", "--overwrite", "yes")
        self.assertTrue(done.out.endswith("\n0 new, 2 changed, 8 unchanged, 0 refused\n"), done.out)
        urgent = self.kobtrad("get", "app.trad", "Commande\\ChkUrgent", 1, "--name", "Caption")
        self.assertEqual(urgent.out, "Livraison rapide\n")

    def test_overwrite_ask_reads_the_answer(self):
        changed = self.form("new.ui", **BOTH, **{"Envoyer la commande": "Envoyer"})
        for feed, refused in (("y\ny\n", 0), ("a\n", 0), ("n\ny\n", 1), ("", 2), ("\n\n", 2)):
            self.file("app.trad").unlink(missing_ok=True)
            self.harvested()
            done = self.kobtrad("harvest", changed, "-o", "app.trad", "--overwrite", "ask", feed=feed,
                                code=1 if refused else 0)
            self.assertIn(f" {refused} refused\n", done.out)
            self.assertIn("Voulez vous le modifier?", done.err)
            self.assertIn("Livraison urgente  ->  Livraison rapide", done.err)
            self.assertNotIn("Voulez", done.out)

    def test_overwrite_is_yes_no_or_ask(self):
        self.kobtrad("harvest", harness.FORM, "-o", "app.trad", "--overwrite", "maybe", code=2)

    def test_a_dry_run_writes_nothing(self):
        done = self.kobtrad("harvest", harness.FORM, "-o", "app.trad", "--dry-run")
        self.assertTrue(done.out.endswith("\n10 new, 0 changed, 0 unchanged, 0 refused\n"))
        self.assertEqual(self.names(), [])

    def test_needs_a_form_and_a_file(self):
        self.kobtrad("harvest", harness.FORM, code=2)
        self.kobtrad("harvest", "-o", "app.trad", code=2)

    def test_one_bad_form_leaves_the_file_as_it_was(self):
        self.harvested()
        before = self.sum("app.trad")
        self.file("cut.ui").write_text(harness.FORM.read_text(encoding="utf-8")[:300], encoding="utf-8")
        other = self.form("other.ui", Commande="Facture")
        for bad in ("cut.ui", "none.ui"):
            done = self.kobtrad("harvest", other, bad, "-o", "app.trad", code=3)
            self.assertIn(bad + " cannot be shown", done.err)
            self.assertEqual(done.out, "")
        self.assertEqual(self.sum("app.trad"), before)

    def test_a_folder_that_is_not_there_ends_with_4(self):
        done = self.kobtrad("harvest", harness.FORM, "-o", "none/app.trad", code=4)
        self.assertEqual(done.out, "")

    def test_a_module_keeps_forms_of_one_name_apart(self):
        self.kobtrad("harvest", harness.FORM, "-o", "app.trad", "--module", "Ventes")
        self.assertEqual(self.kobtrad("get", "app.trad", "Ventes\\Commande", 1).out, "Commande\n")

    def test_a_module_is_one_name(self):
        self.kobtrad("harvest", harness.FORM, "-o", "app.trad", "--module", "Ventes\\Nord", code=2)
        self.assertEqual(self.names(), [])

    def test_two_forms_of_one_name_are_told(self):
        other = self.form("other.ui", **{"&amp;Annuler": "&amp;Fermer"})
        done = self.kobtrad("harvest", harness.FORM, other, "-o", "app.trad", code=1)
        self.assertIn("both hold a form named \"Commande\"", done.err)

    def test_languages_that_were_added_stay(self):
        self.harvested()
        self.kobtrad("languages", "app.trad", 8, "--in-place")
        self.kobtrad("harvest", self.form("other.ui", Commande="Facture"), "-o", "app.trad")
        self.assertEqual(self.kobtrad("languages", "app.trad").out, "8\n")
        self.kobtrad("check", "app.trad")


class Apply(harness.CommandTest):
    def apply(self, langue, picture, **options):
        done = self.kobtrad("apply", harness.FORM, "app.trad", "--lang", langue, "--png", picture, **options)
        return done, self.bytes(picture) if self.file(picture).exists() else b""

    def test_languages_give_pictures_that_differ(self):
        self.harvested()
        self.kobtrad("set", "app.trad", CANCEL, 2, "&Cancel this order", "--in-place")
        _, french = self.apply(1, "fr.png")
        done, english = self.apply(2, "en.png")
        _, dutch = self.apply(3, "nl.png")
        self.assertTrue(french.startswith(PNG) and english.startswith(PNG))
        self.assertNotEqual(french, english)
        # Without a translation a form shows language 1.
        self.assertEqual(french, dutch)
        self.assertEqual((done.out, done.err), ("", ""))

    def test_the_same_call_gives_the_same_picture(self):
        self.harvested()
        self.assertEqual(self.apply(1, "a.png")[1], self.apply(1, "b.png")[1])

    def test_a_form_that_was_never_harvested_is_told(self):
        self.harvested(form=self.form("other.ui", Commande="Facture"))
        done, picture = self.apply(2, "x.png", code=1)
        self.assertIn("holds nothing of the form \"Commande\"", done.err)
        self.assertTrue(picture.startswith(PNG))

    def test_a_module_is_where_the_texts_are(self):
        self.kobtrad("harvest", harness.FORM, "-o", "app.trad", "--module", "Ventes")
        self.apply(2, "x.png", code=1)
        self.kobtrad("apply", harness.FORM, "app.trad", "--lang", 2, "--png", "y.png", "--module", "Ventes")

    def test_an_unknown_language_is_refused(self):
        self.harvested()
        for number in (0, 7, "x"):
            self.apply(number, "x.png", code=2)
        self.assertEqual(self.names(), ["app.trad"])

    def test_what_cannot_be_read_ends_with_3(self):
        self.harvested()
        self.kobtrad("apply", "none.ui", "app.trad", "--lang", 2, "--png", "x.png", code=3)
        self.kobtrad("apply", harness.FORM, "none.trad", "--lang", 2, "--png", "x.png", code=3)
        self.assertEqual(self.names(), ["app.trad"])

    def test_a_picture_that_cannot_be_written_ends_with_4(self):
        self.harvested()
        self.assertIn("none/x.png cannot be written", self.apply(2, "none/x.png", code=4)[0].err)

    def test_needs_a_language_and_a_picture(self):
        self.harvested()
        self.kobtrad("apply", harness.FORM, "app.trad", "--lang", 2, code=2)
        self.kobtrad("apply", harness.FORM, "app.trad", "--png", "x.png", code=2)


class Terminal(harness.CommandTest):
    """The command with a terminal for its input and its messages."""

    def onTerminal(self, *arguments, typed="", isWhole=False):
        """The exit code and what a person saw of the messages, or of everything."""
        master, slave = pty.openpty()
        with subprocess.Popen([harness.command(), *map(str, arguments)], cwd=self.folder, stdin=slave,
                              stdout=slave if isWhole else subprocess.PIPE, stderr=slave,
                              env=harness.environment()) as running:
            os.close(slave)
            os.write(master, typed.encode())
            seen = b""
            while select.select([master], [], [], 60)[0]:
                try:
                    piece = os.read(master, 4096)
                except OSError:
                    break
                if not piece:
                    break
                seen += piece
            if not isWhole:
                running.stdout.read()
            code = running.wait(60)
        os.close(master)
        return code, seen.decode()

    def test_a_question_is_asked(self):
        self.harvested()
        changed = self.form("new.ui", **BOTH)
        code, seen = self.onTerminal("harvest", changed, "-o", "app.trad", typed="y\n")
        self.assertIn("Voulez vous le modifier?", seen)
        self.assertIn("[y]es, [n]o", seen)
        self.assertEqual(code, 0)

    def test_overwrite_no_asks_nothing(self):
        self.harvested()
        code, seen = self.onTerminal("harvest", self.form("new.ui", **BOTH), "-o", "app.trad", "--overwrite", "no")
        self.assertNotIn("Voulez", seen)
        self.assertEqual(code, 1)

    def test_many_forms_have_a_progress_bar_that_goes_away(self):
        forms = [self.form(f"f{i}.ui", Commande=f"Facture{i}") for i in range(4)]
        code, seen = self.onTerminal("harvest", *forms, "-o", "app.trad")
        self.assertEqual(code, 0)
        self.assertIn("[######..................] 2 of 4  f1.ui", seen)
        self.assertTrue(seen.endswith("\r\033[K"), repr(seen[-40:]))

    def test_the_bar_makes_room_for_what_is_printed(self):
        self.harvested("a.trad")
        self.harvested("b.trad")
        code, seen = self.onTerminal("check", "a.trad", "b.trad", isWhole=True)
        self.assertEqual(code, 0)
        self.assertEqual(re.findall(r"\r\033\[K([ab].trad: fine)", seen), ["a.trad: fine", "b.trad: fine"], repr(seen))

    def test_there_is_no_bar_without_a_terminal(self):
        forms = [self.form(f"f{i}.ui", Commande=f"Facture{i}") for i in range(4)]
        self.assertEqual(self.kobtrad("harvest", *forms, "-o", "app.trad").err, "")


if __name__ == "__main__":
    harness.main()
