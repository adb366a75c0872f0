// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/DialogWindow.h>
#include <kobtraduction/editor/PictureBox.h>

namespace kob {

PictureBox::~PictureBox() = default;

void PictureBox::setPointer(MousePointer pointer) {
  if (pointer_ != pointer) {
    pointer_ = pointer;
    showPointer(pointer);
  }
}

void PictureBox::personMovedMouse(double x, bool leftOnly) noexcept {
  window().dispatch([this, x, leftOnly] {
    if (onMouseMove_) {
      onMouseMove_(x, leftOnly);
    }
  });
}

}  // namespace kob
