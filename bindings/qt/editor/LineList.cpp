// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LineList.h"

#include <QKeyEvent>
#include <QMetaObject>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include <utility>

namespace kob::qt {

namespace {

constexpr int designedWidth = 160;
constexpr int designedLines = 4;

}  // namespace

void LineModel::setSource(Count count, Line line) {
  count_ = std::move(count);
  line_ = std::move(line);
}

void LineModel::cleared() {
  beginResetModel();
  shown_ = 0;
  endResetModel();
}

void LineModel::added() {
  if (!std::exchange(isWaiting_, true)) {
    QMetaObject::invokeMethod(this, &LineModel::showAdded, Qt::QueuedConnection);
  }
}

void LineModel::showAdded() {
  isWaiting_ = false;
  const int count = count_();
  if (count > shown_) {
    beginInsertRows({}, shown_, count - 1);
    shown_ = count;
    endInsertRows();
  }
}

QVariant LineModel::data(const QModelIndex& index, int role) const {
  // The lines may be gone already when nothing says so yet.
  return role == Qt::DisplayRole && index.isValid() && index.row() < count_() ? QVariant(line_(index.row()))
                                                                              : QVariant();
}

LineList::LineList(QWidget* parent) : QListView(parent), lines_(this) {
  setModel(&lines_);
  setUniformItemSizes(true);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
}

void LineList::showSelected(int line) {
  lines_.showAdded();
  const QScopedValueRollback quiet(isQuiet_, true);
  if (line >= 0) {
    setCurrentIndex(lines_.index(line));
  } else {
    selectionModel()->clear();
  }
}

void LineList::removeAll() {
  const QScopedValueRollback quiet(isQuiet_, true);
  lines_.cleared();
}

QSize LineList::sizeHint() const {
  return {designedWidth, heightOf(designedLines)};
}

QSize LineList::minimumSizeHint() const {
  return {designedWidth / 2, heightOf(2)};
}

int LineList::heightOf(int lines) const {
  return lines * fontMetrics().lineSpacing() + 2 * frameWidth();
}

void LineList::mousePressEvent(QMouseEvent* event) {
  {
    const QScopedValueRollback quiet(isQuiet_, true);
    QListView::mousePressEvent(event);
  }
  const QModelIndex index = indexAt(event->position().toPoint());
  if (index.isValid()) {
    emit lineReached(index.row());
  }
}

void LineList::keyPressEvent(QKeyEvent* event) {
  const bool isReach =
      event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
  if (isReach && keys_ == Keys::ReturnReaches) {
    if (currentIndex().isValid()) {
      emit lineReached(currentIndex().row());
    }
    // The dialog's own button does not answer here.
    event->accept();
    return;
  }
  QListView::keyPressEvent(event);
}

void LineList::focusInEvent(QFocusEvent* event) {
  const bool hadCurrent = currentIndex().isValid();
  const QScopedValueRollback quiet(isQuiet_, true);
  QListView::focusInEvent(event);
  // The toolkit goes to the first one by itself.
  if (!hadCurrent) {
    selectionModel()->clear();
  }
}

void LineList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QListView::currentChanged(current, previous);
  if (!isQuiet_ && keys_ == Keys::WalkReaches && current.isValid()) {
    emit lineReached(current.row());
  }
}

}  // namespace kob::qt
