# SPDX-FileCopyrightText: The KOBTraduction authors
"""What harvesting a form and applying a language must give: the rules, said once more from the outside.

Texts and cells are computed from the form file alone (formfile.py); no line of the component is asked.
"""

LANGUAGES = 6


def upper(text):
    """Letter by letter: a letter whose capital is no single letter stays."""
    return "".join(capital if len(capital := letter.upper()) == 1 else letter for letter in text)


class Cell:
    def __init__(self, name, parent):
        self.name = name
        self.parent = parent
        self.children = None  # a list for a node
        self.entries = None   # [name, [texts]] for a control
        self.left = self.width = 0

    def child(self, name):
        return next((one for one in self.children or [] if upper(one.name) == upper(name)), None)

    def insert(self, cell):
        place = next((i for i, one in enumerate(self.children) if upper(one.name) > upper(cell.name)),
                     len(self.children))
        self.children.insert(place, cell)

    def add_node(self, name):
        """None when the name is taken."""
        if self.children is None:
            self.children = []
        if self.child(name) is not None:
            return None
        cell = Cell(name, self)
        cell.children = []
        self.insert(cell)
        return cell

    def text(self, kind, language=1):
        """The first entry of a name; None when there is none."""
        for name, texts in self.entries or []:
            if upper(name) == kind:
                return texts[language - 1]
        return None

    def set_text(self, name, text):
        if not text:
            return
        for entry in self.entries:
            if upper(entry[0]) == upper(name):
                entry[1][0] = text
                return
        self.entries.append([name, [text] + [""] * (LANGUAGES - 1)])

    def hold(self, item):
        if self.entries is None:
            self.entries = []
        self.left, self.width = item["left"], item["width"]
        self.set_text("Caption", item["caption"])
        self.set_text("ToolTip", item["tip"])
        return self

    def described(self):
        return {"name": self.name, "node": self.children is not None, "left": self.left, "width": self.width,
                "entries": None if self.entries is None else
                           [[name, [text for text in texts]] for name, texts in self.entries],
                "cells": [one.described() for one in self.children or []]}


def add_control(parent, name, item, context):
    """A control's cell that is not there yet, or not as a control."""
    if parent.children is None:
        parent.children = []
    cell = parent.child(name)
    if cell is None:
        if context:
            node = parent.add_node(name)
            below = Cell(context, node).hold(item)
            node.children.append(below)
            return below
        cell = Cell(name, parent).hold(item)
        parent.insert(cell)
        return cell
    if not context:
        if cell.entries is not None:
            return None
        return cell.hold(item)
    if cell.children is None:
        cell.children = []
    if parent.child(context) is not None:
        return None
    below = Cell(context, cell).hold(item)
    cell.insert(below)
    return below


def question(what, old, item):
    lines = [what + " existe déja", "Voulez vous le modifier?", f"{old[0]}  ->  {item['caption']}",
             f"{old[1]}  ->  {item['tip']}"]
    return ["question", "\r\n".join(lines), "unanswered"]


def update_control(cell, item, context, messages):
    """A cell that is known already; every question is answered No."""
    target, what = cell, f"Le Controle {cell.name}"
    if context:
        if cell.children is None:
            cell.children = []
        target, what = cell.child(context), f"Le Contexte {context} du controle {cell.name}"
        if target is None:
            if cell.entries is not None and (cell.text("CAPTION") or "", cell.text("TOOLTIP") or "") == \
                    (item["caption"], item["tip"]):
                return None
            target = Cell(context, cell).hold(item)
            cell.insert(target)
            return target
    elif cell.entries is None:
        return cell.hold(item)
    old = (target.text("CAPTION") or "", target.text("TOOLTIP") or "")
    if old == (item["caption"], item["tip"]):
        return None
    if all(old):
        messages.append(question(what, old, item))
        return None
    return target.hold(item)


def named(name, index):
    return f"{name}({index})" if isinstance(index, int) and index >= 0 else name


def marker(tag):
    """The context, and which of the texts stays as it is."""
    if tag.endswith("[T]"):
        return tag[:-3], "caption"
    if tag.endswith("[C]"):
        return tag[:-3], "tip"
    return tag, ""


class Item:
    """One of the objects that a call gathers: a control, a button or a button's menu."""

    def __init__(self, thing, holders, is_record):
        self.thing = thing
        self.holders = holders  # the containers from the form on: what each is called, and with its index
        self.is_record = is_record
        self.bare = thing.get("key") if is_record else thing.get("name")
        self.name = self.bare if is_record else named(self.bare, thing.get("index"))
        self.tag = "" if is_record else thing.get("tag")

    def path(self):
        return "\\".join([name for _, name in self.holders] + [self.name])

    def chain(self, form):
        """The containers below the nearest one that bears the form's name."""
        nearest = max(i for i, (bare, _) in enumerate(self.holders) if bare == form)
        return [name for _, name in self.holders[nearest + 1:]]


def gathered(live):
    items = []
    form = live.form.get("name")
    for control in live.controls:
        holders = []
        step = control
        while step.get("container") is not None:
            step = step.get("container")
            holders.insert(0, (step.get("name"), named(step.get("name"), step.get("index"))))
        item = Item(control, holders or [(form, form)], False)
        items.append(item)
        for button in control.get("buttons") or []:
            record = Item(button, item.holders + [(item.bare, item.name)], True)
            items.append(record)
            for menu in button.get("menus"):
                items.append(Item(menu, record.holders + [(record.bare, record.name)], True))
    return items


def indicator(value):
    return 1 if value is not None and value > 0 else -1


def harvest(live):
    """The root of the model, and the messages that are shown."""
    root = Cell("RACINE", None)
    root.children = []
    messages = []
    form = live.form
    name = form.get("name")
    add_control(root, name, {"caption": form.get("caption"), "tip": "", "left": 0,
                             "width": indicator(form.get("width"))}, form.get("tag"))
    top = root.child(name)
    kept = {"caption": False, "tip": False}
    for item in gathered(live):
        thing = item.thing
        texts = {"caption": thing.get("caption") or "", "tip": thing.get("tooltiptext") or "",
                 "left": indicator(None if item.is_record else thing.get("left")),
                 "width": indicator(None if item.is_record else thing.get("width"))}
        titles = thing.get("tabtitles")
        if titles:
            current = min(thing.get("tab"), len(titles) - 1)
            texts.update(caption=titles[current], tip=thing.get("tabtips")[current])
        context, stays = marker(item.tag)
        if stays:
            texts[stays] = ""
            kept[stays] = True
        if upper(context) == "PAS TRADUIT" or not item.name or not (texts["caption"] or texts["tip"]):
            continue
        cell, created = top, False
        for one in item.chain(name):
            child = None if created else cell.child(one)
            created = created or child is None
            cell = cell.add_node(one) if created else child
        known = None if created else cell.child(item.name)
        if titles:
            error = harvest_tabs(cell, known, item, texts, context, kept, messages)
            if error:
                messages.append(["notice", f"ERREUR {error}"])
                return root, messages
        elif known is None:
            add_control(cell, item.name, texts, context)
        else:
            update_control(known, texts, context, messages)
    return root, messages


def harvest_tabs(cell, known, item, texts, context, kept, messages):
    """The marker of the step that failed, if one did."""
    adds = known is None or (context and known.child(context) is None)
    step = 451122 if known is None else 4512212 if adds else 4512222
    if known is None and context:
        known = cell.add_node(item.name)
    elif known is not None and context and not adds:
        known = known.child(context)
    for i, title in enumerate(item.thing.get("tabtitles")):
        texts = dict(texts, caption="" if kept["caption"] else title,
                     tip="" if kept["tip"] else item.thing.get("tabtips")[i])
        tab = f"{item.name}({i})"
        if not context and adds:
            add_control(cell, item.name, texts, tab)
        elif not context:
            update_control(known, texts, tab, messages)
        elif known is None:
            return step
        elif adds:
            known = add_control(known, context, texts, tab)
        else:
            known = update_control(known, texts, tab, messages)
    return None


def find(root, path):
    """A cell by its path; names that are empty do not count."""
    for name in path.split("\\"):
        root = root.child(name) if root is not None and name else root
    return root


class Unreadable(Exception):
    """A cell was asked for texts that it cannot have."""


def in_language(cell, kind, language):
    """The text of a language, that of language 1 where there is none; None without an entry."""
    if cell is None:
        return None
    if cell.entries is None:
        raise Unreadable
    found = None
    for name, texts in cell.entries:
        if upper(name) == kind:
            found = texts[language - 1] or texts[0]
    return found


def apply(live, root, language):
    """Writes a language onto the live form; the messages that are shown. Factors are those of a new model: nothing
    moves."""
    messages = []

    def write(thing, path, context, stays):
        cell = find(root, path)
        if cell is None:
            return
        try:
            write_texts(thing, cell, context, stays, language)
        except Unreadable:
            messages.append(["notice", "Erreur Traduit Controle"])

    context, _ = marker(live.form.get("tag"))
    if upper(live.form.get("tag")) != "PAS TRADUIT":
        write(live.form, live.form.get("name") + "\\" + context, "", "")
    for item in gathered(live):
        context, stays = marker(item.tag)
        if upper(context) != "PAS TRADUIT":
            write(item.thing, item.path(), context, stays)
    return messages


def write_texts(thing, cell, context, stays, language):
    sources = [one for one in (cell, cell.child(context) if context else None) if one is not None]
    titles = thing.get("tabtitles")
    if titles:
        new = [""] * len(titles)
        for source in sources:
            for i in range(len(titles)):
                text = in_language(source.child(f"{cell.name}({i})"), "CAPTION", language)
                new[i] = new[i] if text is None else text
        if stays != "caption":
            titles[:] = new
        return
    if cell.entries is None:
        return
    caption = tip = None
    for source in sources:
        text = in_language(source, "CAPTION", language)
        caption = caption if text is None else text
        text = in_language(source, "TOOLTIP", language)
        tip = tip if text is None else text
    for member, text, keep in (("caption", caption, "caption"), ("tooltiptext", tip, "tip")):
        if stays != keep and text is not None and member in thing.members:
            thing.members[member] = text


def described(live):
    """What a host sees of the form: an object a line, as kobfrm writes it."""
    lines = []
    for thing in live.all:
        name = thing.get("key")
        if name is None:
            name = named(thing.get("name"), thing.get("index"))
        titles = thing.get("tabtitles")
        lines.append([name, thing.get("caption"), thing.get("tooltiptext"), thing.get("tag"),
                      None if titles is None else list(titles)])
    return lines
