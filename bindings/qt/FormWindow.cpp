// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FormWindow.h"

#include "ClassTraits.h"
#include "OwnMessageBox.h"

#include <QVariant>
#include <QWidget>

namespace kob::qt {

namespace {

bool isFormType(Qt::WindowType type) {
  switch (type) {
    case Qt::Window:
    case Qt::Dialog:
    case Qt::Sheet:
    case Qt::Drawer:
    case Qt::Tool:
    case Qt::SplashScreen:
      return true;
    default:
      return false;
  }
}

}  // namespace

bool isFormWindow(const QWidget& widget) {
  if (!widget.isWindow() || !isFormType(widget.windowType()) ||
      widget.property(ownMessageBoxProperty).toBool()) {
    return false;
  }
  const QString name = widget.objectName();
  if (name.startsWith(QLatin1String("qt_")) || name.startsWith(QLatin1String("_q_"))) {
    return false;
  }
  const bool isPartOfOther = widget.parentWidget() != nullptr && traitsOf(*widget.metaObject()).ownedPart;
  return !isPartOfOther;
}

}  // namespace kob::qt
