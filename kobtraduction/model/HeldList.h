// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <cstdint>
#include <memory>
#include <utility>

namespace kob {

/// A list that an object offers as a reference of its own, and that lies inside the object as long as nobody
/// assigns another one: a model has very many of them, and hosts ask for few. Internal to the model's
/// classes.
///
/// The references that are given away keep the object alive. A list that was given away once is never emptied
/// for a new one: who kept the old list keeps its items.
template <class List>
class HeldList {
 public:
  HeldList() = default;
  /// An object that starts with a list, made of this.
  template <class... Parts>
  explicit HeldList(std::in_place_t /*start*/, Parts... parts) : inside_(parts...), state_(isInside) {}
  HeldList(const HeldList&) = delete;
  HeldList& operator=(const HeldList&) = delete;
  ~HeldList() { delete apart(); }

  /// The list, or null for none.
  List* get() const noexcept {
    if (is(isInside)) {
      return &inside_;
    }
    return apart() != nullptr ? apart()->get() : nullptr;
  }

  /// The list as a reference; `owner` is the object that this lies in.
  std::shared_ptr<List> share(const std::shared_ptr<const void>& owner) const {
    if (!is(isInside)) {
      return apart() != nullptr ? *apart() : nullptr;
    }
    state_ |= isShared;
    return {owner, &inside_};
  }

  /// The list becomes this one, or none.
  void assign(std::shared_ptr<List> list) {
    if (list.get() == &inside_) {
      // A reference to itself would never let go of the object.
      setApart(nullptr);
      state_ |= isInside;
      return;
    }
    setApart(list != nullptr ? std::make_unique<std::shared_ptr<List>>(std::move(list)) : nullptr);
    clear();
  }

  /// The list becomes none.
  void drop() noexcept {
    setApart(nullptr);
    clear();
  }

  /// The list becomes a new one, without items.
  List& renew() {
    if (is(isShared)) {
      assign(std::make_shared<List>());
      return **apart();
    }
    setApart(nullptr);
    inside_.Clear();
    state_ |= isInside;
    return inside_;
  }

 private:
  using Apart = std::shared_ptr<List>;

  // In the lowest bits of an address, which are 0.
  static constexpr std::uintptr_t isInside = 1;
  static constexpr std::uintptr_t isShared = 2;
  static_assert(alignof(Apart) > (isInside | isShared));

  bool is(std::uintptr_t flag) const noexcept { return (state_ & flag) != 0; }
  Apart* apart() const noexcept { return reinterpret_cast<Apart*>(state_ & ~(isInside | isShared)); }
  void setApart(std::unique_ptr<Apart> list) noexcept {
    const std::unique_ptr<Apart> old(apart());
    state_ = reinterpret_cast<std::uintptr_t>(list.release()) | (state_ & (isInside | isShared));
  }

  void clear() noexcept {
    state_ &= ~isInside;
    if (!is(isShared)) {
      inside_.Clear();
    }
  }

  /// The list is part of what the object refers to, not of the object.
  mutable List inside_;
  /// Few objects are ever assigned a list, so the reference to it lies apart: its address or 0, and the
  /// flags.
  mutable std::uintptr_t state_ = 0;
};

}  // namespace kob
