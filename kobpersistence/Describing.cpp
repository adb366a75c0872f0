// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/Describing.h>
#include <kobpersistence/Format.h>

namespace kob::persistence {

Text joined(std::initializer_list<TextView> pieces) {
  Text result;
  for (const TextView piece : pieces) {
    result += piece;
  }
  return result;
}

PersistFailure failure(std::initializer_list<TextView> pieces) {
  return PersistFailure(joined(pieces));
}

PersistFailure tooDeep() {
  return failure({u"The objects are nested deeper than ", decimal(deepestNesting),
                  u" levels, which is the most that a file may hold. Make the tree flatter."});
}

PersistFailure damaged(std::initializer_list<TextView> what) {
  return failure({u"The file is damaged: ", joined(what), u". Take it from a copy, or save it again."});
}

PersistFailure badFile(std::uint64_t offset, TextView what) {
  return failure({u"The file was written wrongly: ", what, u" (at byte ",
                  decimal(static_cast<std::int64_t>(offset)),
                  u"). Save it again with the program that it comes from."});
}

PersistFailure badRecord(std::uint32_t record, std::uint64_t offset, TextView what) {
  return badFile(offset, joined({u"in record ", decimal(record), u", ", what}));
}

}  // namespace kob::persistence
