// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/engine/Value.h>

class QWidget;

namespace kob::qt {

/// Whether something else decides where the widget stands: a layout, a splitter, a scroll area that sizes its
/// contents. What is written to such a widget would flicker and be lost.
bool isPlaced(const QWidget& widget);

/// Pixels, as whole numbers; refused on a placed widget.
bool setLeft(QWidget& widget, const Value& value);
bool setWidth(QWidget& widget, const Value& value);

/// The widget's own flag: not hidden itself, whatever its parents are. A page that its container shows one at
/// a time is not hidden by that.
bool isVisibleItself(const QWidget& widget);

}  // namespace kob::qt
