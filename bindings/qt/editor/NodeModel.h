// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QAbstractItemModel>
#include <QIcon>

#include <array>
#include <vector>

namespace kob::qt {

/// The nodes of a tree by their numbers, from 1; 0 is the invisible root. They are only added, all replaced,
/// or given another picture.
class NodeModel final : public QAbstractItemModel {
  Q_OBJECT

 public:
  explicit NodeModel(QObject* parent);

  /// Nodes that are added until the end, or the removal of all, are shown at once then.
  void beginFill();
  void endFill();
  void removeAll();
  void add(int parent, QString text, int image);
  void setImage(int node, int image);

  QModelIndex indexOf(int node) const;
  static int nodeOf(const QModelIndex& index) { return static_cast<int>(index.internalId()); }

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& child) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  struct Node {
    QString text;
    int parent = 0;
    int row = 0;
    int image = 0;
    std::vector<int> children;
  };
  using Nodes = std::vector<Node>;

  static Nodes onlyRoot() { return Nodes(1); }
  /// The shown nodes, or those that are going to be.
  Nodes& filled();
  const Node& at(int node) const { return nodes_[static_cast<std::size_t>(node)]; }

  Nodes nodes_ = onlyRoot();
  /// Empty until something is changed while filling.
  Nodes next_;
  bool isFilling_ = false;
  std::array<QIcon, 6> pictures_;
};

}  // namespace kob::qt
