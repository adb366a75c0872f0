# SPDX-FileCopyrightText: The KOBTraduction authors
"""The translations that applications published beside their forms: texts of other languages for a harvested model."""

import json
import re
from xml.sax.saxutils import unescape


def cells(cell, path=()):
    """Every cell below one, with its path; a name that holds a separator cannot be said in a path."""
    for child in cell.children or []:
        if "\\" not in child.name:
            yield path + (child.name,), child
            yield from cells(child, path + (child.name,))


class Phrases:
    """lang/*.xml: a text is translated wherever it stands."""

    CODES = ("fr", "de", "es", "it", "nl")
    # Not every one of these files is well-formed.
    PHRASE = re.compile(r"<original>(.*?)</original>\s*<translation>(.*?)</translation>", re.DOTALL)

    def __init__(self, folder):
        self.tables = {}
        for number, code in enumerate(self.CODES, 2):
            text = (folder / f"{code}.xml").read_text(encoding="utf-8-sig")
            self.tables[number] = {unescape(one.group(1)): unescape(one.group(2)) for one in self.PHRASE.finditer(text)}

    def texts(self, root):
        for path, cell in cells(root):
            for name, texts in cell.entries or []:
                for language, table in self.tables.items():
                    if table.get(texts[0]):
                        yield "\\".join(path), name, language, table[texts[0]]


class Assignments:
    """lang/*.json: the texts that the application assigns, by form, control, index and property."""

    CODES = ("en", "de", "es")
    ENTRIES = {"Caption": "Caption", "ToolTipText": "ToolTip"}

    def __init__(self, folder):
        self.texts_by_name = {}
        for number, code in enumerate(self.CODES, 2):
            for one in json.loads((folder / f"{code}.json").read_text(encoding="utf-8")):
                if one["property"] in self.ENTRIES and one["text"]:
                    name = one["control"] if one["index"] is None else f"{one['control']}({one['index']})"
                    key = (one["form"], one["control"] and name, self.ENTRIES[one["property"]])
                    self.texts_by_name.setdefault(key, {})[number] = one["text"]

    def texts(self, root):
        for path, cell in cells(root):
            for name, _ in cell.entries or []:
                key = (path[0], path[-1] if len(path) > 1 else None, name)
                for language, text in self.texts_by_name.get(key, {}).items():
                    yield "\\".join(path), name, language, text


def published(application):
    """The translations in an application's folder; None when it has none that are known."""
    folder = application / "lang"
    if (folder / "fr.xml").exists():
        return Phrases(folder)
    if (folder / "en.json").exists():
        return Assignments(folder)
    return None
