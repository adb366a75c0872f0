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
  /// An object that starts with a list.
  explicit HeldList(List list) : inside_(std::move(list)), place_(Place::Inside) {}

  /// The list, or null for none.
  List* get() const noexcept { return place_ == Place::Inside ? &inside_ : apart_.get(); }

  /// The list as a reference; `owner` is the object that this lies in.
  std::shared_ptr<List> share(const std::shared_ptr<const void>& owner) const {
    if (place_ != Place::Inside) {
      return apart_;
    }
    isShared_ = true;
    return {owner, &inside_};
  }

  /// The list becomes this one, or none.
  void assign(std::shared_ptr<List> list) noexcept {
    if (list.get() == &inside_) {
      // A reference to itself would never let go of the object.
      place_ = Place::Inside;
      apart_ = nullptr;
      return;
    }
    place_ = Place::Apart;
    apart_ = std::move(list);
    if (!isShared_) {
      inside_ = List();
    }
  }

  /// The list becomes a new one.
  List& renew(List list) {
    if (isShared_) {
      place_ = Place::Apart;
      apart_ = std::make_shared<List>(std::move(list));
      return *apart_;
    }
    place_ = Place::Inside;
    apart_ = nullptr;
    inside_ = std::move(list);
    return inside_;
  }

 private:
  enum class Place : std::uint8_t { Apart, Inside };

  /// The list is part of what the object refers to, not of the object.
  mutable List inside_;
  std::shared_ptr<List> apart_;
  Place place_ = Place::Apart;
  mutable bool isShared_ = false;
};

}  // namespace kob
