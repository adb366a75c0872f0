// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

namespace kob::qt {

class QtDialogWindow;

/// Where the widgets of a window stand, how it is walked through by keys, and what assistive tools call what
/// has no caption. Called once, when all widgets have been added.
void layOut(QtDialogWindow& window);

// One for each kind of window.
void layOutTraduction(QtDialogWindow& window);
void layOutAddNoeud(QtDialogWindow& window);
void layOutAddTrad(QtDialogWindow& window);
void layOutRecherche(QtDialogWindow& window);

}  // namespace kob::qt
