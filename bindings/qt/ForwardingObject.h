// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/engine/HostObject.h>

namespace kob::qt {

/// A host object that passes every operation on to another one: what a view on it does not change.
class ForwardingObject : public HostObject {
 public:
  explicit ForwardingObject(HostRef target) noexcept : target_(std::move(target)) {}

  std::optional<Value> get(Property property) override { return target_->get(property); }
  bool set(Property property, const Value& value) override { return target_->set(property, value); }
  std::optional<Value> getIndexed(Property property, std::int32_t index) override {
    return target_->getIndexed(property, index);
  }
  bool setIndexed(Property property, std::int32_t index, const Value& value) override {
    return target_->setIndexed(property, index, value);
  }
  std::optional<Value> item(std::int32_t index) override { return target_->item(index); }
  std::optional<std::vector<HostRef>> enumerate() override { return target_->enumerate(); }
  bool mayHave(Property property) const noexcept override { return target_->mayHave(property); }
  bool tellPlace(PlainPlace& place) override { return target_->tellPlace(place); }
  void fetch() const noexcept override { target_->fetch(); }
  const void* identity() const noexcept override { return target_->identity(); }

 protected:
  const HostRef& target() const noexcept { return target_; }

 private:
  HostRef target_;
};

}  // namespace kob::qt
