// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TextField.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QTextOption>

#include <cmath>

namespace kob::qt {

namespace {

constexpr int designedWidth = 240;
constexpr int leastWidth = 80;

}  // namespace

TextField::TextField(QWidget* parent) : QPlainTextEdit(parent) {
  setTabChangesFocus(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  connect(this, &QPlainTextEdit::textChanged, this, &TextField::showDirection);
}

QSize TextField::sizeHint() const {
  return {designedWidth, sizeForLines(2).height()};
}

QSize TextField::minimumSizeHint() const {
  return {leastWidth, sizeForLines(1).height()};
}

QSize TextField::sizeForLines(int lines) const {
  // With less below its last line, a document that fits is scrolled all the same.
  const double margins = 2 * (document()->documentMargin() + frameWidth()) + fontMetrics().leading() + 4;
  return {0, static_cast<int>(std::ceil(lines * fontMetrics().lineSpacing() + margins))};
}

void TextField::show(const QString& text) {
  const QSignalBlocker quiet(this);
  setPlainText(text);
  showDirection();
}

QString TextField::shown() const {
  return document()->toRawText();
}

void TextField::setLocked(bool locked) {
  setReadOnly(locked);
  // The keyboard can still select and copy.
  setTextInteractionFlags(locked ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                 : Qt::TextEditorInteraction);
  viewport()->setBackgroundRole(locked ? QPalette::Window : QPalette::Base);
}

void TextField::keyPressEvent(QKeyEvent* event) {
  if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) &&
      event->modifiers() == Qt::ShiftModifier) {
    // With Shift the toolkit would break the line with a sign that no form shows.
    QKeyEvent plain(QEvent::KeyPress, event->key(), Qt::NoModifier, event->text());
    QPlainTextEdit::keyPressEvent(&plain);
    return;
  }
  QPlainTextEdit::keyPressEvent(event);
}

void TextField::showDirection() {
  showDirectionOf(*this, toPlainText());
  QTextOption option = document()->defaultTextOption();
  if (option.textDirection() != layoutDirection()) {
    option.setTextDirection(layoutDirection());
    option.setAlignment((layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft) |
                        Qt::AlignAbsolute);
    document()->setDefaultTextOption(option);
  }
}

void showDirectionOf(QWidget& widget, const QString& text) {
  const Qt::LayoutDirection direction = text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
  if (widget.layoutDirection() != direction) {
    widget.setLayoutDirection(direction);
  }
}

}  // namespace kob::qt
