// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Icons.h"

#include <QApplication>
#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <QStyleFactory>

namespace kob::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr QColor accent(31, 111, 104);

void arrow(QPainter& painter, QPointF from, QPointF to, QPointF wingA, QPointF wingB) {
  painter.drawLine(from, to);
  painter.drawLine(to, wingA);
  painter.drawLine(to, wingB);
}

// On a square of 24 x 24.
void draw(QPainter& painter, Drawing drawing) {
  QPainterPath path;
  switch (drawing) {
    case Drawing::Lend:
      path.moveTo(4, 12);
      path.lineTo(4, 20);
      path.lineTo(20, 20);
      path.lineTo(20, 12);
      painter.drawPath(path);
      arrow(painter, {12, 15}, {12, 4}, {7.5, 8.5}, {16.5, 8.5});
      break;
    case Drawing::Return:
      path.moveTo(4, 12);
      path.lineTo(4, 20);
      path.lineTo(20, 20);
      path.lineTo(20, 12);
      painter.drawPath(path);
      arrow(painter, {12, 4}, {12, 15}, {7.5, 10.5}, {16.5, 10.5});
      break;
    case Drawing::Extend:
      painter.drawEllipse(QPointF(12, 12), 8.5, 8.5);
      painter.drawLine(QPointF(12, 7), QPointF(12, 12));
      painter.drawLine(QPointF(12, 12), QPointF(15.5, 14));
      break;
    case Drawing::Print:
      painter.drawRect(QRectF(7, 3.5, 10, 5));
      painter.drawRoundedRect(QRectF(3.5, 8.5, 17, 8), 2, 2);
      painter.setBrush(Qt::white);
      painter.drawRect(QRectF(7, 13, 10, 7.5));
      break;
    case Drawing::Member:
      painter.drawEllipse(QPointF(12, 8), 4, 4);
      path.moveTo(4, 20.5);
      path.cubicTo(4, 12, 20, 12, 20, 20.5);
      path.closeSubpath();
      painter.drawPath(path);
      break;
    case Drawing::Search:
      painter.drawEllipse(QPointF(10.5, 10.5), 6, 6);
      painter.drawLine(QPointF(15, 15), QPointF(20, 20));
      break;
  }
}

}  // namespace

QIcon icon(Drawing drawing) {
  QIcon result;
  for (const int size : {16, 20, 24, 40, 48}) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 24.0, size / 24.0);
    painter.setPen(QPen(accent, 1.9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    draw(painter, drawing);
    painter.end();
    result.addPixmap(pixmap);
  }
  return result;
}

void setLook() {
  QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
  QFont font(u"DejaVu Sans"_s);
  font.setPixelSize(13);
  QApplication::setFont(font);
  QPalette palette(QColor(240, 238, 232), QColor(246, 244, 239));
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::AlternateBase, QColor(248, 246, 241));
  palette.setColor(QPalette::Highlight, accent);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::PlaceholderText, QColor(130, 130, 125));
  QApplication::setPalette(palette);
}

}  // namespace kob::demo
