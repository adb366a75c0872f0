// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ServiceTest.h"

#include "tests/doubles/Utf8.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

namespace kob::test {

namespace fs = std::filesystem;

FileBytes bytesOf(const fs::path& file) {
  std::error_code missing;
  const std::uintmax_t size = fs::file_size(file, missing);
  FileBytes bytes(missing ? 0 : size);
  std::ifstream(file, std::ios::binary)
      .read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

void putBytes(const fs::path& file, const FileBytes& bytes) {
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  std::copy(bytes.begin(), bytes.end(), std::ostreambuf_iterator<char>(out));
}

ServiceTest::ServiceTest() : serviceBefore_(setPersistenceService(&makeFileManager)) {
  std::random_device random;
  do {
    folder_ = fs::temp_directory_path() / ("kob" + std::to_string(random()));
  } while (!fs::create_directory(folder_));
}

ServiceTest::~ServiceTest() {
  setPersistenceService(serviceBefore_);
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

fs::path ServiceTest::path(std::string_view file) const {
  return folder_ / fs::path(testing::fromUtf8(file));
}

Text ServiceTest::name(std::string_view file) const {
  return path(file).u16string();
}

std::vector<std::string> ServiceTest::files() const {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder_)) {
    names.push_back(toUtf8(entry.path().filename().u16string()));
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string ServiceTest::lastNotice() const {
  return boxes.notices.empty() ? "" : toUtf8(boxes.notices.back());
}

void grow(KOBModeleTraduction& model, std::string_view tree) {
  testing::growTree(model.Racine(), tree);
}

std::string printed(const KOBModeleTraduction& model) {
  return testing::printTree(*model.Racine());
}

}  // namespace kob::test
