// SPDX-FileCopyrightText: The KOBTraduction authors
#include "PlainModel.h"
#include "tests/doubles/RecordedMessages.h"
#include "tests/doubles/ScriptedService.h"

#include <gtest/gtest.h>
#include <kobtraduction/component/Global_Util.h>
#include <rapidcheck/gtest.h>

namespace kob::test {
namespace {

using kob::testing::RecordedMessages;
using kob::testing::ScriptedService;

/// A model of that tree, and the language count at which it is saved.
void makeModel(KOBModeleTraduction& model, const PlainCell& tree, std::int32_t languages) {
  Global_Util::setNbLangues(languages);
  build(tree, model.Racine());
}

/// Loads into a model of a thread that counted otherwise before.
bool loads(KOBModeleTraduction& model) {
  Global_Util::setNbLangues(*rc::gen::inRange(0, 9));
  return model.Load(u"a");
}

std::int32_t anyLanguageCount() {
  return *rc::gen::inRange(-1, 7);
}

RC_GTEST_PROP(RoundTrips, LoadGivesWhatTheRecordsDescribe, ()) {
  RecordedMessages messages;
  ScriptedService service;
  const PlainCell tree = anyTree();
  const std::int32_t languages = anyLanguageCount();
  const Kept kept = keptByAFile(tree, languages);
  RC_CLASSIFY(!kept.isSaved, "not saved whole");
  RC_CLASSIFY(!kept.isLoaded, "not loaded whole");
  KOBModeleTraduction model;
  makeModel(model, tree, languages);
  RC_ASSERT(model.Save(u"a") == kept.isSaved);
  RC_ASSERT(print(*plainOf(*model.Racine())) == print(tree));
  KOBModeleTraduction read;
  RC_ASSERT(loads(read) == kept.isLoaded);
  RC_ASSERT(Global_Util::NbLangues() == languages);
  RC_ASSERT(print(*plainOf(*read.Racine())) == print(*kept.root));
  RC_ASSERT(messages.isEmpty());
}

RC_GTEST_PROP(RoundTrips, ASecondRoundIsTheIdentity, ()) {
  ScriptedService service;
  const PlainCell tree = anyTree();
  const std::int32_t languages = anyLanguageCount();
  KOBModeleTraduction model;
  makeModel(model, tree, languages);
  RC_PRE(model.Save(u"a"));
  KOBModeleTraduction once;
  const bool isWhole = loads(once);
  RC_ASSERT(once.Save(u"a"));
  KOBModeleTraduction twice;
  RC_ASSERT(loads(twice));
  RC_CLASSIFY(isWhole, "nothing was lost");
  RC_ASSERT(Global_Util::NbLangues() == languages);
  RC_ASSERT(print(*plainOf(*twice.Racine())) == print(*plainOf(*once.Racine())));
}

RC_GTEST_PROP(RoundTrips, AlsoWhatADamagedModelLeavesIsSavedAsDescribed, ()) {
  ScriptedService service;
  const std::int32_t languages = anyLanguageCount();
  KOBModeleTraduction model;
  makeModel(model, anyTree(), languages);
  model.Save(u"a");
  KOBModeleTraduction once;
  loads(once);
  const Kept kept = keptByAFile(*plainOf(*once.Racine()), languages);
  RC_ASSERT(once.Save(u"a") == kept.isSaved);
  KOBModeleTraduction twice;
  RC_ASSERT(loads(twice) == kept.isLoaded);
  RC_ASSERT(print(*plainOf(*twice.Racine())) == print(*kept.root));
}

}  // namespace
}  // namespace kob::test
