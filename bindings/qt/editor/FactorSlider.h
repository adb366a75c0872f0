// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QWidget>

class QLabel;
class QSlider;

namespace kob::qt {

/// A slider between its caption and its value in hundredths.
class FactorSlider final : public QWidget {
  Q_OBJECT

 public:
  explicit FactorSlider(QWidget* parent);

  void setCaption(const QString& caption);
  void setRange(int minimum, int maximum);
  /// Without a signal.
  void setValue(int value);
  QSlider& slider() const { return *slider_; }

 Q_SIGNALS:
  /// A person has moved it.
  void moved(int value);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void showValue(int value);

  QLabel* caption_;
  QSlider* slider_;
  QLabel* value_;
};

}  // namespace kob::qt
