// SPDX-FileCopyrightText: The KOBTraduction authors
// Loads and saves translation files on this system, to be compared with what another one makes of them.
//   kobresave make FILE      a model with all that a file can hold
//   kobresave again IN OUT   every .trad of the folder IN is saved under its name in the folder OUT; prints
//   what it holds

#include <kobpersistence/KOBPersistence.h>
#include <kobtraduction/model/KOBModeleTraduction.h>
#include <tests/doubles/TreeText.h>
#include <tests/doubles/Utf8.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

namespace kob::testing {
namespace {

namespace fs = std::filesystem;

constexpr const char* fullTree = R"(
  "Écran \\ principal" node control context left=1 width=-1 width[2]=1.5 left[3]=0.3333333333333333
    .Caption "Accueil é Ж 漢" 2="" 3="\u{d800}" 6="seul\u{dfff}"
    .ToolTip "" 2="\r\n\t"
    ok control left=-1 width=-1 left[1]=1 width[6]=-0
    Vente node context
      Deep node
        Deeper message
          . "texte" 5="fünf"
  Titre message alias="Der Titel"
    . "Bonjour" 2="Hello" 4=""
  vide node
)";

int make(const fs::path& file) {
  KOBModeleTraduction model;
  growTree(model.Racine(), fullTree);
  return model.Save(fromUtf8(file.string())) ? 0 : 1;
}

int saveAgain(const fs::path& from, const fs::path& to) {
  std::vector<fs::path> files;
  for (const fs::directory_entry& entry : fs::directory_iterator(from)) {
    if (entry.path().extension() == ".trad") {
      files.push_back(entry.path());
    }
  }
  std::sort(files.begin(), files.end());
  fs::create_directories(to);
  for (const fs::path& file : files) {
    KOBModeleTraduction model;
    if (!model.Load(fromUtf8(file.string())) || !model.Save(fromUtf8((to / file.filename()).string()))) {
      return 1;
    }
    std::puts(file.filename().string().c_str());
  }
  return 0;
}

int show(const fs::path& file) {
  KOBModeleTraduction model;
  if (!model.Load(fromUtf8(file.string()))) {
    return 1;
  }
  std::fputs(printTree(*model.Racine()).c_str(), stdout);
  return 0;
}

}  // namespace
}  // namespace kob::testing

int main(int count, char** words) {
  const std::vector<std::string> given(words + 1, words + count);
  try {
    kob::usePersistence();
    if (given.size() == 2 && given[0] == "make") {
      return kob::testing::make(given[1]);
    }
    if (given.size() == 2 && given[0] == "show") {
      return kob::testing::show(given[1]);
    }
    if (given.size() == 3 && given[0] == "again") {
      return kob::testing::saveAgain(given[1], given[2]);
    }
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "kobresave: %s\n", failure.what());
    return 1;
  }
  std::fputs("kobresave make FILE, kobresave again IN OUT, kobresave show FILE\n", stderr);
  return 2;
}
