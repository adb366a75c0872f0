#!/usr/bin/env python3
# SPDX-FileCopyrightText: The KOBTraduction authors
"""The verbs that work on a translation file alone."""

import json
import os

import harness

ACCEPT = "Commande\\BtnValider"


class Get(harness.CommandTest):
    def test_prints_the_text_and_a_line_break(self):
        self.harvested()
        done = self.kobtrad("get", "app.trad", ACCEPT, 1, "--name", "ToolTip")
        self.assertEqual((done.out, done.err), ("Envoyer la commande\n", ""))

    def test_a_control_with_one_text_needs_no_name(self):
        self.harvested()
        self.assertEqual(self.kobtrad("get", "app.trad", "Commande\\BtnAnnuler", 1).out, "&Annuler\n")

    def test_a_control_with_two_texts_needs_a_name(self):
        self.harvested()
        done = self.kobtrad("get", "app.trad", ACCEPT, 1, code=2)
        self.assertEqual(done.out, "")
        self.assertIn("Caption, ToolTip; choose one with --name", done.err)

    def test_an_unknown_name_is_answered_with_those_there_are(self):
        self.harvested()
        done = self.kobtrad("get", "app.trad", ACCEPT, 1, "--name", "Texte", code=2)
        self.assertIn("these texts: Caption, ToolTip; it has no \"Texte\"", done.err)

    def test_an_untranslated_text_is_an_empty_line(self):
        self.harvested()
        self.assertEqual(self.kobtrad("get", "app.trad", ACCEPT, 2, "--name", "caption").out, "\n")

    def test_falls_back_when_asked(self):
        self.harvested()
        done = self.kobtrad("get", "app.trad", ACCEPT, 2, "--name", "Caption", "--fallback")
        self.assertEqual(done.out, "&Valider\n")

    def test_an_unknown_path_is_answered_with_the_nearest(self):
        self.harvested()
        done = self.kobtrad("get", "app.trad", "Commande\\BtnValidez", 1, code=2)
        self.assertIn("no cell at path \"Commande\\BtnValidez\"; did you mean \"Commande\\BtnValider\"?", done.err)

    def test_a_language_that_is_not_there_is_refused(self):
        self.harvested()
        for number in (0, -1, 7):
            done = self.kobtrad("get", "app.trad", "--name", "Caption", "--", ACCEPT, number, code=2)
            self.assertIn("one of 1 to 6", done.err)

    def test_a_language_is_a_number(self):
        self.harvested()
        self.kobtrad("get", "app.trad", ACCEPT, "deux", code=2)

    def test_a_file_that_is_not_there_is_unreadable(self):
        done = self.kobtrad("get", "none.trad", "a", 1, code=3)
        self.assertIn("none.trad cannot be read", done.err)

    def test_another_kind_of_file_is_unreadable(self):
        self.kobtrad("get", harness.FORM, "a", 1, code=3)


class Set(harness.CommandTest):
    def test_in_place_changes_one_text_and_nothing_else(self):
        self.harvested()
        before = self.kobtrad("show", "app.trad", "--lang", 2).out
        done = self.kobtrad("set", "app.trad", ACCEPT, 2, "&Accept", "--name", "Caption", "--in-place")
        self.assertEqual((done.out, done.err), ("", ""))
        after = self.kobtrad("show", "app.trad", "--lang", 2).out
        changed = [(old, new) for old, new in zip(before.splitlines(), after.splitlines()) if old != new]
        self.assertEqual(changed, [("│                2  –", "│                2  &Accept")])

    def test_o_leaves_the_file_as_it_is(self):
        self.harvested()
        before = self.sum("app.trad")
        self.kobtrad("set", "app.trad", ACCEPT, 2, "Accept", "--name", "Caption", "-o", "new.trad")
        self.assertEqual(self.sum("app.trad"), before)
        self.assertEqual(self.kobtrad("get", "new.trad", ACCEPT, 2, "--name", "Caption").out, "Accept\n")

    def test_without_a_target_nothing_is_changed(self):
        self.harvested()
        before = self.sum("app.trad")
        done = self.kobtrad("set", "app.trad", ACCEPT, 2, "Accept", "--name", "Caption", code=2)
        self.assertIn("-o FILE or --in-place", done.err)
        self.assertEqual(self.sum("app.trad"), before)
        self.assertEqual(self.names(), ["app.trad"])

    def test_two_targets_are_refused(self):
        self.harvested()
        self.kobtrad("set", "app.trad", ACCEPT, 2, "x", "--name", "Caption", "--in-place", "-o", "new.trad", code=2)
        self.assertEqual(self.names(), ["app.trad"])

    def test_what_is_wrong_leaves_the_file_untouched(self):
        self.harvested()
        before = self.sum("app.trad")
        self.kobtrad("set", "app.trad", "Commande\\Rien", 2, "x", "--in-place", code=2)
        self.kobtrad("set", "app.trad", ACCEPT, 2, "x", "--in-place", code=2)
        self.kobtrad("set", "app.trad", ACCEPT, 7, "x", "--name", "Caption", "--in-place", code=2)
        self.kobtrad("set", "app.trad", "Commande\\TxtNom", 2, "x", "--name", "Caption", "--in-place", code=2)
        self.assertEqual(self.sum("app.trad"), before)

    def test_texts_that_look_like_arguments_are_texts(self):
        self.harvested()
        cancel = "Commande\\BtnAnnuler"
        for text in ("show", "", "%1", "[a,b]", "x=y", "a\nb", "\"'\\", "é€😀", "{}", "#", "  x "):
            self.kobtrad("set", "app.trad", cancel, 2, text, "--in-place")
            self.assertEqual(self.kobtrad("get", "app.trad", cancel, 2).out, text + "\n")
        self.kobtrad("set", "--in-place", "app.trad", "--", cancel, 2, "--in-place")
        self.assertEqual(self.kobtrad("get", "app.trad", cancel, 2).out, "--in-place\n")

    def test_a_text_that_is_no_utf8_is_refused(self):
        self.harvested()
        before = self.sum("app.trad")
        self.kobtrad("set", "app.trad", ACCEPT, 2, os.fsdecode(b"\xff"), "--name", "Caption", "--in-place", code=2)
        self.assertEqual(self.sum("app.trad"), before)

    def test_the_reference_text_can_be_changed(self):
        self.harvested()
        self.kobtrad("set", "app.trad", "Commande\\BtnAnnuler", 1, "&Fermer", "--in-place")
        self.assertEqual(self.kobtrad("get", "app.trad", "Commande\\BtnAnnuler", 1).out, "&Fermer\n")

    def test_a_target_that_cannot_be_written_ends_with_4(self):
        self.harvested()
        done = self.kobtrad("set", "app.trad", "Commande\\BtnAnnuler", 2, "x", "-o", "none/new.trad", code=4)
        self.assertIn("none/new.trad cannot be written", done.err)
        self.file("folder").mkdir()
        self.kobtrad("set", "app.trad", "Commande\\BtnAnnuler", 2, "x", "-o", "folder", code=4)
        self.assertEqual(self.names(), ["app.trad", "folder"])


class Languages(harness.CommandTest):
    def test_tells_the_number(self):
        self.harvested()
        self.assertEqual(self.kobtrad("languages", "app.trad").out, "6\n")

    def test_grows(self):
        self.harvested()
        self.kobtrad("languages", "app.trad", 9, "-o", "new.trad")
        self.assertEqual(self.kobtrad("languages", "new.trad").out, "9\n")
        self.kobtrad("set", "new.trad", "Commande\\BtnAnnuler", 9, "x", "--in-place")
        self.assertEqual(self.kobtrad("get", "new.trad", "Commande\\BtnAnnuler", 9).out, "x\n")
        self.kobtrad("check", "new.trad")
        self.assertEqual(self.kobtrad("languages", "app.trad").out, "6\n")

    def test_never_shrinks(self):
        self.harvested()
        before = self.sum("app.trad")
        done = self.kobtrad("languages", "app.trad", 5, "--in-place", code=2)
        self.assertIn("only grows", done.err)
        self.assertEqual(self.sum("app.trad"), before)

    def test_the_number_that_it_has_changes_nothing(self):
        self.settled()
        before = self.sum("app.trad")
        self.kobtrad("languages", "app.trad", 6, "--in-place")
        self.assertEqual(self.sum("app.trad"), before)

    def test_growing_needs_a_target(self):
        self.harvested()
        self.kobtrad("languages", "app.trad", 9, code=2)
        self.kobtrad("languages", "app.trad", "--in-place", code=2)

    def test_refuses_a_number_that_makes_no_sense(self):
        self.harvested()
        for number in (0, 1001, "x", 99999999999):
            self.kobtrad("languages", "app.trad", number, "--in-place", code=2)

    def test_a_file_of_fewer_languages_than_a_new_one_keeps_its_number(self):
        # A new model has six; the file decides.
        self.harvested()
        self.kobtrad("languages", "app.trad", 8, "--in-place")
        self.kobtrad("harvest", harness.FORM, "-o", "app.trad")
        self.assertEqual(self.kobtrad("languages", "app.trad").out, "8\n")


class Stats(harness.CommandTest):
    def test_prints_a_table(self):
        self.harvested()
        self.kobtrad("set", "app.trad", "Commande", 2, "Order", "--in-place")
        lines = self.kobtrad("stats", "app.trad").out.splitlines()
        self.assertEqual(lines[0], "app.trad: 10 texts in 8 cells, 6 languages")
        self.assertEqual(lines[3], "       1          10         0   100.0 %  the texts of the forms")
        self.assertEqual(lines[4], "       2           1         9    10.0 %  ██░░░░░░░░░░░░░░░░░░")
        self.assertEqual(len(lines), 9)

    def test_prints_json(self):
        self.harvested("a\"b\\é.trad")
        self.kobtrad("set", "a\"b\\é.trad", "Commande", 2, "Order", "--in-place")
        self.kobtrad("test-language", "a\"b\\é.trad", 3, "--in-place")
        read = json.loads(self.kobtrad("stats", "a\"b\\é.trad", "--json").out)
        self.assertEqual({name: read[name] for name in ("file", "texts", "cells")},
                         {"file": "a\"b\\é.trad", "texts": 10, "cells": 8})
        self.assertEqual(read["languages"][0], {"language": 1, "translated": 10, "missing": 0, "test": 0,
                                                "percent": 100.0})
        self.assertEqual(read["languages"][1], {"language": 2, "translated": 1, "missing": 9, "test": 0,
                                                "percent": 10.0})
        self.assertEqual(read["languages"][2]["test"], 10)
        self.assertEqual(len(read["languages"]), 6)


class FillLanguages(harness.CommandTest):
    def test_a_test_language_marks_every_text(self):
        self.harvested()
        before = self.sum("app.trad")
        self.kobtrad("test-language", "app.trad", 2, "-o", "new.trad")
        self.assertEqual(self.kobtrad("get", "new.trad", "Commande", 2).out, "** Commande **\n")
        self.assertEqual(self.sum("app.trad"), before)

    def test_a_cleared_language_is_empty(self):
        self.settled()
        before = self.sum("app.trad")
        self.kobtrad("test-language", "app.trad", 2, "--in-place")
        self.assertNotEqual(self.sum("app.trad"), before)
        self.kobtrad("clear-language", "app.trad", 2, "--in-place")
        self.assertEqual(self.sum("app.trad"), before)

    def test_the_language_of_the_forms_and_one_that_is_not_there_are_refused(self):
        self.harvested()
        before = self.sum("app.trad")
        for verb in ("test-language", "clear-language"):
            for number in (1, 0, 7):
                done = self.kobtrad(verb, "app.trad", number, "--in-place", code=2)
                self.assertIn("one of 2 to 6", done.err)
            self.kobtrad(verb, "app.trad", 2, code=2)
        self.assertEqual(self.sum("app.trad"), before)


CANCEL = "Commande\\BtnAnnuler"


class Merge(harness.CommandTest):
    def pair(self):
        """app.trad without translations, and anna.trad, where one control is translated into two languages."""
        self.settled()
        self.kobtrad("set", "app.trad", CANCEL, 2, "&Cancel", "-o", "anna.trad")
        self.kobtrad("set", "anna.trad", CANCEL, 3, "&Annuleren", "--in-place")

    def test_fills_what_is_missing_and_tells_how_much(self):
        self.pair()
        done = self.kobtrad("merge", "app.trad", "anna.trad", "--in-place")
        self.assertEqual(done.out, """\
language    filled   missing
       2         1         9
       3         1         9
       4         0        10
       5         0        10
       6         0        10
""")
        self.assertEqual(self.kobtrad("get", "app.trad", CANCEL, 3).out, "&Annuleren\n")

    def test_never_overwrites(self):
        self.pair()
        self.kobtrad("set", "app.trad", CANCEL, 2, "Stop", "--in-place")
        self.kobtrad("merge", "app.trad", "anna.trad", "--in-place")
        self.assertEqual(self.kobtrad("get", "app.trad", CANCEL, 2).out, "Stop\n")

    def test_of_several_files_the_first_that_has_a_text_gives_it(self):
        self.pair()
        self.kobtrad("set", "app.trad", CANCEL, 2, "Abort", "-o", "jan.trad")
        self.kobtrad("merge", "app.trad", "jan.trad", "anna.trad", "--in-place")
        self.assertEqual(self.kobtrad("get", "app.trad", CANCEL, 2).out, "Abort\n")
        self.assertEqual(self.kobtrad("get", "app.trad", CANCEL, 3).out, "&Annuleren\n")

    def test_takes_one_language_when_asked(self):
        self.pair()
        self.kobtrad("merge", "app.trad", "anna.trad", "--lang", 3, "--in-place")
        self.assertEqual(self.kobtrad("get", "app.trad", CANCEL, 2).out, "\n")
        self.assertEqual(self.kobtrad("get", "app.trad", CANCEL, 3).out, "&Annuleren\n")

    def test_fills_language_1_only_when_asked(self):
        self.pair()
        self.kobtrad("set", "app.trad", CANCEL, 1, "", "--in-place")
        self.assertNotIn("\n       1 ", self.kobtrad("merge", "app.trad", "anna.trad", "-o", "new.trad").out)
        self.assertEqual(self.kobtrad("get", "new.trad", CANCEL, 1).out, "\n")
        self.assertIn("       1         1         0\n",
                      self.kobtrad("merge", "app.trad", "anna.trad", "--lang", 1, "-o", "new.trad").out)
        self.assertEqual(self.kobtrad("get", "new.trad", CANCEL, 1).out, "&Annuler\n")

    def test_completes_identical_texts_too(self):
        self.pair()
        self.kobtrad("set", "app.trad", "Commande", 1, "&ANNULER", "--in-place")
        self.kobtrad("merge", "app.trad", "anna.trad", "--in-place")
        self.assertEqual(self.kobtrad("get", "app.trad", "Commande", 2).out, "&Cancel\n")

    def test_a_dry_run_tells_the_same_and_writes_nothing(self):
        self.pair()
        before = self.sum("app.trad")
        told = self.kobtrad("merge", "app.trad", "anna.trad", "--dry-run").out
        self.assertEqual(self.sum("app.trad"), before)
        self.assertEqual(self.names(), ["anna.trad", "app.trad"])
        self.assertEqual(self.kobtrad("merge", "app.trad", "anna.trad", "--in-place").out, told)

    def test_a_dry_run_does_not_write_the_output_either(self):
        self.pair()
        self.kobtrad("merge", "app.trad", "anna.trad", "-o", "new.trad", "--dry-run")
        self.assertEqual(self.names(), ["anna.trad", "app.trad"])

    def test_without_a_target_nothing_is_changed(self):
        self.pair()
        before = self.sum("app.trad")
        done = self.kobtrad("merge", "app.trad", "anna.trad", code=2)
        self.assertIn("-o FILE or --in-place", done.err)
        self.assertEqual(self.sum("app.trad"), before)

    def test_the_other_file_stays_as_it_is(self):
        self.pair()
        before = self.sum("anna.trad")
        self.kobtrad("merge", "app.trad", "anna.trad", "--in-place")
        self.assertEqual(self.sum("anna.trad"), before)

    def test_a_file_with_fewer_languages_gives_what_it_has(self):
        self.pair()
        self.kobtrad("languages", "app.trad", 8, "--in-place")
        done = self.kobtrad("merge", "app.trad", "anna.trad", "--in-place")
        self.assertEqual(done.err, "")
        self.assertEqual(self.kobtrad("get", "app.trad", CANCEL, 2).out, "&Cancel\n")
        self.assertEqual(self.kobtrad("languages", "app.trad").out, "8\n")

    def test_a_file_with_more_languages_gives_those_that_there_are(self):
        self.pair()
        self.kobtrad("languages", "anna.trad", 8, "--in-place")
        done = self.kobtrad("merge", "app.trad", "anna.trad", "--in-place")
        self.assertIn("anna.trad has 8 languages; those beyond 6 are left out", done.err)
        self.assertEqual(self.kobtrad("get", "app.trad", CANCEL, 2).out, "&Cancel\n")
        self.assertEqual(self.kobtrad("languages", "app.trad").out, "6\n")

    def test_a_language_that_is_not_there_is_refused(self):
        self.pair()
        before = self.sum("app.trad")
        for number in (0, 7):
            done = self.kobtrad("merge", "app.trad", "anna.trad", "--lang", number, "--in-place", code=2)
            self.assertIn("one of 1 to 6", done.err)
        self.assertEqual(self.sum("app.trad"), before)

    def test_a_file_that_cannot_be_read_changes_nothing(self):
        self.pair()
        before = self.sum("app.trad")
        done = self.kobtrad("merge", "app.trad", "anna.trad", "none.trad", "--in-place", code=3)
        self.assertIn("none.trad cannot be read", done.err)
        self.assertEqual(self.sum("app.trad"), before)

    def test_a_target_that_cannot_be_written_ends_with_4(self):
        self.pair()
        self.kobtrad("merge", "app.trad", "anna.trad", "-o", "none/new.trad", code=4)

    def test_needs_another_file(self):
        self.settled()
        self.kobtrad("merge", "app.trad", "--in-place", code=2)


class Complete(harness.CommandTest):
    def twins(self):
        """A file where two texts differ in letter case alone and one of them is translated."""
        self.settled()
        self.kobtrad("set", "app.trad", "Commande", 1, "&ANNULER", "--in-place")
        self.kobtrad("set", "app.trad", CANCEL, 2, "&Cancel", "--in-place")

    def test_fills_from_identical_texts_and_tells_how_much(self):
        self.twins()
        done = self.kobtrad("complete", "app.trad", "--in-place")
        self.assertEqual(done.out, """\
language    filled   missing
       2         1         8
       3         0        10
       4         0        10
       5         0        10
       6         0        10
""")
        self.assertEqual(self.kobtrad("get", "app.trad", "Commande", 2).out, "&Cancel\n")

    def test_a_dry_run_tells_the_same_and_writes_nothing(self):
        self.twins()
        before = self.sum("app.trad")
        told = self.kobtrad("complete", "app.trad", "--dry-run").out
        self.assertEqual(self.sum("app.trad"), before)
        self.assertEqual(self.kobtrad("complete", "app.trad", "-o", "new.trad").out, told)
        self.assertEqual(self.sum("app.trad"), before)

    def test_without_a_target_nothing_is_changed(self):
        self.twins()
        self.kobtrad("complete", "app.trad", code=2)

    def test_a_file_that_cannot_be_read_ends_with_3(self):
        self.kobtrad("complete", "none.trad", "--in-place", code=3)


class Show(harness.CommandTest):
    def test_prints_the_tree(self):
        self.harvested()
        self.assertEqual(self.kobtrad("show", "app.trad", "--path", "commande\\grpclient", "--lang", 2).out, """\
GrpClient
│   Caption  1  Client
│            2  –
├── LblNom
│       Caption  1  Nom :
│                2  –
├── LblVille
│       Caption  1  Ville :
│                2  –
└── TxtNom
        ToolTip  1  Le nom qui figure sur la facture
                 2  –
""")

    def test_several_languages_are_shown_below_each_other(self):
        self.harvested()
        done = self.kobtrad("show", "app.trad", "--lang", 3, "--lang", 2, "--path", "Commande\\BtnAnnuler")
        self.assertEqual(done.out, """\
BtnAnnuler
    Caption  1  &Annuler
             3  –
             2  –
""")

    def test_what_is_missing(self):
        self.harvested()
        self.kobtrad("test-language", "app.trad", 2, "--in-place")
        self.assertEqual(self.kobtrad("show", "app.trad", "--lang", 2, "--missing").out, "")
        self.kobtrad("set", "app.trad", "Commande\\GrpClient\\LblNom", 2, "", "--in-place")
        self.assertEqual(self.kobtrad("show", "app.trad", "--lang", 2, "--missing").out, """\
Commande
└── GrpClient
    └── LblNom
            Caption  1  Nom :
                     2  –
""")

    def test_an_unknown_path_or_language_is_refused(self):
        self.harvested()
        self.assertIn("no cell at path", self.kobtrad("show", "app.trad", "--path", "Rien", code=2).err)
        self.kobtrad("show", "app.trad", "--lang", 7, code=2)


class Check(harness.CommandTest):
    def test_a_good_file_is_fine(self):
        self.harvested()
        self.assertEqual(self.kobtrad("check", "app.trad").out, "app.trad: fine, 10 texts in 8 cells, 6 languages\n")
        self.assertEqual(self.kobtrad("check", "--quiet", "app.trad").out, "")

    def test_a_finding_is_printed_with_its_place(self):
        self.harvested()
        self.kobtrad("set", "app.trad", "Commande\\BtnAnnuler", 2, "x", "--in-place")
        self.kobtrad("set", "app.trad", "Commande\\BtnAnnuler", 1, "", "--in-place")
        done = self.kobtrad("check", "app.trad", code=1)
        self.assertEqual(done.out, "app.trad: Commande\\BtnAnnuler: Caption has a text in language 2 and none in "
                                   "language 1\n")

    def test_every_cut_and_every_changed_byte_is_found(self):
        self.harvested()
        good = self.bytes("app.trad")
        # Each run takes its time, so not every place; the reader's own tests try them all.
        for place in range(0, len(good), 61):
            self.file("bad.trad").write_bytes(good[:place])
            done = self.kobtrad("check", "bad.trad", code=3)
            self.assertIn("bad.trad cannot be read: ", done.out)
            changed = bytearray(good)
            changed[place] ^= 0x10
            self.file("bad.trad").write_bytes(changed)
            self.kobtrad("check", "bad.trad", code=3)

    def test_the_worst_file_decides_and_all_are_looked_at(self):
        self.harvested()
        self.file("bad.trad").write_bytes(self.bytes("app.trad")[:100])
        done = self.kobtrad("check", "bad.trad", "none.trad", "app.trad", code=3)
        self.assertEqual(len(done.out.splitlines()), 3)

    def test_no_verb_takes_a_damaged_file(self):
        self.harvested()
        self.file("bad.trad").write_bytes(self.bytes("app.trad")[:100])
        before = self.sum("bad.trad")
        for call in (["show", "bad.trad"], ["get", "bad.trad", "a", 1], ["stats", "bad.trad"],
                     ["languages", "bad.trad"], ["languages", "bad.trad", 9, "--in-place"],
                     ["set", "bad.trad", "a", 1, "x", "--in-place"], ["test-language", "bad.trad", 2, "--in-place"],
                     ["clear-language", "bad.trad", 2, "--in-place"],
                     ["apply", harness.FORM, "bad.trad", "--lang", 2, "--png", "x.png"],
                     ["harvest", harness.FORM, "-o", "bad.trad"]):
            done = self.kobtrad(*call, code=3)
            self.assertEqual(done.out, "")
            self.assertIn("bad.trad cannot be read", done.err)
        self.assertEqual(self.sum("bad.trad"), before)
        self.assertEqual(self.names(), ["app.trad", "bad.trad"])


class Calls(harness.CommandTest):
    def test_an_unknown_verb_is_answered_with_the_nearest(self):
        self.assertIn("did you mean \"show\"", self.kobtrad("shwo", code=2).err)
        self.assertIn("see kobtrad --help", self.kobtrad("frobnicate", code=2).err)

    def test_no_verb_and_unknown_options_are_refused(self):
        self.kobtrad(code=2)
        self.kobtrad("--nonsense", code=2)
        self.kobtrad("stats", "--nonsense", "x", code=2)
        self.kobtrad("stats", code=2)
        self.kobtrad("stats", "a", "b", code=2)

    def test_tells_its_version(self):
        self.assertRegex(self.kobtrad("--version").out, r"^\d+\.\d+\.\d+\n$")

    def test_output_that_cannot_be_written_ends_with_4(self):
        self.harvested()
        with open("/dev/full", "w", encoding="utf-8") as full:
            done = harness.subprocess.run([harness.command(), "show", "app.trad"], cwd=self.folder, stdout=full,
                                          stderr=harness.subprocess.PIPE, check=False)
        self.assertEqual(done.returncode, 4)


if __name__ == "__main__":
    harness.main()
