// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NodePictures.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <memory>

namespace kob::qt {

namespace {

constexpr int lastPicture = 5;
/// Drawings are made in a square of this size.
constexpr double grid = 16;

constexpr QRgb nodeColour = 0xffc08a2e;
constexpr QRgb controlColour = 0xff3f7fc4;
constexpr QRgb messageColour = 0xff4c9a5f;
constexpr QRgb contextColour = 0xffd9534f;
constexpr QRgb inside = 0xfff6f7f9;
/// Parts a drawing from a background of its own colour, such as that of the selected node.
constexpr double outline = 0.8;

QPen line(QRgb colour, double width) {
  return {QColor::fromRgba(colour), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// Sheets of a folder.
void drawNode(QPainter& painter) {
  painter.setPen(line(inside, outline));
  painter.setBrush(QColor::fromRgba(nodeColour));
  QPainterPath folder;
  folder.moveTo(1, 13);
  folder.lineTo(1, 3.5);
  folder.lineTo(6.2, 3.5);
  folder.lineTo(7.8, 5.5);
  folder.lineTo(15, 5.5);
  folder.lineTo(15, 13);
  folder.closeSubpath();
  painter.drawPath(folder);
  painter.setPen(line(inside, 1.2));
  painter.drawLine(QPointF(3, 8), QPointF(13, 8));
}

/// A button with its text.
void drawControl(QPainter& painter) {
  painter.setPen(line(inside, outline));
  painter.setBrush(QColor::fromRgba(controlColour));
  painter.drawRoundedRect(QRectF(1, 3.5, 14, 9), 2, 2);
  painter.setPen(line(inside, 1.5));
  painter.drawLine(QPointF(4, 8), QPointF(12, 8));
}

/// What somebody says.
void drawMessage(QPainter& painter) {
  QPainterPath bubble;
  bubble.addRoundedRect(QRectF(1, 2, 14, 9), 2.5, 2.5);
  QPainterPath tip;
  tip.moveTo(4, 10);
  tip.lineTo(4, 14.5);
  tip.lineTo(8.5, 10);
  tip.closeSubpath();
  painter.setPen(line(inside, outline));
  painter.setBrush(QColor::fromRgba(messageColour));
  painter.drawPath(bubble.united(tip));
  painter.setPen(line(inside, 1.3));
  painter.drawLine(QPointF(4, 5), QPointF(12, 5));
  painter.drawLine(QPointF(4, 8), QPointF(9.5, 8));
}

/// There is more than one of it.
void drawContext(QPainter& painter) {
  painter.setPen(line(inside, 1));
  painter.setBrush(QColor::fromRgba(contextColour));
  painter.drawEllipse(QPointF(12, 12), 3.3, 3.3);
}

class NodePicture final : public QIconEngine {
 public:
  explicit NodePicture(int number) : number_(number) {}

  void paint(QPainter* painter, const QRect& place, QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
    const double side = qMin(place.width(), place.height());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(place.x() + (place.width() - side) / 2, place.y() + (place.height() - side) / 2);
    painter->scale(side / grid, side / grid);
    switch (number_) {
      case 1:
        drawNode(*painter);
        break;
      case 2:
      case 3:
        drawControl(*painter);
        break;
      default:
        drawMessage(*painter);
        break;
    }
    if (number_ == 3 || number_ == 5) {
      drawContext(*painter);
    }
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return picture;
  }

  QIconEngine* clone() const override { return std::make_unique<NodePicture>(number_).release(); }

 private:
  int number_;
};

}  // namespace

QIcon nodePicture(int number) {
  // An icon owns its engine.
  return number >= 1 && number <= lastPicture ? QIcon(std::make_unique<NodePicture>(number).release())
                                              : QIcon();
}

}  // namespace kob::qt
