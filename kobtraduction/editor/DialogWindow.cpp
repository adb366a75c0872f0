// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/DialogWindow.h>

namespace kob {

DialogWindow::~DialogWindow() = default;

void DialogWindow::setCaption(TextView caption) {
  if (caption_ != caption) {
    caption_ = caption;
    showCaption(caption_);
  }
}

void DialogWindow::setModified(bool modified) {
  if (isModified_ != modified) {
    isModified_ = modified;
    showModified(modified);
  }
}

void DialogWindow::showModal() {
  if (isShown_) {
    return;
  }
  isShown_ = true;
  try {
    runModal();
  } catch (...) {
    isShown_ = false;
    throw;
  }
  isShown_ = false;
  if (failure_ != nullptr) {
    std::rethrow_exception(std::exchange(failure_, nullptr));
  }
}

void DialogWindow::hide() noexcept {
  if (isShown_) {
    isShown_ = false;
    endModal();
  }
}

}  // namespace kob
