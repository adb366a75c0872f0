// SPDX-FileCopyrightText: The KOBTraduction authors
// The reader of files: what it loads, it can save and load again; what it refuses has changed nothing.
#include "RepairedFile.h"
#include "tests/kobpersistence/MemoryStorage.h"

#include <kobpersistence/FileManagerOn.h>
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraduction/persistence/FileManager.h>

#include <cstdio>
#include <cstdlib>

namespace kob::fuzz {

namespace {

constexpr std::int32_t languagesBefore = 6;
/// With more languages than this, the service may find that a small file cannot be in so many.
constexpr std::int32_t surelyLoaded = 255;

void require(bool holds, const char* what, TextView description = {}) {
  if (!holds) {
    std::fprintf(stderr, "FAILED: %s %s\n", what, toUtf8(description).c_str());
    std::abort();
  }
}

/// Why the file was refused, or nothing.
Text load(FileManager& files, TextView name, KOBModeleTraduction& model) {
  try {
    Global_Util::setPersistOk(true);
    files.LoadFromFile(name, model);
    return {};
  } catch (const PersistFailure& failure) {
    require(!failure.description().empty(), "a refusal says why");
    return failure.description();
  }
}

void tryFile(Bytes file) {
  test::MemoryStorage storage;
  storage.files[u"given"] = std::move(file);
  const auto files = persistence::makeFileManagerOn(storage);
  Global_Util::setNbLangues(languagesBefore);
  KOBModeleTraduction model;
  const auto root = model.Racine();
  if (!load(*files, u"given", model).empty()) {
    require(Global_Util::NbLangues() == languagesBefore, "a refused file leaves the language count");
    require(model.Racine() == root, "a refused file leaves the root");
    return;
  }
  // A record that failed leaves fields as a new object has them, and those a record may not describe.
  const bool isWhole = Global_Util::PersistOk();
  const std::int32_t languages = Global_Util::NbLangues();
  Global_Util::setPersistOk(true);
  files->SaveToFile(u"saved", model, 1);
  require(Global_Util::PersistOk() || !isWhole, "what was loaded whole can be saved");
  KOBModeleTraduction again;
  Global_Util::setNbLangues(languagesBefore);
  const Text refusal = load(*files, u"saved", again);
  require(refusal.empty() || languages > surelyLoaded, "what was saved can be loaded:", refusal);
  if (!refusal.empty()) {
    return;
  }
  require(Global_Util::NbLangues() == languages, "the language count comes back");
  if (isWhole) {
    require(Global_Util::PersistOk(), "what was saved whole is loaded whole");
    files->SaveToFile(u"saved again", again, 1);
    require(storage.files[u"saved"] == storage.files[u"saved again"], "the bytes stay the same");
  }
}

}  // namespace

}  // namespace kob::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kob::fuzz;
  if (size > 0) {
    tryFile(repaired({data, data + size - 1}, repairOf(data[size - 1])));
  }
  return 0;
}
