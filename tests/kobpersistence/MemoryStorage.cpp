// SPDX-FileCopyrightText: The KOBTraduction authors
#include "MemoryStorage.h"

#include <kobpersistence/FileManagerOn.h>

#include <algorithm>
#include <utility>

namespace kob::test {

namespace {

using Bytes = std::vector<std::uint8_t>;

class MemoryReadable final : public persistence::ReadableFile {
 public:
  explicit MemoryReadable(Bytes bytes) : bytes_(std::move(bytes)) {}
  std::uint64_t size() override { return bytes_.size(); }
  std::size_t read(persistence::Byte* to, std::size_t size) override {
    const std::size_t now = std::min(size, bytes_.size() - at_);
    std::copy_n(bytes_.data() + at_, now, to);
    at_ += now;
    return now;
  }

 private:
  Bytes bytes_;
  std::size_t at_ = 0;
};

class MemoryWritable final : public persistence::WritableFile {
 public:
  explicit MemoryWritable(Bytes& target) : target_(target) {}
  void write(const persistence::Byte* from, std::size_t size) override {
    bytes_.insert(bytes_.end(), from, from + size);
  }
  void writeAtStart(const persistence::Byte* from, std::size_t size) override {
    std::copy_n(from, size, bytes_.data());
  }
  void startOver() override { bytes_.clear(); }
  void sync() override {}
  void replace() override { target_ = bytes_; }

 private:
  Bytes& target_;
  Bytes bytes_;
};

MemoryStorage* storageInUse = nullptr;

}  // namespace

std::unique_ptr<persistence::ReadableFile> MemoryStorage::open(TextView name) {
  return std::make_unique<MemoryReadable>(files[Text(name)]);
}

std::unique_ptr<persistence::WritableFile> MemoryStorage::createBeside(TextView name) {
  return std::make_unique<MemoryWritable>(files[Text(name)]);
}

MemoryService::MemoryService()
    : before_(setPersistenceService([] { return persistence::makeFileManagerOn(*storageInUse); })) {
  storageInUse = &storage;
}

MemoryService::~MemoryService() {
  setPersistenceService(before_);
}

}  // namespace kob::test
