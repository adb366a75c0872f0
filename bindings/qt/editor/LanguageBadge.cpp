// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LanguageBadge.h"

#include <kobtraduction/editor/ShownLanguages.h>
#include <kobtraductionqt/KOBTraductionQt.h>

#include <QFontMetrics>
#include <QPainter>

namespace kob::qt {

namespace {

constexpr int horizontalMargin = 5;
constexpr int verticalMargin = 2;
constexpr double corner = 3;

QFont codeFont(const QWidget& widget) {
  QFont font = widget.font();
  font.setBold(true);
  return font;
}

}  // namespace

QString languageName(int language) {
  const ShownLanguage* const found = shownLanguage(language);
  return found != nullptr ? toQString(found->name) : QString();
}

LanguageBadge::LanguageBadge(int language, QWidget* parent) : QWidget(parent), language_(language) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setToolTip(languageName(language));
  setAccessibleName(languageName(language));
}

QSize LanguageBadge::sizeHint() const {
  // Equally wide for all codes.
  const QFontMetrics metrics(codeFont(*this));
  return {metrics.horizontalAdvance(QStringLiteral("NN")) + 2 * horizontalMargin,
          metrics.height() + 2 * verticalMargin};
}

void LanguageBadge::paintEvent(QPaintEvent* /*event*/) {
  const ShownLanguage* const found = shownLanguage(language_);
  if (found == nullptr) {
    return;
  }
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor::fromRgb(found->colour));
  painter.setOpacity(isEnabled() ? 1 : 0.5);
  painter.drawRoundedRect(rect(), corner, corner);
  painter.setFont(codeFont(*this));
  painter.setPen(Qt::white);
  painter.drawText(rect(), Qt::AlignCenter, toQString(found->code));
}

}  // namespace kob::qt
