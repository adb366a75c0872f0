// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <cstddef>
#include <new>

namespace kob::qt {

/// Memory for objects of one size that are made together, many to a block: an allocation for each costs as
/// much as making the object. A block is given back with the last of its objects, which may outlive the
/// maker. Used on one thread, that of the objects.
class ObjectBlocks {
 public:
  ObjectBlocks() = default;
  ObjectBlocks(const ObjectBlocks&) = delete;
  ObjectBlocks& operator=(const ObjectBlocks&) = delete;
  ~ObjectBlocks() { leave(); }

  void* allocate(std::size_t size) {
    const std::size_t slot = slotSize(size);
    if (left_ < slot) {
      leave();
      block_ = ::new (::operator new(headerSize + slot * slotsPerBlock)) Block;
      next_ = reinterpret_cast<std::byte*>(block_) + headerSize;
      left_ = slot * slotsPerBlock;
    }
    ::new (next_) Block*(block_);
    ++block_->users;
    void* const object = next_ + headerSize;
    next_ += slot;
    left_ -= slot;
    return object;
  }
  static void deallocate(void* object) noexcept {
    release(*std::launder(reinterpret_cast<Block**>(static_cast<std::byte*>(object) - headerSize)));
  }

 private:
  static constexpr std::size_t slotsPerBlock = 32;
  /// In front of a block stands its count, in front of an object the address of its block.
  static constexpr std::size_t headerSize = alignof(std::max_align_t);

  struct Block {
    /// The objects in the block, and the maker as long as it fills this one.
    std::size_t users = 1;
  };
  static_assert(sizeof(Block) <= headerSize && sizeof(void*) <= headerSize);

  static std::size_t slotSize(std::size_t size) noexcept {
    return headerSize + (size + headerSize - 1) / headerSize * headerSize;
  }
  static void release(Block* block) noexcept {
    if (--block->users == 0) {
      ::operator delete(block);
    }
  }
  void leave() noexcept {
    if (block_ != nullptr) {
      release(block_);
    }
  }

  Block* block_ = nullptr;
  std::byte* next_ = nullptr;
  std::size_t left_ = 0;
};

/// An allocator for std::allocate_shared.
template <class T>
class InBlocks {
 public:
  using value_type = T;

  explicit InBlocks(ObjectBlocks& blocks) noexcept : blocks_(&blocks) {}
  template <class U>
  InBlocks(const InBlocks<U>& other) noexcept : blocks_(other.blocks()) {}

  T* allocate(std::size_t count) { return static_cast<T*>(blocks_->allocate(count * sizeof(T))); }
  void deallocate(T* object, std::size_t /*count*/) noexcept { ObjectBlocks::deallocate(object); }
  /// Only for allocating: objects may outlive it.
  ObjectBlocks* blocks() const noexcept { return blocks_; }

  friend bool operator==(const InBlocks& a, const InBlocks& b) noexcept { return a.blocks_ == b.blocks_; }

 private:
  ObjectBlocks* blocks_;
};

}  // namespace kob::qt
