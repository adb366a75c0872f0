// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/editor/Widget.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace kob {

class ImageList;

/// A tree of nodes with a text, a picture and a tag each. A node is known by its number: nodes count from 1
/// in the order in which they were added, which is the tree's own order from top to bottom as long as each
/// node is added behind all that stand above it. Node 0 is "none".
class KOB_EXPORT TreeView : public Widget {
 public:
  using Node = std::int32_t;
  using NodeHandler = std::function<void(Node)>;

  using Widget::Widget;
  ~TreeView() override;

  /// Where the pictures come from; the list lives as long as the tree.
  void setImageList(ImageList& images);

  /// Removes all nodes and with them the selection; no event.
  void clear();
  /// Adds a node as the last child of `parent`, or at the top level for 0, folded; no event.
  Node add(Node parent, TextView text, std::int32_t image, Text tag);
  /// Encloses many changes, so that the toolkit can show them at once; what the tree answers does not depend
  /// on it. Not nested.
  void beginFill() { showFilling(true); }
  void endFill() { showFilling(false); }

  Node count() const noexcept { return static_cast<Node>(nodes_.size()); }
  /// Of a node that there is; valid until nodes are added or removed.
  const Text& tag(Node node) const noexcept { return at(node).tag; }
  Node parent(Node node) const noexcept { return at(node).parent; }
  std::int32_t image(Node node) const noexcept { return at(node).image; }
  void setImage(Node node, std::int32_t image);
  /// The first node with that tag, letter for letter, or 0.
  Node find(TextView tag) const noexcept;

  /// The selected node; 0 at first and after clear. Selecting by program brings the node into view and raises
  /// no event.
  Node selected() const noexcept { return selected_; }
  void select(Node node);
  /// Unfolds a node; no event.
  void expand(Node node) { showExpanded(node); }

  /// The one handler of each event.
  void onNodeClick(NodeHandler handler) { onNodeClick_ = std::move(handler); }
  void onMouseMove(WidgetHandler handler) { onMouseMove_ = std::move(handler); }

  /// A person has clicked a node or reached it by keys, also the one that is selected already. The node
  /// becomes the selected one before the event.
  void personClicked(Node node) noexcept;
  void personMovedMouse() noexcept { raiseForPerson(onMouseMove_); }

 protected:
  virtual void showImageList(ImageList& images) = 0;
  virtual void showFilling(bool filling) = 0;
  virtual void showCleared() = 0;
  /// `node` is one more than the last node added.
  virtual void showAdded(Node node, Node parent, TextView text, std::int32_t image) = 0;
  virtual void showImage(Node node, std::int32_t image) = 0;
  virtual void showSelected(Node node) = 0;
  virtual void showExpanded(Node node) = 0;

 private:
  struct NodeData {
    Text tag;
    Node parent;
    std::int32_t image;
  };

  const NodeData& at(Node node) const noexcept { return nodes_[static_cast<std::size_t>(node) - 1]; }

  std::vector<NodeData> nodes_;
  NodeHandler onNodeClick_;
  WidgetHandler onMouseMove_;
  Node selected_ = 0;
};

}  // namespace kob
