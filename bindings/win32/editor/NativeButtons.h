// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Native.h"

#include <kobtraduction/editor/Button.h>
#include <kobtraduction/editor/CheckBox.h>
#include <kobtraduction/editor/OptionButton.h>

namespace kob::win32 {

class NativeButton final : public OnScreen<Button> {
 public:
  using OnScreen::OnScreen;
  void onCommand(WORD code) override;
};

class NativeCheckBox final : public OnScreen<CheckBox> {
 public:
  using OnScreen::OnScreen;
  void onCommand(WORD code) override;

 private:
  void showChecked(bool checked) override;
};

class NativeOptionButton final : public OnScreen<OptionButton> {
 public:
  using OnScreen::OnScreen;
  void onCommand(WORD code) override;

 private:
  void showOn(bool on) override;
};

}  // namespace kob::win32
