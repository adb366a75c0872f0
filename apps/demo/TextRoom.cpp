// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TextRoom.h"

#include <QComboBox>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>

namespace kob::demo {

namespace {

// What a line edit keeps free on each side of its text, beside the style's margins.
constexpr int lineEditMargin = 2;
constexpr int titleBarButtons = 120;

int longestWord(const QFontMetrics& metrics, const QString& text) {
  static const QRegularExpression blank(QStringLiteral("[ \\n\\t]+"));
  int longest = 0;
  for (const QString& word : text.split(blank)) {
    longest = qMax(longest, metrics.horizontalAdvance(word));
  }
  return longest;
}

}  // namespace

Room labelRoom(const QLabel& label) {
  if (!label.wordWrap()) {
    return {label.sizeHint(), label.size()};
  }
  // A word that is wider than the label is cut, whatever the height.
  return {{longestWord(label.fontMetrics(), label.text()), label.heightForWidth(label.width())},
          {label.contentsRect().width() - 2 * label.margin(), label.height()}};
}

Room placeholderRoom(const QLineEdit& edit) {
  QStyleOptionFrame option;
  option.initFrom(&edit);
  option.rect = edit.rect();
  option.lineWidth =
      edit.hasFrame() ? edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &edit) : 0;
  option.state |= QStyle::State_Sunken;
  const QRect inside = edit.style()->subElementRect(QStyle::SE_LineEditContents, &option, &edit);
  const QMargins margins = edit.textMargins();
  return {{edit.fontMetrics().horizontalAdvance(edit.placeholderText()), edit.fontMetrics().height()},
          {inside.width() - margins.left() - margins.right() - 2 * lineEditMargin, inside.height()}};
}

Room placeholderRoom(const QPlainTextEdit& edit) {
  const int margin = qRound(edit.document()->documentMargin());
  const QSize room = edit.viewport()->size() - QSize(2 * margin, 2 * margin);
  const QRect needed = edit.fontMetrics().boundingRect(QRect(0, 0, room.width(), room.height()),
                                                       Qt::TextWordWrap, edit.placeholderText());
  return {needed.size(), room};
}

Room itemRoom(const QComboBox& combo, int item) {
  QStyleOptionComboBox option;
  option.initFrom(&combo);
  option.rect = combo.rect();
  option.editable = combo.isEditable();
  option.frame = combo.hasFrame();
  option.subControls = QStyle::SC_All;
  const QRect field =
      combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
  return {{combo.fontMetrics().horizontalAdvance(combo.itemText(item)), combo.fontMetrics().height()},
          field.size()};
}

Room titleRoom(const QWidget& form) {
  return {{form.fontMetrics().horizontalAdvance(form.windowTitle()) + titleBarButtons, 0}, {form.width(), 0}};
}

}  // namespace kob::demo
