// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "OnScreen.h"
#include "TextField.h"

#include <kobtraduction/editor/TextBox.h>

#include <QLineEdit>

namespace kob::qt {

/// A text of one line.
class QtLineBox final : public OnScreen<TextBox, QLineEdit> {
 public:
  using OnScreen::OnScreen;
  /// Reports what a person types as long as `reports` lives.
  void listen(QObject& reports);

 protected:
  void showText(TextView text) override;
  void showLocked(bool locked) override { control().setReadOnly(locked); }
};

/// A text of any number of lines.
class QtTextBox final : public OnScreen<TextBox, TextField> {
 public:
  using OnScreen::OnScreen;
  void listen(QObject& reports);

 protected:
  void showText(TextView text) override;
  void showLocked(bool locked) override { control().setLocked(locked); }
};

}  // namespace kob::qt
