// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QImage>
#include <QString>

#include <vector>

namespace kob::demo {

/// Pictures of one form side by side, each under its title as under a title bar.
class Montage {
 public:
  void add(const QImage& picture, const QString& title) { items_.push_back({picture, title}); }

  QImage picture() const;

 private:
  struct Item {
    QImage image;
    QString title;
  };

  std::vector<Item> items_;
};

}  // namespace kob::demo
