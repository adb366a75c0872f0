// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "LateBound.h"

#include <KOBTraduction.h>
#include <kobtraduction/persistence/PersistStream.h>

#include <cstdint>

namespace kob::automation {

/// A record of a host's persistence service: a stream with the interface IKOBVBStream, or any object that has
/// its members by name. What the stream refuses ends the record, as a Failure.
class HostStream final : public PersistStream {
 public:
  explicit HostStream(IDispatch* stream);

  std::int32_t Version() override;
  void setVersion(std::int32_t version) override;
  void WriteValue(const PersistValue& value) override;
  const PersistValue& ReadValue() override;

 private:
  DISPID memberOf(TextView name) const;

  LateBound stream_;
  /// None for a stream that is known by name only.
  ComRef<IKOBVBStream> typed_;
  /// What was read last, and its text.
  PersistValue value_ = PersistValue::ofLong(0);
  Text text_;
};

}  // namespace kob::automation
