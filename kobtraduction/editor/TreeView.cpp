// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/DialogWindow.h>
#include <kobtraduction/editor/TreeView.h>

#include <algorithm>

namespace kob {

TreeView::~TreeView() = default;

void TreeView::setImageList(ImageList& images) {
  showImageList(images);
}

void TreeView::clear() {
  if (nodes_.empty()) {
    return;
  }
  nodes_.clear();
  selected_ = 0;
  showCleared();
}

TreeView::Node TreeView::add(Node parent, TextView text, std::int32_t image, Text tag) {
  nodes_.push_back({std::move(tag), parent, image});
  showAdded(count(), parent, text, image);
  return count();
}

void TreeView::setImage(Node node, std::int32_t image) {
  NodeData& data = nodes_[static_cast<std::size_t>(node) - 1];
  if (data.image != image) {
    data.image = image;
    showImage(node, image);
  }
}

TreeView::Node TreeView::find(TextView tag) const noexcept {
  const auto found =
      std::find_if(nodes_.begin(), nodes_.end(), [tag](const NodeData& node) { return node.tag == tag; });
  return found == nodes_.end() ? 0 : static_cast<Node>(found - nodes_.begin()) + 1;
}

void TreeView::select(Node node) {
  if (selected_ != node) {
    selected_ = node;
    showSelected(node);
  }
}

void TreeView::personClicked(Node node) noexcept {
  window().dispatch([this, node] {
    selected_ = node;
    if (onNodeClick_) {
      onNodeClick_(node);
    }
  });
}

}  // namespace kob
