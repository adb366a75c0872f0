// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/Text.h>

namespace kob {

enum class MessageIcon { None, Critical };

/// The two questions that the component asks a person, shown by the binding. Both are modal: the call returns
/// when the person has answered. Called on the thread that uses the component; must not throw.
class KOB_EXPORT MessageBoxes {
 public:
  virtual ~MessageBoxes();

  /// A box with only an OK button. An empty title means a box without one.
  virtual void notice(TextView text, TextView title = {}, MessageIcon icon = MessageIcon::None) = 0;
  /// A box with Yes and No; true for Yes.
  virtual bool question(TextView text, TextView title = {}, MessageIcon icon = MessageIcon::None) = 0;
};

}  // namespace kob
