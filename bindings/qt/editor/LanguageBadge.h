// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QString>
#include <QWidget>

namespace kob::qt {

/// The name of a language in itself; languages count from 1. "" beyond the sixth.
QString languageName(int language);

/// The code of a language in a coloured field, that stands beside its text.
class LanguageBadge final : public QWidget {
  Q_OBJECT

 public:
  LanguageBadge(int language, QWidget* parent);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int language_;
};

}  // namespace kob::qt
