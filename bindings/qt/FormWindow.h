// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

class QWidget;

namespace kob::qt {

/// Whether a widget is a window that the application made as a form: a main window, a dialog, a tool window.
/// Not one: pop-ups, menus (torn off too), tool tips, what floats and still is a part of another form (dock
/// widgets, tool bars), windows that the toolkit makes for itself, and the component's own message boxes.
bool isFormWindow(const QWidget& widget);

}  // namespace kob::qt
