// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/component/ClassRegistry.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

#include <memory>

namespace kob {

namespace {

struct KnownClass {
  TextView progId;
  MakeObject make;
};

// The identifiers are stored in files and known to hosts: they never change.
constexpr KnownClass knownClasses[] = {
    {u"KOBTraduction.KOBModeleTraduction",
     []() -> PersistRef { return std::make_shared<KOBModeleTraduction>(); }},
    {u"KOBTraduction.KOBCellTraduction", []() -> PersistRef { return KOBCellTraduction::create(); }},
    {u"KOBTraduction.KOBTraductionObj", []() -> PersistRef { return std::make_shared<KOBTraductionObj>(); }},
};

}  // namespace

MakeObject findClass(TextView progId) noexcept {
  for (const KnownClass& known : knownClasses) {
    if (known.progId == progId) {
      return known.make;
    }
  }
  return nullptr;
}

}  // namespace kob
