// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/Button.h>
#include <kobtraduction/editor/Frame.h>
#include <kobtraduction/editor/ImageList.h>
#include <kobtraduction/editor/Label.h>
#include <kobtraduction/editor/MenuItem.h>
#include <kobtraduction/editor/SaveFileDialog.h>

namespace kob {

Button::~Button() = default;
Frame::~Frame() = default;
ImageList::~ImageList() = default;
Label::~Label() = default;
MenuItem::~MenuItem() = default;
SaveFileDialog::~SaveFileDialog() = default;

Text SaveFileDialog::showSave() {
  Text chosen = choose();
  if (!chosen.empty()) {
    fileName_ = chosen;
  }
  return chosen;
}

}  // namespace kob
