// SPDX-FileCopyrightText: The KOBTraduction authors
#include "MemoryStorage.h"
#include "tests/persistence/PlainModel.h"
#include "tests/persistence/RoundTrips.h"

#include <gtest/gtest.h>
#include <kobtraduction/component/Global_Util.h>
#include <rapidcheck/gtest.h>

namespace kob::test {
namespace {

/// A negative language count is refused.
constexpr std::int32_t fewestLanguages = 0;

RC_GTEST_PROP(FileRoundTrips, LoadGivesWhatTheRecordsDescribe, ()) {
  const MemoryService service;
  loadGivesWhatTheRecordsDescribe(fewestLanguages);
}

RC_GTEST_PROP(FileRoundTrips, ASecondRoundIsTheIdentity, ()) {
  const MemoryService service;
  aSecondRoundIsTheIdentity(fewestLanguages);
}

RC_GTEST_PROP(FileRoundTrips, AlsoWhatADamagedModelLeavesIsSavedAsDescribed, ()) {
  const MemoryService service;
  whatADamagedModelLeavesIsSavedAsDescribed(fewestLanguages);
}

RC_GTEST_PROP(FileRoundTrips, TheSameModelGivesTheSameBytes, ()) {
  MemoryService service;
  KOBModeleTraduction model;
  Global_Util::setNbLangues(*rc::gen::inRange(0, 7));
  build(anyTree(), model.Racine());
  model.Save(u"once");
  model.Save(u"twice");
  RC_ASSERT(service.storage.files[u"once"] == service.storage.files[u"twice"]);
}

RC_GTEST_PROP(FileRoundTrips, TheBytesStayTheSameFromTheSecondSaveOn, ()) {
  MemoryService service;
  KOBModeleTraduction model;
  Global_Util::setNbLangues(*rc::gen::inRange(0, 7));
  build(anyTree(), model.Racine());
  RC_PRE(model.Save(u"first"));
  KOBModeleTraduction once;
  once.Load(u"first");
  RC_ASSERT(once.Save(u"second"));
  KOBModeleTraduction twice;
  RC_ASSERT(twice.Load(u"second"));
  RC_ASSERT(twice.Save(u"third"));
  RC_ASSERT(service.storage.files[u"second"] == service.storage.files[u"third"]);
}

}  // namespace
}  // namespace kob::test
