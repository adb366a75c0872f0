// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Win32Binding.h"

#include "VisualStyles.h"
#include "Win32MessageBoxes.h"
#include "editor/Win32WidgetSet.h"

namespace kob::win32 {

class Win32Binding::Private {
 public:
  explicit Private(HINSTANCE module) : styles_(module), boxes_(styles_), widgets_(module, styles_) {}

 private:
  VisualStyles styles_;
  Win32MessageBoxes boxes_;
  Win32WidgetSet widgets_;
};

Win32Binding::Win32Binding(HINSTANCE module) : d_(std::make_unique<Private>(module)) {}

Win32Binding::~Win32Binding() = default;

}  // namespace kob::win32
