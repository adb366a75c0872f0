// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>
#include <kobtraduction/engine/HostObject.h>
#include <kobtraductionqt/Export.h>

#include <QString>

class QAction;
class QWidget;

/// Live Qt 6 Widgets forms as host objects. Used on the GUI thread only.
namespace kob::qt {

/// The host object of a live form (a window, or any widget taken as one) or of a control inside a form. A
/// null widget gives a null reference. The object does not own the widget: once the widget is deleted, it
/// answers "failed" to everything. A form shows the controls that it has at the time "Controls" is read.
KOB_QT_EXPORT HostRef hostForm(QWidget* form);
/// A control is seen as part of the form that holds it: of `form`, or when that is null of its own window.
/// What is no control of that form (an internal widget, a widget elsewhere) gives a null reference. Each call
/// walks the form; for many controls read the form's "Controls" once.
KOB_QT_EXPORT HostRef hostControl(QWidget* control, QWidget* form = nullptr);
KOB_QT_EXPORT HostRef hostControl(QAction* action, QWidget* form = nullptr);

/// Texts are UTF-16 on both sides: units are copied, nothing is transcoded.
KOB_QT_EXPORT Text toText(const QString& text);
KOB_QT_EXPORT QString toQString(TextView text);

}  // namespace kob::qt
