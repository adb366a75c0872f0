// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Failure.h>

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace kob {

/// For lists whose changes nobody needs to be told of.
struct Unwatched {
  static void changed() noexcept {}
};

/// The container of the model's public lists: items are ordered and numbered from 1. A position
/// outside 1..count fails with FailureKind::InvalidIndex and changes nothing. A list is an object of its own,
/// held by reference, because a host may keep one and change it behind its owner's back. Watch::changed() is
/// called before each change. Items is what holds them. Used on one thread.
template <class T, class Watch = Unwatched, class Items = std::vector<T>>
class OrderedList {
 public:
  using const_iterator = typename Items::const_iterator;

  OrderedList() = default;
  OrderedList(const OrderedList& other) = default;
  OrderedList(OrderedList&& other) noexcept {
    Watch::changed();
    items_.swap(other.items_);
  }
  OrderedList& operator=(const OrderedList& other) {
    Watch::changed();
    items_ = other.items_;
    return *this;
  }
  OrderedList& operator=(OrderedList&& other) noexcept {
    Watch::changed();
    items_.swap(other.items_);
    return *this;
  }
  ~OrderedList() = default;

  std::int32_t Count() const noexcept { return static_cast<std::int32_t>(items_.size()); }

  /// The item at a position; the reference lives until the list is changed.
  const T& Item(std::int32_t position) const { return items_[index(position)]; }

  /// Makes room for so many items in one piece; nothing that can be asked for changes. A language count may
  /// be negative: no room then.
  void Reserve(std::int32_t count) {
    if (count > 0) {
      items_.reserve(static_cast<std::size_t>(count));
    }
  }

  void Add(T item) {
    Watch::changed();
    items_.push_back(std::move(item));
  }

  /// Inserts in front of the item at `before`.
  void Add(T item, std::int32_t before) {
    Watch::changed();
    items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(index(before)), std::move(item));
  }

  void Remove(std::int32_t position) {
    Watch::changed();
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(index(position)));
  }

  void Clear() {
    Watch::changed();
    if (items_.size() != 0) {
      // Out of the list first: releasing an item may run a host's code.
      Items gone;
      items_.swap(gone);
    }
  }

  const_iterator begin() const noexcept { return items_.begin(); }
  const_iterator end() const noexcept { return items_.end(); }

 private:
  std::size_t index(std::int32_t position) const {
    if (position < 1 || static_cast<std::size_t>(position) > items_.size()) {
      throw Failure(FailureKind::InvalidIndex);
    }
    return static_cast<std::size_t>(position) - 1;
  }

  Items items_;
};

}  // namespace kob
