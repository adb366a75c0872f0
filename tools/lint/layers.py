# SPDX-FileCopyrightText: The KOBTraduction authors
"""layers: include lines follow the arrows of ARCHITECTURE.md.

  kobtraduction/ includes the standard library and itself, nothing else
  inside it, a room includes the floor (base/ and the interface headers) and the rooms below it
  the interface headers include only the floor
  kobpersistence/ includes the standard library, itself and kobtraduction/; of the operating system only in the files
  that are named after it (Posix*, Win32*)
  bindings/ include kobtraduction/ and the toolkit; apps/ may include both; nobody includes apps/
  an installed header includes no internal one, and outside its library only tests/, fuzz/ and bench/ do
  what is installed is meant to be: it exports something, or an installed header includes it
"""

import re
from pathlib import PurePosixPath

from tree import Outcome, ROOT, cpp_files, read

FLOOR = {"kobtraduction/engine/HostObject.h", "kobtraduction/engine/Value.h",
         "kobtraduction/component/MessageBoxes.h", "kobtraduction/component/Global_Util.h",
         "kobtraduction/persistence/FileManager.h", "kobtraduction/persistence/PersistStream.h",
         "kobtraduction/persistence/PersistValue.h"} | {
             f"kobtraduction/editor/{name}.h" for name in (
                 "Button", "CheckBox", "ComboBox", "DialogWindow", "Frame", "ImageList", "Label", "ListBox", "MenuItem",
                 "OptionButton", "PictureBox", "SaveFileDialog", "Slider", "TextBox", "TreeView", "Widget",
                 "WidgetSet")}
BELOW = {"base": {"base"},
         "model": {"base", "model"},
         "persistence": {"base", "model", "persistence"},
         "engine": {"base", "model", "engine"},
         "editor": {"base", "model", "persistence", "engine", "editor"},
         "component": {"base", "model", "persistence", "engine", "editor", "component"}}
SERVICE_MAY_INCLUDE = ("kobtraduction/", "kobpersistence/")
STANDARD = set("""algorithm any array atomic barrier bit bitset charconv chrono codecvt compare complex concepts
condition_variable coroutine deque exception execution filesystem format forward_list fstream functional future
initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory memory_resource mutex
new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator semaphore set shared_mutex
source_location span sstream stack stdexcept stop_token streambuf string string_view strstream syncstream system_error
thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant vector version
cassert cctype cerrno cfenv cfloat cinttypes climits clocale cmath csetjmp csignal cstdarg cstddef cstdint cstdio
cstdlib cstring ctime cuchar cwchar cwctype""".split())

INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]')


def includes(text):
    """Line number and name of every header that a text includes."""
    for number, line in enumerate(text.splitlines(), 1):
        found = INCLUDE.match(line)
        if found:
            yield number, found.group(1)


def internal_headers():
    lines = read("cmake/internal-headers.txt").splitlines()
    return {line.strip() for line in lines if line.strip() and not line.startswith("#")}


def complaint(path, header, internal):
    """Why the file may not include the header; none when it may."""
    here = PurePosixPath(path).parts
    if header.startswith("apps/") and here[0] not in ("apps", "tests"):
        return "apps/ is included by nobody else"
    if header in internal and here[0] not in (PurePosixPath(header).parts[0], "tests", "fuzz", "bench"):
        return f"{header} is internal to its library"
    if here[0] == "kobpersistence" and header not in STANDARD and not header.startswith(SERVICE_MAY_INCLUDE) \
            and not here[-1].startswith(("Posix", "Win32")):
        return f"kobpersistence/ needs the standard library and the component only, and {header} is of neither"
    if here[0] != "kobtraduction":
        return None
    if header in STANDARD:
        return None
    if not header.startswith("kobtraduction/"):
        return f"kobtraduction/ needs the standard library only, and {header} is not of it"
    room = PurePosixPath(header).parts[1]
    if path in FLOOR:
        return None if room == "base" or header in FLOOR else "an interface header includes only the floor"
    if header in internal and path.endswith(".h") and path not in internal:
        return f"{header} is not installed, and this header is"
    if header in FLOOR or room in BELOW.get(here[1], set()):
        return None
    return f"{here[1]}/ does not include {room}/"


def unmeant(texts, internal):
    """Installed headers of the component that export nothing and that no installed header includes."""
    installed = {path: text for path, text in texts.items()
                 if path.startswith("kobtraduction/") and path.endswith(".h") and path not in internal}
    included = {header for text in installed.values() for _, header in includes(text)}
    return sorted(path for path, text in installed.items() if "KOB_EXPORT" not in text and path not in included)


def findings_in(texts, internal):
    findings = [f"{path}:{line}: {why}" for path, text in texts.items() for line, header in includes(text)
                if (why := complaint(path, header, internal))]
    findings += [f"{path}:1: exports nothing, and no installed header includes it: name it in "
                 "cmake/internal-headers.txt" for path in unmeant(texts, internal)]
    return findings


def run():
    texts = {str(path): read(path) for path in cpp_files()}
    internal = internal_headers()
    gone = [f"cmake/internal-headers.txt: there is no {path}" for path in sorted(internal)
            if not (ROOT / path).is_file()]
    return Outcome(findings_in(texts, internal) + gone, len(texts))


def self_test():
    """One include line for each rule, that breaks it."""
    broken = {"kobtraduction/base/A.cpp": "#include <QString>",
              "kobtraduction/base/B.cpp": "#include <unistd.h>",
              "kobtraduction/model/C.cpp": "#include <kobtraduction/engine/Applying.h>",
              "kobtraduction/engine/HostObject.h": "#include <kobtraduction/model/CellList.h> // KOB_EXPORT",
              "kobtraduction/engine/D.h": "#include <kobtraduction/base/Hidden.h> // KOB_EXPORT",
              "bindings/qt/E.cpp": "#include <kobtraduction/base/Hidden.h>",
              "bindings/qt/F.cpp": '#include "apps/demo/Main.h"',
              "kobtraduction/persistence/G.cpp": "#include <kobpersistence/KOBPersistence.h>",
              "kobpersistence/H.cpp": "#include <unistd.h>",
              "kobpersistence/I.cpp": "#include <kobtraduction/base/Hidden.h>",
              "kobtraduction/base/Lonely.h": "#pragma once"}
    allowed = {"kobtraduction/model/G.cpp": "#include <vector>\n#include <kobtraduction/component/MessageBoxes.h>",
               "kobtraduction/engine/H.cpp": "#include <kobtraduction/model/CellList.h>",
               "kobpersistence/PosixK.cpp": "#include <unistd.h>",
               "bindings/qt/I.cpp": "#include <QWidget>\n#include <kobtraduction/engine/HostObject.h>",
               "apps/demo/J.cpp": "#include <kobtraductionqt/KOBTraductionQt.h>"}
    internal = {"kobtraduction/base/Hidden.h"}
    return all(len(findings_in({path: text}, internal)) == 1 for path, text in broken.items()) and \
        not findings_in(allowed, internal)
