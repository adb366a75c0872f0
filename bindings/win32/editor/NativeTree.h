// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Native.h"

#include <kobtraduction/editor/TreeView.h>

#include <functional>
#include <vector>

namespace kob::win32 {

class NativeTree final : public OnScreen<TreeView> {
 public:
  NativeTree(DialogWindow& window, const WidgetId& id, Surroundings& around, HWND control);
  ~NativeTree() override;

  LRESULT onNotify(NMHDR& header) override;
  void rescale() override;

  /// To the node below or above, unfolding on the way down.
  void stepDown();
  void stepUp();
  /// What Insert and Delete do in the tree.
  void onInsert(std::function<void()> act) { insert_ = std::move(act); }
  void onDelete(std::function<void()> act) { delete_ = std::move(act); }

  /// The splitter moves the right edge; see NativeArea.
  double width() const override;
  void setWidth(double width) override;
  void onSetWidth(std::function<void(int)> act) { setPixels_ = std::move(act); }

  HTREEITEM item(Node node) const;
  Node nodeOf(HTREEITEM item) const;

 private:
  static LRESULT CALLBACK events(HWND tree, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                 DWORD_PTR self);
  LRESULT onButtonDown(HWND tree, WPARAM wParam, LPARAM lParam);
  bool onKey(WPARAM key);
  void stepTo(HTREEITEM item);
  HTREEITEM next(UINT relation, HTREEITEM from = nullptr) const;
  void makePictures();
  void selectQuietly(Node node);

  void showImageList(ImageList& images) override;
  void showFilling(bool filling) override;
  void showCleared() override;
  void showAdded(Node node, Node parent, TextView text, std::int32_t image) override;
  void showImage(Node node, std::int32_t image) override;
  void showSelected(Node node) override;
  void showExpanded(Node node) override;

  std::vector<HTREEITEM> items_;
  std::vector<Node> toExpand_;
  std::function<void()> insert_;
  std::function<void()> delete_;
  std::function<void(int)> setPixels_;
  HIMAGELIST pictures_ = nullptr;
  bool isFilling_ = false;
  bool isQuiet_ = false;
};

}  // namespace kob::win32
