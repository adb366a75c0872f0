// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QMetaObject>

#include <cstdint>

class QAction;
class QString;
class QWidget;

namespace kob::qt {

struct ClassTraits;

// The closed list of what a form contains and nobody put there: the widgets and actions that toolkit widgets
// make for themselves. docs/qt-binding.md has the list for the programmer; both change together.

enum class Exposure : std::uint8_t {
  Control,  ///< the application's own
  Passed,   ///< internal, but widgets of the application may stand inside
  Closed,   ///< internal with all that is inside, or a form of its own
};

/// A widget and the place where the walk meets it.
struct WidgetPlace {
  QWidget* widget;
  const QString& name;  ///< its objectName
  const ClassTraits& traits;
  QWidget* parent;
  const ClassTraits& parentTraits;
  const ClassTraits& containerTraits;  ///< of the nearest exposed ancestor
};

Exposure exposureOf(const WidgetPlace& place);

bool isInternalAction(QAction* action);

bool isInternalClass(const QMetaObject& metaObject);
bool isDockGroupClass(const QMetaObject& metaObject);

}  // namespace kob::qt
