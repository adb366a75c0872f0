// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NodeModel.h"

#include "NodePictures.h"

#include <utility>

namespace kob::qt {

NodeModel::NodeModel(QObject* parent) : QAbstractItemModel(parent) {
  for (std::size_t i = 0; i < pictures_.size(); ++i) {
    pictures_[i] = nodePicture(static_cast<int>(i));
  }
}

void NodeModel::beginFill() {
  isFilling_ = true;
}

void NodeModel::endFill() {
  isFilling_ = false;
  if (!next_.empty()) {
    beginResetModel();
    nodes_ = std::exchange(next_, {});
    endResetModel();
  }
}

NodeModel::Nodes& NodeModel::filled() {
  if (!isFilling_) {
    return nodes_;
  }
  if (next_.empty()) {
    next_ = nodes_;
  }
  return next_;
}

void NodeModel::removeAll() {
  if (isFilling_) {
    next_ = onlyRoot();
    return;
  }
  beginResetModel();
  nodes_ = onlyRoot();
  endResetModel();
}

void NodeModel::add(int parent, QString text, int image) {
  Nodes& nodes = filled();
  const auto above = static_cast<std::size_t>(parent);
  const int row = static_cast<int>(nodes[above].children.size());
  if (!isFilling_) {
    beginInsertRows(indexOf(parent), row, row);
  }
  nodes[above].children.push_back(static_cast<int>(nodes.size()));
  nodes.push_back({std::move(text), parent, row, image, {}});
  if (!isFilling_) {
    endInsertRows();
  }
}

void NodeModel::setImage(int node, int image) {
  filled()[static_cast<std::size_t>(node)].image = image;
  if (!isFilling_) {
    const QModelIndex changed = indexOf(node);
    emit dataChanged(changed, changed, {Qt::DecorationRole});
  }
}

QModelIndex NodeModel::indexOf(int node) const {
  return node == 0 ? QModelIndex() : createIndex(at(node).row, 0, static_cast<quintptr>(node));
}

QModelIndex NodeModel::index(int row, int column, const QModelIndex& parent) const {
  const std::vector<int>& children = at(nodeOf(parent)).children;
  const auto place = static_cast<std::size_t>(row);
  return row >= 0 && place < children.size() && column == 0
             ? createIndex(row, 0, static_cast<quintptr>(children[place]))
             : QModelIndex();
}

QModelIndex NodeModel::parent(const QModelIndex& child) const {
  return indexOf(at(nodeOf(child)).parent);
}

int NodeModel::rowCount(const QModelIndex& parent) const {
  return static_cast<int>(at(nodeOf(parent)).children.size());
}

int NodeModel::columnCount(const QModelIndex& /*parent*/) const {
  return 1;
}

QVariant NodeModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const Node& node = at(nodeOf(index));
  switch (role) {
    case Qt::DisplayRole:
      return node.text;
    case Qt::DecorationRole:
      return node.image >= 0 && static_cast<std::size_t>(node.image) < pictures_.size()
                 ? pictures_[static_cast<std::size_t>(node.image)]
                 : QIcon();
    default:
      return {};
  }
}

}  // namespace kob::qt
