// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/editor/SaveFileDialog.h>

#include <QStringList>

class QWidget;

namespace kob::qt {

/// The toolkit's own save dialog. It asks before it gives the name of a file that exists, and gives a name
/// without an ending the first one of the filter, so that the file is offered again.
class QtSaveFileDialog final : public SaveFileDialog {
 public:
  explicit QtSaveFileDialog(QWidget& window) : window_(window) {}

  /// "a|*.x|b|*.y" as the toolkit's filters, "a (*.x)" and "b (*.y)"; a description that names its pattern
  /// already stays as it is.
  static QStringList nameFilters(const QString& filter);

 protected:
  Text choose() override;

 private:
  QWidget& window_;
};

}  // namespace kob::qt
