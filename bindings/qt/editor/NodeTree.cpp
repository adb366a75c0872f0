// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NodeTree.h"

#include <QMouseEvent>
#include <QScopedValueRollback>

#include <utility>

namespace kob::qt {

NodeTree::NodeTree(QWidget* parent) : QTreeView(parent), nodes_(this) {
  setModel(&nodes_);
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setAccessibleName(QStringLiteral("Noeuds"));
  viewport()->setMouseTracking(true);
}

void NodeTree::beginFill() {
  isFilling_ = true;
  toSelect_ = NodeModel::nodeOf(currentIndex());
  nodes_.beginFill();
}

void NodeTree::endFill() {
  isFilling_ = false;
  {
    const QScopedValueRollback quiet(isQuiet_, true);
    nodes_.endFill();
  }
  // The nodes are laid out once, however many are unfolded.
  scheduleDelayedItemsLayout();
  for (const int node : std::exchange(toExpand_, {})) {
    expand(nodes_.indexOf(node));
  }
  select(std::exchange(toSelect_, 0));
}

void NodeTree::removeAll() {
  toExpand_.clear();
  toSelect_ = 0;
  const QScopedValueRollback quiet(isQuiet_, true);
  nodes_.removeAll();
}

void NodeTree::showSelected(int node) {
  if (isFilling_) {
    toSelect_ = node;
  } else {
    select(node);
  }
}

void NodeTree::select(int node) {
  const QScopedValueRollback quiet(isQuiet_, true);
  const QModelIndex index = nodes_.indexOf(node);
  if (index.isValid()) {
    setCurrentIndex(index);
    scrollTo(index);
  } else if (currentIndex().isValid()) {
    selectionModel()->clear();
  }
}

void NodeTree::showExpanded(int node) {
  if (isFilling_) {
    toExpand_.push_back(node);
  } else {
    expand(nodes_.indexOf(node));
  }
}

void NodeTree::mousePressEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->position().toPoint());
  {
    const QScopedValueRollback quiet(isQuiet_, true);
    QTreeView::mousePressEvent(event);
  }
  // Beside the node stands what folds it.
  if (index.isValid() && visualRect(index).contains(event->position().toPoint())) {
    emit nodeReached(NodeModel::nodeOf(index));
  }
}

void NodeTree::mouseMoveEvent(QMouseEvent* event) {
  QTreeView::mouseMoveEvent(event);
  emit pointerMoved();
}

void NodeTree::showEvent(QShowEvent* event) {
  QTreeView::showEvent(event);
  // It could not be brought into view before there was one.
  if (currentIndex().isValid()) {
    scrollTo(currentIndex());
  }
}

void NodeTree::focusInEvent(QFocusEvent* event) {
  const bool hadCurrent = currentIndex().isValid();
  const QScopedValueRollback quiet(isQuiet_, true);
  QTreeView::focusInEvent(event);
  // The toolkit goes to the first one by itself.
  if (!hadCurrent) {
    selectionModel()->clear();
  }
}

void NodeTree::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTreeView::currentChanged(current, previous);
  if (!isQuiet_ && current.isValid()) {
    emit nodeReached(NodeModel::nodeOf(current));
  }
}

void NodeTree::stepUp() {
  stepTo(currentIndex().isValid() ? indexAbove(currentIndex()) : nodes_.index(0, 0));
}

void NodeTree::stepDown() {
  const QModelIndex current = currentIndex();
  if (!current.isValid()) {
    stepTo(nodes_.index(0, 0));
    return;
  }
  expand(current);
  stepTo(indexBelow(current));
}

void NodeTree::stepTo(const QModelIndex& index) {
  if (index.isValid()) {
    setCurrentIndex(index);
  }
}

}  // namespace kob::qt
