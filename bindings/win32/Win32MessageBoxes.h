// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/component/MessageBoxes.h>

namespace kob::win32 {

class VisualStyles;

/// The component's messages as the system's message boxes, modal to the thread's active window or, without
/// one, to all windows of the thread. The thread's message boxes while it lives.
class Win32MessageBoxes final : public MessageBoxes {
 public:
  explicit Win32MessageBoxes(const VisualStyles& styles);
  Win32MessageBoxes(const Win32MessageBoxes&) = delete;
  Win32MessageBoxes& operator=(const Win32MessageBoxes&) = delete;
  ~Win32MessageBoxes() override;

  void notice(TextView text, TextView title, MessageIcon icon) override;
  bool question(TextView text, TextView title, MessageIcon icon) override;

 private:
  const VisualStyles& styles_;
  MessageBoxes* previous_;
};

}  // namespace kob::win32
