// SPDX-FileCopyrightText: The KOBTraduction authors
#include "RoundTrips.h"
#include "tests/doubles/ScriptedService.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace kob::test {
namespace {

constexpr std::int32_t fewestLanguages = -1;

RC_GTEST_PROP(RoundTrips, LoadGivesWhatTheRecordsDescribe, ()) {
  const kob::testing::ScriptedService service;
  loadGivesWhatTheRecordsDescribe(fewestLanguages);
}

RC_GTEST_PROP(RoundTrips, ASecondRoundIsTheIdentity, ()) {
  const kob::testing::ScriptedService service;
  aSecondRoundIsTheIdentity(fewestLanguages);
}

RC_GTEST_PROP(RoundTrips, AlsoWhatADamagedModelLeavesIsSavedAsDescribed, ()) {
  const kob::testing::ScriptedService service;
  whatADamagedModelLeavesIsSavedAsDescribed(fewestLanguages);
}

}  // namespace
}  // namespace kob::test
