// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "../WideText.h"

#include <windows.h>

namespace kob::win32 {

class NativeTree;
class Win32DialogWindow;

/// Keys of the editor for who works there all day; docs/editor.md lists them.
class WorkingKeys {
 public:
  explicit WorkingKeys(Win32DialogWindow& window);
  WorkingKeys(const WorkingKeys&) = delete;
  WorkingKeys& operator=(const WorkingKeys&) = delete;
  ~WorkingKeys();

  /// Whether a message was one of the keys, which has been pressed then.
  bool translate(MSG& message) const;
  /// Does what the command of a key asks for.
  void press(WORD command);

 private:
  void focusText(int index) const;
  void pressButton(TextView name) const;
  NativeTree& tree() const;

  Win32DialogWindow& window_;
  HACCEL table_;
};

}  // namespace kob::win32
