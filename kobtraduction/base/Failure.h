// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>

#include <exception>

namespace kob {

/// What went wrong, in the terms that automation hosts know. The values are the run-time error numbers that
/// such a host sees, so they are published and never change.
enum class FailureKind : int {
  InvalidCall = 5,        ///< an operation that cannot be done with what it was given
  InvalidIndex = 9,       ///< a position outside 1..count of a list
  TypeMismatch = 13,      ///< a value that does not convert to what is needed
  ObjectNotSet = 91,      ///< a member was asked of a reference to nothing
  PropertyMissing = 438,  ///< the object has no such property, or refuses the value
};

/// The one exception family of the component. A failure that no rule of the component handles reaches the
/// caller as a Failure; bindings turn it into their host's kind of error.
class KOB_EXPORT Failure : public std::exception {
 public:
  explicit Failure(FailureKind kind) noexcept : kind_(kind) {}
  ~Failure() override;

  FailureKind kind() const noexcept { return kind_; }

  /// A short English description of the kind; static storage.
  const char* what() const noexcept override;

 private:
  FailureKind kind_;
};

}  // namespace kob
