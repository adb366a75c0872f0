// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Catalogs.h"

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace bench {

/// One made-up model of controls, a hundred in a form, ten in a frame, with one entry each: about two entries
/// have the same reference text, and of the other languages every fourth text is missing, others in each
/// version.
class MergeModels {
 public:
  static constexpr int languages = 6;
  enum class Version { Own, Other };

  explicit MergeModels(int entries) : entries_(entries) {}

  int entries() const noexcept { return entries_; }
  /// Path\To\Control, UTF-8.
  std::string path(int entry) const;
  /// The text of one language, "" where it is missing.
  std::string text(Version version, int entry, int language) const;

  std::unique_ptr<kob::KOBModeleTraduction> model(Version version) const;
  /// One language as other systems keep it: the path is the context of the text.
  std::vector<Message> messages(Version version, int language) const;

 private:
  int number(int entry) const;

  int entries_;
};

/// UTF-8 to the component's text.
kob::Text utf16(const std::string& text);

/// The same entries in an array: what a program of one purpose would hold.
class MergeRecords {
 public:
  struct Record {
    kob::Text path;
    std::array<kob::Text, MergeModels::languages> texts;
  };

  MergeRecords(const MergeModels& models, MergeModels::Version version);

  std::vector<Record>& records() noexcept { return records_; }
  const std::vector<Record>& records() const noexcept { return records_; }
  /// Takes out again what was missing.
  void restore();

 private:
  MergeModels::Version version_;
  std::vector<Record> records_;
};

}  // namespace bench
