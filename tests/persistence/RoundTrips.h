// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <cstdint>

/// What holds for random models and every persistence service; to be called within a property, with a service
/// plugged in that keeps a file of the name "a". Language counts begin at `fewestLanguages`.
namespace kob::test {

void loadGivesWhatTheRecordsDescribe(std::int32_t fewestLanguages);
void aSecondRoundIsTheIdentity(std::int32_t fewestLanguages);
void whatADamagedModelLeavesIsSavedAsDescribed(std::int32_t fewestLanguages);

}  // namespace kob::test
