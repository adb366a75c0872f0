// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/editor/SaveFileDialog.h>

#include <windows.h>

#include <functional>

namespace kob::win32 {

/// The system's dialog for a file to save to.
class NativeSaveFileDialog final : public SaveFileDialog {
 public:
  /// The window that it stands over.
  explicit NativeSaveFileDialog(std::function<HWND()> owner) : owner_(std::move(owner)) {}

 private:
  Text choose() override;

  std::function<HWND()> owner_;
};

}  // namespace kob::win32
