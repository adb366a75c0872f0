// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

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
  explicit HeldList(std::in_place_t /*start*/, Parts... parts) : inside_(parts...), isInside_(true) {}

  /// The list, or null for none.
  List* get() const noexcept {
    if (isInside_) {
      return &inside_;
    }
    return apart_ != nullptr ? apart_->get() : nullptr;
  }

  /// The list as a reference; `owner` is the object that this lies in.
  std::shared_ptr<List> share(const std::shared_ptr<const void>& owner) const {
    if (!isInside_) {
      return apart_ != nullptr ? *apart_ : nullptr;
    }
    isShared_ = true;
    return {owner, &inside_};
  }

  /// The list becomes this one, or none.
  void assign(std::shared_ptr<List> list) {
    if (list.get() == &inside_) {
      // A reference to itself would never let go of the object.
      apart_ = nullptr;
      isInside_ = true;
      return;
    }
    apart_ = list != nullptr ? std::make_unique<std::shared_ptr<List>>(std::move(list)) : nullptr;
    clear();
  }

  /// The list becomes none.
  void drop() noexcept {
    apart_ = nullptr;
    clear();
  }

  /// The list becomes a new one.
  List& renew(List list) {
    if (isShared_) {
      assign(std::make_shared<List>(std::move(list)));
      return **apart_;
    }
    apart_ = nullptr;
    inside_ = std::move(list);
    isInside_ = true;
    return inside_;
  }

 private:
  void clear() noexcept {
    isInside_ = false;
    if (!isShared_) {
      inside_ = List();
    }
  }

  /// The list is part of what the object refers to, not of the object.
  mutable List inside_;
  /// Few objects are ever assigned a list, so the reference to it lies apart.
  std::unique_ptr<std::shared_ptr<List>> apart_;
  bool isInside_ = false;
  mutable bool isShared_ = false;
};

}  // namespace kob
