// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/editor/Widget.h>
#include <kobtraductionqt/KOBTraductionQt.h>

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

#include <type_traits>

namespace kob::qt {

/// A caption for what takes "&" as the mark of a key: the editor's captions have no such marks.
inline QString plainCaption(TextView caption) {
  return toQString(caption).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

/// One of the editor's widgets with what shows it. The window owns both, the toolkit's widget last.
template <class Kind, class Control>
class OnScreen : public Kind {
 public:
  template <class... More>
  OnScreen(DialogWindow& window, const WidgetId& id, Control& control, More... more)
      : Kind(window, id, more...), control_(control) {}

  Control& control() const noexcept { return control_; }

 protected:
  void showCaption([[maybe_unused]] TextView caption) override {
    if constexpr (std::is_base_of_v<QAbstractButton, Control>) {
      control_.setText(plainCaption(caption));
    } else if constexpr (std::is_base_of_v<QGroupBox, Control>) {
      control_.setTitle(plainCaption(caption));
    } else if constexpr (std::is_base_of_v<QLabel, Control>) {
      control_.setText(toQString(caption));
    }
  }
  void showVisible(bool visible) override { control_.setVisible(visible); }
  void showEnabled(bool enabled) override { control_.setEnabled(enabled); }

 private:
  Control& control_;
};

}  // namespace kob::qt
