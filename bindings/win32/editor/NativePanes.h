// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "DialogHost.h"
#include "Native.h"
#include "NativeTree.h"

#include <kobtraduction/editor/PictureBox.h>

#include <functional>
#include <memory>

namespace kob::win32 {

/// A part of a dialog that tells where the mouse moves over it.
class PlainPanel final : public Panel {
 public:
  PlainPanel(HINSTANCE module, HWND parent) { createPanel(module, parent, 0); }

  void onMouseMove(std::function<void(int x)> act) { moved_ = std::move(act); }

 private:
  bool onMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;

  std::function<void(int)> moved_;
};

/// A part of a dialog that is scrolled up and down when it has not the room for its content.
class ScrolledPanel final : public Panel {
 public:
  ScrolledPanel(HINSTANCE module, HWND parent);

  PlainPanel& content() const noexcept { return *content_; }
  /// Gives the content all the room that there is, but no less height than this; answers its size.
  SIZE fit(int leastHeight);
  /// Scrolls until a control of the content is seen.
  void reveal(HWND control);

 private:
  bool onMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
  void scrollTo(int place);
  void scrollBy(WORD how);

  std::unique_ptr<PlainPanel> content_;
  int place_ = 0;
  int page_ = 0;
  int height_ = 0;
};

/// PProperty.
class NativePane final : public OnScreen<PictureBox> {
 public:
  NativePane(DialogWindow& window, const WidgetId& id, Surroundings& around,
             std::unique_ptr<ScrolledPanel> panel);

  ScrolledPanel& panel() const noexcept { return *panel_; }
  double left() const override;
  double width() const override;

 private:
  void showPointer(MousePointer /*pointer*/) override {}

  std::unique_ptr<ScrolledPanel> panel_;
};

/// pConteneur: the tree, the strip by which its width is changed, and the pane.
class NativeArea final : public OnScreen<PictureBox> {
 public:
  NativeArea(DialogWindow& window, const WidgetId& id, Surroundings& around,
             std::unique_ptr<PlainPanel> panel);

  HWND strip() const noexcept { return strip_; }
  /// The strip stands between them, also in the order of the tabulator.
  void setTree(NativeTree& tree, HWND strip);
  void setPane(NativePane& pane) { pane_ = &pane; }
  /// The panes find their places at the area's new size.
  void arrange();

  double width() const override;
  void rescale() override {}

 private:
  static LRESULT CALLBACK events(HWND strip, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                 DWORD_PTR self);
  bool onStrip(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
  void divideAt(int pixels);
  void moved(int x, bool leftOnly);
  void paintStrip() const;
  void showPointer(MousePointer pointer) override;

  std::unique_ptr<PlainPanel> panel_;
  NativeTree* tree_ = nullptr;
  NativePane* pane_ = nullptr;
  HWND strip_ = nullptr;
  /// Of the tree and of the whole area; 0 before they were first seen.
  int left_ = 0;
  int arrangedWidth_ = 0;
};

}  // namespace kob::win32
