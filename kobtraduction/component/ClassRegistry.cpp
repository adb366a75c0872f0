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
     [](ObjectPool&) -> PersistRef { return std::make_shared<KOBModeleTraduction>(); }},
    {u"KOBTraduction.KOBCellTraduction",
     [](ObjectPool& pool) -> PersistRef { return KOBCellTraduction::createIn(pool); }},
    {u"KOBTraduction.KOBTraductionObj",
     [](ObjectPool& pool) -> PersistRef {
       return std::allocate_shared<KOBTraductionObj>(PoolAllocator<KOBTraductionObj>(pool));
     }},
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
