// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "ClassTraits.h"

#include <QString>

#include <optional>

class QWidget;

namespace kob::qt {

/// The text that was designed on a widget of that kind, never what was typed into it; empty when the text
/// belongs to another object (the action that a button or a menu stands for).
std::optional<QString> widgetCaption(const QWidget& widget, Kind kind);
bool setWidgetCaption(QWidget& widget, Kind kind, const QString& caption);

/// As the caption: a button that stands for an action has no tool tip of its own.
std::optional<QString> widgetToolTip(const QWidget& widget, Kind kind);
bool setWidgetToolTip(QWidget& widget, Kind kind, const QString& toolTip);

}  // namespace kob::qt
