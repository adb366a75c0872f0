// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Montage.h"

#include <QGuiApplication>
#include <QPainter>

namespace kob::demo {

namespace {

constexpr int gap = 18;
constexpr int bar = 30;

}  // namespace

QImage Montage::picture() const {
  if (items_.empty()) {
    return {};
  }
  QSize cell;
  for (const Item& item : items_) {
    cell = cell.expandedTo(item.image.size());
  }
  // Wide forms stand in two columns, others in three.
  const int columns = cell.width() > 600 ? 2 : 3;
  const int count = static_cast<int>(items_.size());
  const int rows = (count + columns - 1) / columns;
  QImage result(columns * (cell.width() + gap) + gap, rows * (cell.height() + bar + gap) + gap,
                QImage::Format_RGB32);
  result.fill(QColor(222, 226, 224));
  QPainter painter(&result);
  QFont font = QGuiApplication::font();
  font.setBold(true);
  painter.setFont(font);
  for (int i = 0; i < count; ++i) {
    const Item& item = items_[static_cast<std::size_t>(i)];
    const QPoint corner(gap + i % columns * (cell.width() + gap),
                        gap + i / columns * (cell.height() + bar + gap));
    const QRect title(corner, QSize(item.image.width(), bar));
    painter.fillRect(title, QColor(31, 111, 104));
    painter.setPen(Qt::white);
    painter.drawText(title.adjusted(10, 0, -10, 0), Qt::AlignVCenter | Qt::AlignLeft, item.title);
    painter.drawImage(corner + QPoint(0, bar), item.image);
    painter.setPen(QColor(120, 130, 128));
    painter.drawRect(QRect(corner, QSize(item.image.width() - 1, item.image.height() + bar - 1)));
  }
  return result;
}

}  // namespace kob::demo
