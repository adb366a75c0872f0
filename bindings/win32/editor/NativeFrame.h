// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "DialogHost.h"
#include "Native.h"

#include <kobtraduction/editor/Frame.h>
#include <kobtraduction/editor/Label.h>

#include <memory>
#include <string>

namespace kob::win32 {

/// A border with a caption, around the controls in it.
class FramePanel final : public Panel {
 public:
  FramePanel(HINSTANCE module, HWND parent, const Surroundings& around);

  void setCaption(TextView caption);
  /// How far the content stands below the top.
  int top() const;

 private:
  bool onMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
  void paint() const;

  const Surroundings& around_;
  std::wstring caption_;
};

class NativeFrame final : public OnScreen<Frame> {
 public:
  NativeFrame(DialogWindow& window, const WidgetId& id, Surroundings& around,
              std::unique_ptr<FramePanel> panel);

  FramePanel& panel() const noexcept { return *panel_; }

 private:
  void showCaption(TextView caption) override;

  std::unique_ptr<FramePanel> panel_;
};

class NativeLabel final : public OnScreen<Label> {
 public:
  using OnScreen::OnScreen;
  /// In bold letters from now on.
  void emphasise();
  void rescale() override;

 private:
  void showCaption(TextView caption) override;

  bool isBold_ = false;
};

}  // namespace kob::win32
