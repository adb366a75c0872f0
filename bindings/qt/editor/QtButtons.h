// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "FactorSlider.h"
#include "OnScreen.h"

#include <kobtraduction/editor/Button.h>
#include <kobtraduction/editor/CheckBox.h>
#include <kobtraduction/editor/Frame.h>
#include <kobtraduction/editor/Label.h>
#include <kobtraduction/editor/OptionButton.h>
#include <kobtraduction/editor/Slider.h>

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

namespace kob::qt {

using QtFrame = OnScreen<Frame, QGroupBox>;
using QtLabel = OnScreen<Label, QLabel>;

class QtButton final : public OnScreen<Button, QPushButton> {
 public:
  using OnScreen::OnScreen;
  /// Reports what a person does as long as `reports` lives.
  void listen(QObject& reports);
};

class QtCheckBox final : public OnScreen<CheckBox, QCheckBox> {
 public:
  using OnScreen::OnScreen;
  void listen(QObject& reports);

 protected:
  /// `clicked`, which is reported, is for a person alone.
  void showChecked(bool checked) override { control().setChecked(checked); }
};

/// The buttons of a group share a QButtonGroup.
class QtOptionButton final : public OnScreen<OptionButton, QRadioButton> {
 public:
  using OnScreen::OnScreen;
  void listen(QObject& reports);

 protected:
  void showOn(bool on) override;

 private:
  void letTabReach();

  bool isQuiet_ = false;
};

class QtSlider final : public OnScreen<Slider, FactorSlider> {
 public:
  using OnScreen::OnScreen;
  void listen(QObject& reports);

 protected:
  void showCaption(TextView caption) override { control().setCaption(toQString(caption)); }
  void showRange(std::int32_t minimum, std::int32_t maximum) override {
    control().setRange(minimum, maximum);
  }
  void showValue(std::int32_t value) override { control().setValue(value); }
};

}  // namespace kob::qt
