// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/editor/WidgetSet.h>
#include <kobtraductionqt/Export.h>

namespace kob::qt {

/// The editor's windows in Qt. While an object of this class lives, it is the thread's widget set, and models
/// can show their editor; the one before it is put back when it dies. Keep one beside the QApplication, next
/// to the message boxes (QtMessageBoxes.h), through which the editor asks and refuses. GUI thread only.
///
/// The editor stands over the window that is active when it is opened, and is modal in the application. When
/// that window is deleted meanwhile, the editor closes as if the person had closed it.
class KOB_QT_EXPORT QtWidgetSet final : public WidgetSet {
 public:
  QtWidgetSet();
  QtWidgetSet(const QtWidgetSet&) = delete;
  QtWidgetSet& operator=(const QtWidgetSet&) = delete;
  ~QtWidgetSet() override;

  /// Fails with ObjectNotSet without a QApplication.
  std::unique_ptr<DialogWindow> makeWindow(DialogKind kind, DialogWindow* owner) override;

 private:
  WidgetSet* previous_;
};

}  // namespace kob::qt
