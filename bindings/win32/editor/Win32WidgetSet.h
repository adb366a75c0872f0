// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Controls.h"

#include <kobtraduction/editor/WidgetSet.h>

namespace kob::win32 {

/// The editor's windows on controls of the system; the thread's widget set while it lives.
class Win32WidgetSet final : public WidgetSet {
 public:
  Win32WidgetSet(HINSTANCE module, const VisualStyles& styles);
  Win32WidgetSet(const Win32WidgetSet&) = delete;
  Win32WidgetSet& operator=(const Win32WidgetSet&) = delete;
  ~Win32WidgetSet() override;

  std::unique_ptr<DialogWindow> makeWindow(DialogKind kind, DialogWindow* owner) override;

 private:
  HINSTANCE module_;
  const VisualStyles& styles_;
  Controls controls_;
  WidgetSet* previous_;
};

}  // namespace kob::win32
