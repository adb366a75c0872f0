// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QPlainTextEdit>

namespace kob::qt {

/// Where a text of any number of lines is typed: grows with its window, shows two lines at least when there
/// is room, leaves the Tab key to the dialog, and turns to the right for a right-to-left text.
class TextField final : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit TextField(QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

  /// Shows a text without a signal; lines end in paragraph separators.
  void show(const QString& text);
  /// The text, lines ending in paragraph separators.
  QString shown() const;
  void setLocked(bool locked);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QSize sizeForLines(int lines) const;
  void showDirection();
};

/// Turns a text's widget the way in which the text is read.
void showDirectionOf(QWidget& widget, const QString& text);

}  // namespace kob::qt
