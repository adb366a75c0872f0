// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/DialogWindow.h>
#include <kobtraduction/editor/TextBox.h>

namespace kob {

TextBox::~TextBox() = default;

void TextBox::setText(TextView text) {
  if (text_ != text) {
    text_ = text;
    showText(text_);
    raise(onChange_);
  }
}

void TextBox::setLocked(bool locked) {
  if (isLocked_ != locked) {
    isLocked_ = locked;
    showLocked(locked);
  }
}

void TextBox::personTyped(TextView text) noexcept {
  window().dispatch([this, text] {
    if (text_ != text) {
      text_ = text;
      raise(onChange_);
    }
  });
}

}  // namespace kob
