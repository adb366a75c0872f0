// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LanguageBadge.h"

#include <QFontMetrics>
#include <QPainter>

#include <array>

namespace kob::qt {

namespace {

struct Shown {
  const char16_t* name;
  const char* code;
  QRgb colour;
};

/// White is read on each of the colours.
constexpr std::array<Shown, 6> languages{{
    {u"Français", "FR", 0xff2f5fb3},
    {u"English", "EN", 0xff9b2d3f},
    {u"Nederlands", "NL", 0xffb0560f},
    {u"Deutsch", "DE", 0xff5f6673},
    {u"Italiano", "IT", 0xff2a7a4b},
    {u"Español", "ES", 0xff7f6200},
}};

constexpr int horizontalMargin = 5;
constexpr int verticalMargin = 2;
constexpr double corner = 3;

const Shown* shown(int language) {
  const auto index = static_cast<std::size_t>(language) - 1;
  return index < languages.size() ? &languages[index] : nullptr;
}

QFont codeFont(const QWidget& widget) {
  QFont font = widget.font();
  font.setBold(true);
  return font;
}

}  // namespace

QString languageName(int language) {
  const Shown* const found = shown(language);
  return found != nullptr ? QString::fromUtf16(found->name) : QString();
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
  const Shown* const found = shown(language_);
  if (found == nullptr) {
    return;
  }
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor::fromRgba(found->colour));
  painter.setOpacity(isEnabled() ? 1 : 0.5);
  painter.drawRoundedRect(rect(), corner, corner);
  painter.setFont(codeFont(*this));
  painter.setPen(Qt::white);
  painter.drawText(rect(), Qt::AlignCenter, QLatin1String(found->code));
}

}  // namespace kob::qt
