// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Storage.h>
#include <kobtraduction/persistence/FileManager.h>

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

namespace kob::test {

/// Files in memory, for cases of which there are thousands. A file that is not there is empty.
class MemoryStorage final : public persistence::Storage {
 public:
  std::unique_ptr<persistence::ReadableFile> open(TextView name) override;
  std::unique_ptr<persistence::WritableFile> createBeside(TextView name) override;

  std::map<Text, std::vector<std::uint8_t>, std::less<>> files;
};

/// Plugs in the service on files in memory while it lives.
class MemoryService {
 public:
  MemoryService();
  MemoryService(const MemoryService&) = delete;
  MemoryService& operator=(const MemoryService&) = delete;
  ~MemoryService();

  MemoryStorage storage;

 private:
  MakeFileManager before_;
};

}  // namespace kob::test
