// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ServiceTest.h"

#include "tests/doubles/Utf8.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace kob::test {

namespace fs = std::filesystem;

FileBytes bytesOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void putBytes(const fs::path& file, const FileBytes& bytes) {
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  std::copy(bytes.begin(), bytes.end(), std::ostreambuf_iterator<char>(out));
}

ServiceTest::ServiceTest() : serviceBefore_(setPersistenceService(&makeFileManager)) {
  std::string pattern = (fs::temp_directory_path() / "kobXXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) {
    throw std::runtime_error("no folder for the test's files");
  }
  folder_ = pattern;
}

ServiceTest::~ServiceTest() {
  setPersistenceService(serviceBefore_);
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

Text ServiceTest::name(std::string_view file) const {
  return testing::fromUtf8(path(file).string());
}

std::vector<std::string> ServiceTest::files() const {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder_)) {
    names.push_back(entry.path().filename().string());
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
