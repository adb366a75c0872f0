// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Failure.h>

namespace kob {

Failure::~Failure() = default;

const char* Failure::what() const noexcept {
  switch (kind_) {
    case FailureKind::InvalidCall:
      return "invalid call: this cannot be done with what was given";
    case FailureKind::InvalidIndex:
      return "invalid index: the position is outside 1..count of the list";
    case FailureKind::TypeMismatch:
      return "type mismatch: the value does not convert to what is needed";
    case FailureKind::ObjectNotSet:
      return "object not set: a member was asked of a reference to nothing";
    case FailureKind::PropertyMissing:
      return "property missing: the object has no such property, or refuses the value";
  }
  return "unknown failure";
}

}  // namespace kob
