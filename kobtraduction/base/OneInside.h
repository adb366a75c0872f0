// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <new>
#include <utility>

namespace kob {

/// As much of std::vector as an OrderedList needs, made for lists of which very many have one item: a single
/// item lies in the object itself. Moving an item never fails.
template <class T>
class OneInside {
 public:
  using const_iterator = const T*;

  OneInside() noexcept = default;
  OneInside(const OneInside& other) {
    reserve(other.size_);
    std::uninitialized_copy(other.begin(), other.end(), data());
    size_ = other.size_;
  }
  OneInside& operator=(const OneInside& other) {
    OneInside copy(other);
    swap(copy);
    return *this;
  }
  ~OneInside() {
    std::destroy_n(data(), size_);
    if (isApart()) {
      std::allocator<T>().deallocate(place_.apart, capacity_);
    }
  }

  void swap(OneInside& other) noexcept {
    OneInside kept;
    kept.take(*this);
    take(other);
    other.take(kept);
  }

  std::size_t size() const noexcept { return size_; }
  const_iterator begin() const noexcept { return data(); }
  const_iterator end() const noexcept { return data() + size_; }
  const T& operator[](std::size_t index) const noexcept { return data()[index]; }

  /// Has room for so many items.
  void reserve(std::size_t count) {
    if (count <= capacity_) {
      return;
    }
    if (count > std::numeric_limits<std::uint32_t>::max()) {
      throw std::bad_alloc();
    }
    OneInside larger;
    larger.place_.apart = std::allocator<T>().allocate(count);
    larger.capacity_ = static_cast<std::uint32_t>(count);
    std::uninitialized_move(data(), data() + size_, larger.data());
    larger.size_ = size_;
    clear();
    swap(larger);
  }

  void push_back(T item) { insert(end(), std::move(item)); }

  void insert(const_iterator before, T item) {
    const std::ptrdiff_t place = before - begin();
    if (size_ == capacity_) {
      reserve(std::size_t{capacity_} * 2);
    }
    std::construct_at(data() + size_, std::move(item));
    std::rotate(data() + place, data() + size_, data() + size_ + 1);
    ++size_;
  }

  void erase(const_iterator item) {
    T* const erased = data() + (item - begin());
    // Kept until the list is whole again: releasing an item may run a host's code.
    const T kept = std::move(*erased);
    std::move(erased + 1, data() + size_, erased);
    --size_;
    std::destroy_at(data() + size_);
  }

 private:
  bool isApart() const noexcept { return capacity_ > 1; }
  T* data() noexcept { return isApart() ? place_.apart : &place_.inside; }
  const T* data() const noexcept { return isApart() ? place_.apart : &place_.inside; }

  void clear() noexcept {
    std::destroy_n(data(), size_);
    size_ = 0;
  }

  /// This one is empty and has nothing apart; then the other one is.
  void take(OneInside& other) noexcept {
    if (other.isApart()) {
      place_.apart = other.place_.apart;
    } else if (other.size_ > 0) {
      std::construct_at(&place_.inside, std::move(other.place_.inside));
      std::destroy_at(&other.place_.inside);
    }
    size_ = std::exchange(other.size_, 0);
    capacity_ = std::exchange(other.capacity_, 1);
  }

  union Place {
    Place() noexcept : apart(nullptr) {}
    ~Place() {}  // NOLINT(modernize-use-equals-default): deleted when an item has its own.
    T inside;
    T* apart;
  } place_;
  std::uint32_t size_ = 0;
  /// 1 as long as there is nothing but the place inside.
  std::uint32_t capacity_ = 1;
};

}  // namespace kob
