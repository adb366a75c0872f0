// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/CheckBox.h>

namespace kob {

CheckBox::~CheckBox() = default;

void CheckBox::setChecked(bool checked) {
  if (isChecked_ != checked) {
    isChecked_ = checked;
    showChecked(checked);
    raise(onClick_);
  }
}

void CheckBox::personClicked(bool checked) noexcept {
  if (isChecked_ != checked) {
    isChecked_ = checked;
    raiseForPerson(onClick_);
  }
}

}  // namespace kob
