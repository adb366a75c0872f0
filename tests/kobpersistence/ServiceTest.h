// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "tests/doubles/TreeText.h"
#include "tests/model/ModelVocabulary.h"

#include <gtest/gtest.h>
#include <kobpersistence/KOBPersistence.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// The words in which the cases of the persistence service are told.
namespace kob::test {

using FileBytes = std::vector<std::uint8_t>;

FileBytes bytesOf(const std::filesystem::path& file);
void putBytes(const std::filesystem::path& file, const FileBytes& bytes);

/// A folder that is empty at first and gone afterwards, six languages, and the service plugged in.
class ServiceTest : public ModelTest {
 public:
  ServiceTest();
  ~ServiceTest() override;

  /// A file of the folder, in UTF-8, as a path and as the component names it.
  std::filesystem::path path(std::string_view file) const;
  Text name(std::string_view file) const;
  /// What is in the folder, sorted.
  std::vector<std::string> files() const;

  /// What the box said that was shown last, in UTF-8; "" when none was.
  std::string lastNotice() const;

 private:
  std::filesystem::path folder_;
  MakeFileManager serviceBefore_;
};

/// The model with the cells of a text (see TreeText.h).
void grow(KOBModeleTraduction& model, std::string_view tree);
std::string printed(const KOBModeleTraduction& model);

}  // namespace kob::test
