// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "NodeModel.h"

#include <QTreeView>

#include <vector>

namespace kob::qt {

/// The tree on the screen. Only what a person does is signalled.
class NodeTree final : public QTreeView {
  Q_OBJECT

 public:
  explicit NodeTree(QWidget* parent);

  void beginFill();
  void endFill();
  void removeAll();
  void add(int parent, const QString& text, int image) { nodes_.add(parent, text, image); }
  void setImage(int node, int image) { nodes_.setImage(node, image); }
  /// 0 for none.
  void showSelected(int node);
  void showExpanded(int node);

  /// Goes to the node above or below as the arrow keys do, but into folded nodes too.
  void stepUp();
  void stepDown();

 Q_SIGNALS:
  /// A node was clicked, or reached by keys.
  void nodeReached(int node);
  void pointerMoved();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  void stepTo(const QModelIndex& index);
  void select(int node);

  NodeModel nodes_;
  /// What was told while filling, for the end.
  std::vector<int> toExpand_;
  int toSelect_ = 0;
  bool isFilling_ = false;
  /// The present change is the program's, or reported as a click.
  bool isQuiet_ = false;
};

}  // namespace kob::qt
