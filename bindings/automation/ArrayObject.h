// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Com.h"

#include <kobtraduction/engine/HostObject.h>

#include <optional>

namespace kob::automation {

/// A host's array where a collection is expected: its elements count from 1, whatever bounds the host gave
/// it.
class ArrayObject final : public HostObject {
 public:
  /// A copy of the array in `variant`; empty for more than one dimension.
  static std::optional<Value> make(const VARIANT& variant);

  /// Takes over the array of a variant.
  explicit ArrayObject(const VARIANT& array);

  std::optional<Value> get(Property property) override;
  std::optional<Value> item(std::int32_t index) override;
  std::optional<std::vector<HostRef>> enumerate() override;

 private:
  SAFEARRAY* array() const noexcept;
  LONG lowest() const noexcept;
  LONG count() const noexcept;
  /// An element by the host's own number.
  std::optional<Value> element(LONG number) const;

  Variant array_;
};

}  // namespace kob::automation
