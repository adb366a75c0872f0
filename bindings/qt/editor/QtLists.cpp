// SPDX-FileCopyrightText: The KOBTraduction authors
#include "QtLists.h"

namespace kob::qt {

void QtTreeView::listen(QObject& reports) {
  QObject::connect(&control(), &NodeTree::nodeReached, &reports, [this](int node) { personClicked(node); });
  QObject::connect(&control(), &NodeTree::pointerMoved, &reports, [this] { personMovedMouse(); });
}

void QtTreeView::setWidth(double width) {
  if (auto* const area = qobject_cast<PaneSplitter*>(control().parentWidget())) {
    area->setLeftWidth(qRound(width / unitsPerPixel));
  }
}

void QtTreeView::showFilling(bool filling) {
  if (filling) {
    control().beginFill();
  } else {
    control().endFill();
  }
}

void QtListBox::listen(QObject& reports) {
  control().lines().setSource([this] { return count(); }, [this](int row) { return toQString(line(row)); });
  QObject::connect(&control(), &LineList::lineReached, &reports, [this](int row) { personClicked(row); });
}

void QtComboBox::listen(QObject& reports) {
  QObject::connect(&control(), &QComboBox::activated, &reports, [this](int index) { personChose(index); });
}

void QtComboBox::showAdded(TextView line) {
  control().addItem(toQString(line));
  // The toolkit chooses the first line by itself.
  control().setCurrentIndex(listIndex());
}

}  // namespace kob::qt
