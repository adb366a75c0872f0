// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/ObjectPool.h>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <new>

namespace kob {

namespace {

/// A sanitizer that looks at addresses is to see each object by itself.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool pools = false;
#elif defined(__has_feature)
constexpr bool pools = !__has_feature(address_sanitizer);
#else
constexpr bool pools = true;
#endif

/// What an object usually needs, in bytes.
constexpr std::size_t usualObject = 160;
constexpr std::size_t smallestChunk = std::size_t{2} << 10;
constexpr std::size_t usualChunk = std::size_t{64} << 10;
/// What a chunk lacks of a large page: room for what the system keeps of each block, so that chunks lie side
/// by side.
constexpr std::size_t betweenChunks = 64;
constexpr std::size_t alignment = alignof(std::max_align_t);

/// In front of each object: the chunk that it lies in.
constexpr std::size_t linkSize = sizeof(void*);
static_assert(linkSize <= alignment);

constexpr std::size_t roundUp(std::size_t size) noexcept {
  return (size + alignment - 1) & ~(alignment - 1);
}

}  // namespace

struct ObjectPool::Chunk {
  /// More than the objects that a chunk has room for.
  static constexpr std::size_t open = std::size_t{1} << 30;

  /// Objects that are there; as long as more may come, `open` less those that went.
  std::atomic<std::size_t> objects;
  /// What the chunk begins at a multiple of, in bytes.
  std::align_val_t alignment;

  void leave(std::size_t count) noexcept {
    if (objects.fetch_sub(count, std::memory_order_acq_rel) == count) {
      ::operator delete(this, alignment);
    }
  }
};

ObjectPool::~ObjectPool() {
  letGo();
}

void ObjectPool::letGo() noexcept {
  if (chunk_ != nullptr) {
    chunk_->leave(Chunk::open - objects_);
    chunk_ = nullptr;
  }
}

bool ObjectPool::isPooling() noexcept {
  return pools;
}

void ObjectPool::addChunk() {
  static_assert(smallestChunk >= roundUp(sizeof(Chunk) + linkSize) + roundUp(linkSize + largestObject));
  const std::size_t wanted = usualObject * std::min(expected_, Chunk::open / usualObject);
  const bool isLarge = pages_.size != 0 && wanted >= pages_.size;
  const std::size_t size =
      isLarge ? pages_.size - betweenChunks : std::clamp(wanted, smallestChunk, usualChunk);
  const std::align_val_t chunkAlignment{isLarge ? pages_.size : alignment};
  void* const memory = ::operator new(size, chunkAlignment);
  letGo();
  if (isLarge) {
    pages_.expectUse(memory, size);
  }
  chunk_ = new (memory) Chunk{Chunk::open, chunkAlignment};
  size_ = size;
  used_ = roundUp(sizeof(Chunk) + linkSize) - linkSize;
  objects_ = 0;
}

void* ObjectPool::allocate(std::size_t size) {
  if constexpr (!pools) {
    return ::operator new(size);
  }
  const std::size_t taken = roundUp(linkSize + size);
  if (chunk_ == nullptr || taken > size_ - used_) {
    addChunk();
  }
  char* const object = reinterpret_cast<char*>(chunk_) + used_ + linkSize;
  std::memcpy(object - linkSize, &chunk_, linkSize);
  used_ += taken;
  ++objects_;
  expected_ -= expected_ > 0 ? 1 : 0;
  return object;
}

void ObjectPool::deallocate(void* object) noexcept {
  if constexpr (!pools) {
    ::operator delete(object);
    return;
  }
  Chunk* chunk = nullptr;
  std::memcpy(&chunk, static_cast<const char*>(object) - linkSize, linkSize);
  chunk->leave(1);
}

}  // namespace kob
