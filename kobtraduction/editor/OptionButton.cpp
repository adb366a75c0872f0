// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/DialogWindow.h>
#include <kobtraduction/editor/OptionButton.h>

namespace kob {

OptionButton::OptionButton(DialogWindow& window, const WidgetId& id, OptionButton* group) noexcept
    : Widget(window, id), next_(this) {
  if (group != nullptr) {
    next_ = std::exchange(group->next_, this);
  }
}

OptionButton::~OptionButton() = default;

void OptionButton::setOn() {
  if (!isOn_) {
    choose();
    showOn(true);
    raise(onClick_);
  }
}

void OptionButton::personChose() noexcept {
  window().dispatch([this] {
    if (!isOn_) {
      choose();
      raise(onClick_);
    }
  });
}

void OptionButton::choose() {
  for (OptionButton* other = next_; other != this; other = other->next_) {
    if (other->isOn_) {
      other->isOn_ = false;
      other->showOn(false);
    }
  }
  isOn_ = true;
}

}  // namespace kob
