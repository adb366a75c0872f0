// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FactorSlider.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>

namespace kob::qt {

namespace {

constexpr int bigStep = 10;
constexpr int leastWidth = 34;

}  // namespace

FactorSlider::FactorSlider(QWidget* parent)
    : QWidget(parent),
      caption_(new QLabel(this)),
      slider_(new QSlider(Qt::Horizontal, this)),
      value_(new QLabel(this)) {
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  row->addWidget(caption_);
  row->addWidget(slider_, 1);
  row->addWidget(value_);
  slider_->setPageStep(bigStep);
  slider_->setMinimumWidth(leastWidth);
  slider_->setFocusPolicy(Qt::StrongFocus);
  slider_->installEventFilter(this);
  setFocusProxy(slider_);
  value_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  // All values need the same room, so that nothing moves with them.
  value_->setMinimumWidth(value_->fontMetrics().horizontalAdvance(QStringLiteral("400 %")));
  connect(slider_, &QSlider::valueChanged, this, [this](int value) {
    showValue(value);
    emit moved(value);
  });
}

void FactorSlider::setCaption(const QString& caption) {
  caption_->setText(caption);
}

void FactorSlider::setRange(int minimum, int maximum) {
  const QSignalBlocker quiet(slider_);
  slider_->setRange(minimum, maximum);
}

void FactorSlider::setValue(int value) {
  const QSignalBlocker quiet(slider_);
  slider_->setValue(value);
  showValue(value);
}

void FactorSlider::showValue(int value) {
  value_->setText(QStringLiteral("%1 %").arg(value));
}

bool FactorSlider::eventFilter(QObject* watched, QEvent* event) {
  // Somebody who scrolls the pane must not change what comes under the mouse.
  if (watched == slider_ && event->type() == QEvent::Wheel && !slider_->hasFocus()) {
    event->ignore();
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace kob::qt
