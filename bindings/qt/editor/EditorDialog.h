// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QDialog>

namespace kob::qt {

/// The window that shows one of the editor's dialogs. It survives its parent, and then closes.
class EditorDialog final : public QDialog {
  Q_OBJECT

 public:
  /// `staysOnEscape` is for the window in which somebody works all day.
  EditorDialog(QWidget* parent, bool staysOnEscape);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void leaveParent();
  void fadeDisabledLess();

  bool staysOnEscape_;
};

}  // namespace kob::qt
