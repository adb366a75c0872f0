// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/LargePages.h>

#include <cstddef>

namespace kob {

/// Room for very many small objects that are made one after the other and mostly go together: those of a
/// loaded file. It is cut from chunks, which takes a fraction of asking for each object's. A chunk is given
/// back with the last object in it, so objects may go in any order, after the pool, and on other threads;
/// all of a pool are made on one.
class KOB_EXPORT ObjectPool {
 public:
  class Chunk;

  /// The largest object that there is room for, in bytes.
  static constexpr std::size_t largestObject = 1024;

  /// About how many objects will come; there may be more, or fewer.
  explicit ObjectPool(std::size_t objects = 0, LargePages pages = {}) noexcept
      : expected_(objects), pages_(pages) {}
  ObjectPool(const ObjectPool&) = delete;
  ObjectPool& operator=(const ObjectPool&) = delete;
  ~ObjectPool();

  /// False in builds whose sanitizer is to see each object by itself: they do not share memory there.
  static bool isPooling() noexcept;

  /// The chunk that the next object goes into. Throws std::bad_alloc.
  Chunk* nextChunk();
  /// Room for one object in the chunk that nextChunk() has returned just now, aligned for any.
  static void* allocate(Chunk* chunk, std::size_t size);
  /// Gives back what allocate() returned.
  static void deallocate(Chunk* chunk, void* object) noexcept;

 private:
  /// The next object goes into a new chunk.
  void beginChunk();
  /// No more objects go into the present chunk.
  void letGo() noexcept;

  /// Objects that are still to come.
  std::size_t expected_;
  LargePages pages_;
  Chunk* chunk_ = nullptr;
};

/// The pool as an allocator of one object, for std::allocate_shared.
template <class T>
class PoolAllocator {
 public:
  using value_type = T;

  explicit PoolAllocator(ObjectPool& pool) : chunk_(pool.nextChunk()) {}
  template <class Other>
  PoolAllocator(const PoolAllocator<Other>& other) noexcept : chunk_(other.chunk()) {}

  ObjectPool::Chunk* chunk() const noexcept { return chunk_; }
  T* allocate(std::size_t count) {
    static_assert(sizeof(T) <= ObjectPool::largestObject);
    return static_cast<T*>(ObjectPool::allocate(chunk_, count * sizeof(T)));
  }
  void deallocate(T* object, std::size_t /*count*/) noexcept { ObjectPool::deallocate(chunk_, object); }

 private:
  // It is kept with each object, and all that has to be known of it when it goes.
  ObjectPool::Chunk* chunk_;
};

template <class T, class Other>
bool operator==(const PoolAllocator<T>& a, const PoolAllocator<Other>& b) noexcept {
  return a.chunk() == b.chunk();
}

}  // namespace kob
