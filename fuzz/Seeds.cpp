// SPDX-FileCopyrightText: The KOBTraduction authors
// Writes the files that the fuzzer starts from into a folder: small models of every kind, and every repair.
#include "RepairedFile.h"
#include "tests/doubles/TreeText.h"
#include "tests/kobpersistence/MemoryStorage.h"

#include <kobpersistence/FileManagerOn.h>
#include <kobpersistence/Format.h>
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace kob::fuzz {

namespace {

using persistence::Byte;

constexpr const char* trees[] = {
    "",
    R"(Titre message
  . "Bonjour" 2="Hello" 3="Goedendag"
)",
    R"(FrmMain node control left=1 width=-1
  .Caption "Accueil" 2="Accueil"
  Label1 control left=1 width=1 left[2]=1.5 width[3]=0.75 width[1]=1
    .Caption "Nom" 2="Name"
    .ToolTip "Votre nom €"
)",
    R"(a node
  b node context
    c node
      d message alias="D"
        . "日本" 2="日本" 3="x"
  e control
    .Caption ""
)",
};

void write(const std::filesystem::path& file, const Bytes& bytes) {
  std::ofstream(file, std::ios::binary)
      .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

Bytes saved(KOBModeleTraduction& model) {
  test::MemoryStorage storage;
  persistence::makeFileManagerOn(storage)->SaveToFile(u"seed", model, 1);
  return storage.files[u"seed"];
}

/// A small file with each byte of its records replaced in turn, by tags and by what begins a long number.
template <class Write>
void writeWrong(Write write) {
  KOBModeleTraduction model;
  Global_Util::setNbLangues(2);
  testing::growTree(model.Racine(), trees[2]);
  const Bytes whole = saved(model);
  const Byte replacements[] = {0xFF, static_cast<Byte>(persistence::Tag::Ones),
                               static_cast<Byte>(persistence::Tag::SameText),
                               static_cast<Byte>(persistence::Tag::NumberedObject)};
  const std::size_t records = recordsBegin();
  for (std::size_t at = records; at < whole.size() - persistence::checksumSize; ++at) {
    for (const Byte replacement : replacements) {
      Bytes wrong = whole;
      wrong[at] = replacement;
      write(wrong, Repair::Sums);
    }
  }
}

void writeSeeds(const std::filesystem::path& folder) {
  int number = 0;
  const auto writeWith = [&](Bytes bytes, Repair repair) {
    bytes.push_back(choiceOf(repair));
    write(folder / ("seed" + std::to_string(++number)), bytes);
  };
  for (const std::int32_t languages : {0, 1, 3, 20}) {
    for (const char* const tree : trees) {
      KOBModeleTraduction model;
      Global_Util::setNbLangues(languages < 3 ? 3 : languages);
      testing::growTree(model.Racine(), tree);
      Global_Util::setNbLangues(languages);
      writeWith(saved(model), languages == 3 ? Repair::Nothing : Repair::Records);
      writeWith(saved(model), languages == 3 ? Repair::Sums : Repair::Framing);
    }
  }
  writeWrong(writeWith);
  // One entry in two places.
  KOBModeleTraduction model;
  Global_Util::setNbLangues(3);
  testing::growTree(model.Racine(), trees[2]);
  const auto entries = model.GetCell(u"FrmMain\\Label1")->ColTraduction();
  entries->Add(entries->Item(1));
  entries->Add(nullptr);
  writeWith(saved(model), Repair::Records);
  writeWith(saved(model), Repair::Nothing);
}

}  // namespace

}  // namespace kob::fuzz

int main(int count, char** arguments) {
  if (count != 2) {
    std::fputs("usage: kobfuzz_seeds FOLDER\n", stderr);
    return 2;
  }
  std::filesystem::create_directories(arguments[1]);
  kob::fuzz::writeSeeds(arguments[1]);
  return 0;
}
