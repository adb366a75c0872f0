// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/editor/Button.h>
#include <kobtraduction/editor/DialogWindow.h>
#include <kobtraduction/editor/Label.h>
#include <kobtraduction/editor/TextBox.h>
#include <kobtraduction/editor/WidgetSet.h>

#include <memory>

namespace kob {

/// Asks for the name of a new translation. Used on one thread, over its owner's window. Internal.
class DlgAddTrad {
 public:
  DlgAddTrad(WidgetSet& widgets, DialogWindow& owner);
  DlgAddTrad(const DlgAddTrad&) = delete;
  DlgAddTrad& operator=(const DlgAddTrad&) = delete;

  /// Shows it; whether a person closed it with OK. What was entered can be asked for afterwards.
  bool Ask();

  const Text& nom() const noexcept { return tbNomTrad_.text(); }

 private:
  std::unique_ptr<DialogWindow> window_;
  Label& Label1_;
  TextBox& tbNomTrad_;
  Button& bOk_;
  Button& bCancel_;
  bool result_ = false;
};

}  // namespace kob
