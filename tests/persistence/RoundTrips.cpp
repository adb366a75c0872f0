// SPDX-FileCopyrightText: The KOBTraduction authors
#include "RoundTrips.h"

#include "PlainModel.h"
#include "tests/doubles/RecordedMessages.h"

#include <kobtraduction/component/Global_Util.h>
#include <rapidcheck.h>

namespace kob::test {

namespace {

constexpr TextView file = u"a";

/// A model of that tree, and the language count at which it is saved.
void makeModel(KOBModeleTraduction& model, const PlainCell& tree, std::int32_t languages) {
  Global_Util::setNbLangues(languages);
  build(tree, model.Racine());
}

/// Loads into a model of a thread that counted otherwise before.
bool loads(KOBModeleTraduction& model) {
  Global_Util::setNbLangues(*rc::gen::inRange(0, 9));
  return model.Load(file);
}

std::int32_t anyLanguageCount(std::int32_t fewest) {
  return *rc::gen::inRange(fewest, 7);
}

std::string printed(const KOBModeleTraduction& model) {
  return print(*plainOf(*model.Racine()));
}

}  // namespace

void loadGivesWhatTheRecordsDescribe(std::int32_t fewestLanguages) {
  const testing::RecordedMessages messages;
  const PlainCell tree = anyTree();
  const std::int32_t languages = anyLanguageCount(fewestLanguages);
  const Kept kept = keptByAFile(tree, languages);
  RC_CLASSIFY(!kept.isSaved, "not saved whole");
  RC_CLASSIFY(!kept.isLoaded, "not loaded whole");
  KOBModeleTraduction model;
  makeModel(model, tree, languages);
  RC_ASSERT(model.Save(file) == kept.isSaved);
  RC_ASSERT(printed(model) == print(tree));
  KOBModeleTraduction read;
  RC_ASSERT(loads(read) == kept.isLoaded);
  RC_ASSERT(Global_Util::NbLangues() == languages);
  RC_ASSERT(printed(read) == print(*kept.root));
  RC_ASSERT(messages.isEmpty());
}

void aSecondRoundIsTheIdentity(std::int32_t fewestLanguages) {
  const std::int32_t languages = anyLanguageCount(fewestLanguages);
  KOBModeleTraduction model;
  makeModel(model, anyTree(), languages);
  RC_PRE(model.Save(file));
  KOBModeleTraduction once;
  const bool isWhole = loads(once);
  RC_ASSERT(once.Save(file));
  KOBModeleTraduction twice;
  RC_ASSERT(loads(twice));
  RC_CLASSIFY(isWhole, "nothing was lost");
  RC_ASSERT(Global_Util::NbLangues() == languages);
  RC_ASSERT(printed(twice) == printed(once));
}

void whatADamagedModelLeavesIsSavedAsDescribed(std::int32_t fewestLanguages) {
  const std::int32_t languages = anyLanguageCount(fewestLanguages);
  KOBModeleTraduction model;
  makeModel(model, anyTree(), languages);
  model.Save(file);
  KOBModeleTraduction once;
  loads(once);
  const Kept kept = keptByAFile(*plainOf(*once.Racine()), languages);
  RC_ASSERT(once.Save(file) == kept.isSaved);
  KOBModeleTraduction twice;
  RC_ASSERT(loads(twice) == kept.isLoaded);
  RC_ASSERT(printed(twice) == print(*kept.root));
}

}  // namespace kob::test
