// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/component/MessageBoxes.h>
#include <kobtraductionqt/KOBTraductionQt.h>

#include <QStringList>

namespace kob::demo {

/// The component's messages while nobody sits before the screen: kept to be printed, and questions are
/// answered No. The previous boxes come back when it dies.
class PrintedBoxes final : public MessageBoxes {
 public:
  PrintedBoxes() : previous_(Global_Util::setMessageBoxes(this)) {}
  PrintedBoxes(const PrintedBoxes&) = delete;
  PrintedBoxes& operator=(const PrintedBoxes&) = delete;
  ~PrintedBoxes() override { Global_Util::setMessageBoxes(previous_); }

  void notice(TextView text, TextView, MessageIcon) override { shown_ += qt::toQString(text); }
  bool question(TextView text, TextView, MessageIcon) override {
    shown_ += qt::toQString(text);
    return false;
  }

  const QStringList& shown() const { return shown_; }

 private:
  MessageBoxes* previous_;
  QStringList shown_;
};

}  // namespace kob::demo
