// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/Text.h>

namespace kob {

/// Asks a person under which name a file is to be saved.
class KOB_EXPORT SaveFileDialog {
 public:
  SaveFileDialog() = default;
  SaveFileDialog(const SaveFileDialog&) = delete;
  SaveFileDialog& operator=(const SaveFileDialog&) = delete;
  virtual ~SaveFileDialog();

  /// What files are offered: pairs of a description and a pattern, all separated by "|".
  const Text& filter() const noexcept { return filter_; }
  void setFilter(TextView filter) { filter_ = filter; }
  /// The name that is proposed.
  const Text& fileName() const noexcept { return fileName_; }
  void setFileName(TextView name) { fileName_ = name; }

  /// Shows it, modal over its window, and returns the chosen name, which is fileName() from then on; "" when
  /// the person has cancelled. Whether an existing file may be replaced is asked by it.
  Text showSave();

 protected:
  /// Reads filter() and fileName(). Called from within an event of the window.
  virtual Text choose() = 0;

 private:
  Text filter_;
  Text fileName_;
};

}  // namespace kob
