# SPDX-FileCopyrightText: The KOBTraduction authors
"""Form files of classic automation hosts, read for what must become of their texts: README.md has the rules.

kobfrm reads the same files by itself, in another language; nothing is shared between the two, so that one's mistake
is not the other's.
"""

import re

WITH_CAPTION = {"VB.Label", "VB.CommandButton", "VB.CheckBox", "VB.OptionButton", "VB.Frame", "VB.Menu"}
RESOURCE = re.compile(r'^\$?"[^"]*":[0-9A-Fa-f]+')


class Block:
    """What stands between Begin and End, or BeginProperty and EndProperty."""

    def __init__(self, kind, name, parent=None):
        self.kind = kind
        self.name = name
        self.parent = parent
        self.values = {}
        self.properties = []
        self.blocks = []

    def property(self, name):
        return next((one for one in self.properties if one.name.lower() == name.lower()), None)


def value_of(text):
    """A text, a number, or None for what is kept elsewhere."""
    if RESOURCE.match(text):
        return ("resource",) if text.startswith("$") else None
    if text.startswith('"'):
        return re.match(r'"((?:[^"]|"")*)"?', text).group(1).replace('""', '"')
    number = re.match(r"-?\d+(\.\d+)?", text)
    if number:
        return float(number.group()) if "." in number.group() else int(number.group())
    return None


def decode(data):
    """Windows-1252, its five holes as the control characters of their numbers."""
    return "".join(chr(byte) if byte in (0x81, 0x8D, 0x8F, 0x90, 0x9D) else bytes((byte,)).decode("cp1252")
                   for byte in data)


def parse(data):
    """The form's block."""
    top = current = None
    for line in re.split("\r\n|\n|\r", decode(data)):
        line = line.strip()
        begin = re.match(r"Begin (\S+)\s*(\S*)$", line)
        if begin:
            block = Block(begin.group(1), begin.group(2), current)
            if current is not None:
                current.blocks.append(block)
            current = block
            top = top or block
        elif current is None:
            continue
        elif line == "End":
            if current is top:
                return top
            current = current.parent
        elif line.startswith("BeginProperty "):
            block = Block("", line.split()[1], current)
            current.properties.append(block)
            current = block
        elif line == "EndProperty":
            current = current.parent
        else:
            key, _, value = line.partition("=")
            current.values[key.strip().lower()] = value_of(value.strip())
    raise ValueError("the form does not end")


class Thing:
    """A live object: its members by their names in small letters."""

    def __init__(self, **members):
        self.members = members

    def get(self, name):
        return self.members.get(name)


class LiveForm:
    """The live form that a file describes: `form`, its `controls` in order, and `all` that has texts."""

    def __init__(self, data, resources):
        block = parse(data)
        self.resources = resources
        values = block.values
        self.form = Thing(name=block.name, caption=self.text(block, "caption") or "", tag=values.get("tag") or "",
                          left=values.get("clientleft", 0), width=values.get("clientwidth", 0), tooltiptext="")
        self.controls = []
        self.all = [self.form]
        self.add_blocks(block, self.form)

    def text(self, block, key):
        value = block.values.get(key)
        if value == ("resource",):
            path = []
            step = block
            while step is not None:
                path.insert(0, step.name)
                step = step.parent
            return self.resources.get("/".join(path))
        return None if value is None else str(value)

    def add_blocks(self, above, container):
        for block in above.blocks:
            control = self.control(block, container)
            self.controls.append(control)
            self.all.append(control)
            self.add_buttons(block, control)
            self.add_blocks(block, control)

    def control(self, block, container):
        values = block.values
        control = Thing(name=block.name, tag=values.get("tag") or "")
        members = control.members
        if "index" in values:
            members["index"] = values["index"]
        for key in ("left", "width"):
            if key in values:
                members[key] = values[key]
        tip = self.text(block, "tooltiptext")
        if tip is not None or "left" in members or "width" in members:
            members["tooltiptext"] = tip or ""
        caption = self.text(block, "caption")
        if caption is not None or block.kind in WITH_CAPTION:
            members["caption"] = caption or ""
        if block.kind == "VB.Menu":
            members["parent"] = self.form
        else:
            members["container"] = container
        if block.kind == "TabDlg.SSTab":
            members.pop("caption", None)
            members.pop("tooltiptext", None)
            count = values.get("tabs", 3)
            members["tabtitles"] = [self.tab_title(values, i) for i in range(count)]
            members["tabtips"] = [tip or ""] * count
            members["tab"] = values.get("tab", 0)
        return control

    @staticmethod
    def tab_title(values, i):
        title = values.get(f"tabcaption({i})")
        return f"Tab {i}" if title is None else str(title)

    def add_buttons(self, block, toolbar):
        buttons = block.property("Buttons")
        if buttons is not None:
            toolbar.members["buttons"] = []
        for one in buttons.properties if buttons else []:
            button = Thing(key=one.values.get("key") or "", caption=one.values.get("caption") or "",
                           tooltiptext=self.button_tip(one), menus=[])
            toolbar.members["buttons"].append(button)
            self.all.append(button)
            menus = one.property("ButtonMenus")
            for entry in menus.properties if menus else []:
                menu = Thing(key=entry.values.get("key") or "", caption=entry.values.get("text") or "",
                             tooltiptext="")
                button.members["menus"].append(menu)
                self.all.append(menu)
        # The tabs of a tab strip are objects: no number, and not looked at.
        pages = block.property("Tabs")
        for one in pages.properties if pages else []:
            self.all.append(Thing(key=one.values.get("key") or "", caption=one.values.get("caption") or "",
                                  tooltiptext=""))

    @staticmethod
    def button_tip(one):
        return one.values.get("object.tooltiptext") or one.values.get("tooltiptext") or ""
