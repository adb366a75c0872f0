// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/DialogWindow.h>
#include <kobtraduction/editor/Widget.h>

namespace kob {

Widget::~Widget() = default;

void Widget::setCaption(TextView caption) {
  if (caption_ != caption) {
    caption_ = caption;
    showCaption(caption_);
  }
}

void Widget::setVisible(bool visible) {
  if (isVisible_ != visible) {
    isVisible_ = visible;
    showVisible(visible);
  }
}

void Widget::setEnabled(bool enabled) {
  if (isEnabled_ != enabled) {
    isEnabled_ = enabled;
    showEnabled(enabled);
  }
}

void Widget::raiseForPerson(const WidgetHandler& handler) noexcept {
  window_.dispatch([&handler] { raise(handler); });
}

}  // namespace kob
