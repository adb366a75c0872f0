// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/component/MessageBoxes.h>
#include <kobtraductionqt/Export.h>

namespace kob::qt {

/// The component's messages as QMessageBox, modal to the active window. While an object of this class lives,
/// it is the thread's message boxes (Global_Util); the ones before it are put back when it dies. Keep one
/// beside the QApplication. GUI thread only.
class KOB_QT_EXPORT QtMessageBoxes final : public MessageBoxes {
 public:
  QtMessageBoxes();
  QtMessageBoxes(const QtMessageBoxes&) = delete;
  QtMessageBoxes& operator=(const QtMessageBoxes&) = delete;
  ~QtMessageBoxes() override;

  void notice(TextView text, TextView title, MessageIcon icon) override;
  bool question(TextView text, TextView title, MessageIcon icon) override;

 private:
  MessageBoxes* previous_;
};

}  // namespace kob::qt
