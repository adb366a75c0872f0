// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QApplication>
#include <QString>
#include <QWidget>

#include <memory>
#include <string>

namespace kob::command {

/// The toolkit, for as long as a verb needs live forms. What it remarks about forms is dropped.
class Toolkit {
 public:
  /// Whether somebody is going to look. Without, it works where there is no screen, unless QT_QPA_PLATFORM
  /// says otherwise; a screen that is needed and not there is a UsageError.
  enum class Screen { None, Needed };

  explicit Toolkit(Screen screen = Screen::None);

 private:
  int argc_ = 1;
  char name_[8] = "kobtrad";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

/// A form of Qt Designer, laid out as on a screen; a ReadError when the file makes none.
std::unique_ptr<QWidget> loadForm(const std::string& file);

/// Lets the toolkit settle everything that is waiting to be laid out.
void settle();

/// Writes the picture of a form, as a whole or not at all; a WriteError when that fails.
void savePicture(QWidget& form, const std::string& file);

}  // namespace kob::command
