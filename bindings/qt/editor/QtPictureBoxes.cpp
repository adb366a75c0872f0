// SPDX-FileCopyrightText: The KOBTraduction authors
#include "QtPictureBoxes.h"

namespace kob::qt {

void QtPaneArea::listen(QObject& reports) {
  QObject::connect(&control(), &PaneSplitter::pointerMoved, &reports,
                   [this](double x, bool leftOnly) { personMovedMouse(x * unitsPerPixel, leftOnly); });
  QObject::connect(&control(), &PaneSplitter::lostFocus, &reports, [this] { personLeft(); });
}

void QtPane::listen(QObject& reports) {
  QObject::connect(&control(), &Pane::pointerMoved, &reports,
                   [this](double x) { personMovedMouse(x * unitsPerPixel, false); });
}

}  // namespace kob::qt
