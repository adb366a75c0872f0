// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/ObjectPool.h>

#include <algorithm>
#include <atomic>
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
/// More are not provided for at once.
constexpr std::size_t mostExpected = std::size_t{1} << 20;
constexpr std::size_t smallestChunk = std::size_t{2} << 10;
constexpr std::size_t usualChunk = std::size_t{64} << 10;
/// What a chunk lacks of a large page: room for what the system keeps of each block, so that chunks lie side
/// by side.
constexpr std::size_t betweenChunks = 64;
constexpr std::size_t anyAlignment = alignof(std::max_align_t);

constexpr std::size_t roundUp(std::size_t size) noexcept {
  return (size + anyAlignment - 1) & ~(anyAlignment - 1);
}

}  // namespace

class ObjectPool::Chunk {
 public:
  /// `size` bytes, this included, which begin at a multiple of `alignment`.
  Chunk(std::size_t size, std::align_val_t alignment) noexcept
      : used_(roundUp(sizeof(Chunk))), size_(size), alignment_(alignment) {}

  bool hasRoom(std::size_t size) const noexcept { return roundUp(size) <= size_ - used_; }
  void* take(std::size_t size) noexcept {
    void* const room = reinterpret_cast<char*>(this) + used_;
    used_ += roundUp(size);
    ++made_;
    return room;
  }

  void leave() noexcept { leave(1); }
  /// No more objects come.
  void close() noexcept { leave(open - made_); }

 private:
  /// More than the objects that a chunk has room for.
  static constexpr std::size_t open = std::size_t{1} << 30;

  void leave(std::size_t count) noexcept {
    if (objects_.fetch_sub(count, std::memory_order_acq_rel) == count) {
      ::operator delete(this, alignment_);
    }
  }

  /// Objects that are there; as long as more may come, `open` less those that went.
  std::atomic<std::size_t> objects_ = open;
  /// Objects that came.
  std::size_t made_ = 0;
  std::size_t used_;
  std::size_t size_;
  std::align_val_t alignment_;
};

ObjectPool::~ObjectPool() {
  letGo();
}

void ObjectPool::letGo() noexcept {
  if (chunk_ != nullptr) {
    chunk_->close();
    chunk_ = nullptr;
  }
}

bool ObjectPool::isPooling() noexcept {
  return pools;
}

ObjectPool::Chunk* ObjectPool::nextChunk() {
  static_assert(smallestChunk >= roundUp(sizeof(Chunk)) + roundUp(largestObject));
  if (pools && (chunk_ == nullptr || !chunk_->hasRoom(largestObject))) {
    beginChunk();
  }
  expected_ -= expected_ > 0 ? 1 : 0;
  return chunk_;
}

void ObjectPool::beginChunk() {
  const std::size_t wanted = usualObject * std::min(expected_, mostExpected);
  const bool isLarge = pages_.size != 0 && wanted >= pages_.size;
  const std::size_t size =
      isLarge ? pages_.size - betweenChunks : std::clamp(wanted, smallestChunk, usualChunk);
  const std::align_val_t alignment{isLarge ? pages_.size : anyAlignment};
  void* const memory = ::operator new(size, alignment);
  letGo();
  if (pages_.expectUse != nullptr) {
    pages_.expectUse(memory, size);
  }
  chunk_ = new (memory) Chunk(size, alignment);
}

void* ObjectPool::allocate(Chunk* chunk, std::size_t size) {
  if constexpr (!pools) {
    return ::operator new(size);
  }
  return chunk->take(size);
}

void ObjectPool::deallocate(Chunk* chunk, void* object) noexcept {
  if constexpr (!pools) {
    ::operator delete(object);
    return;
  }
  chunk->leave();
}

}  // namespace kob
