// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Native.h"

#include <kobtraduction/editor/PictureBox.h>

namespace kob::win32 {

/// The short name of a language on its colour; the control is one that its owner draws.
class LanguageBadge final : public OnScreen<PictureBox> {
 public:
  /// Languages count from 1.
  LanguageBadge(DialogWindow& window, const WidgetId& id, Surroundings& around, HWND control, int language);

  void draw(const DRAWITEMSTRUCT& drawing) const;
  static SIZE size(const Metrics& metrics);

 private:
  void showPointer(MousePointer /*pointer*/) override {}

  int language_;
};

}  // namespace kob::win32
