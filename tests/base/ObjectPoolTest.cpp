// SPDX-FileCopyrightText: The KOBTraduction authors
#include <gtest/gtest.h>
#include <kobtraduction/base/ObjectPool.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <numeric>
#include <random>
#include <thread>
#include <utility>
#include <vector>

namespace kob {
namespace {

constexpr std::size_t largePage = std::size_t{64} << 10;

/// The memory that a pool has told about, of pages as large as that.
std::vector<std::pair<void*, std::size_t>> told;
constexpr LargePages pages = {
    largePage, [](void* memory, std::size_t size) noexcept { told.emplace_back(memory, size); }};

/// An object of any size, filled with a number.
struct Filled {
  ObjectPool::Chunk* chunk;
  unsigned char* bytes;
  std::size_t size;
  unsigned char number;

  Filled(ObjectPool& pool, std::size_t length, int filling)
      : chunk(pool.nextChunk()),
        bytes(static_cast<unsigned char*>(ObjectPool::allocate(chunk, length))),
        size(length),
        number(static_cast<unsigned char>(filling)) {
    std::memset(bytes, number, size);
  }
  bool isWhole() const {
    return std::all_of(bytes, bytes + size, [this](unsigned char byte) { return byte == number; });
  }
};

/// Objects of all sizes, more than a few chunks hold.
std::vector<Filled> manyObjects(ObjectPool& pool) {
  constexpr int count = 5000;
  std::vector<Filled> objects;
  objects.reserve(count);
  for (int i = 0; i < count; ++i) {
    objects.emplace_back(pool, static_cast<std::size_t>(i) % ObjectPool::largestObject + 1, i);
  }
  return objects;
}

void giveBack(const std::vector<Filled>& objects, std::size_t first, std::size_t step) {
  for (std::size_t i = first; i < objects.size(); i += step) {
    EXPECT_TRUE(objects[i].isWhole()) << "object " << i;
    ObjectPool::deallocate(objects[i].chunk, objects[i].bytes);
  }
}

TEST(ObjectPoolTest, AnObjectHasRoomOfItsOwnAlignedForAny) {
  ObjectPool pool;
  const std::vector<Filled> objects = manyObjects(pool);
  for (const Filled& object : objects) {
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(object.bytes) % __STDCPP_DEFAULT_NEW_ALIGNMENT__, 0U);
  }
  giveBack(objects, 0, 1);
}

TEST(ObjectPoolTest, ObjectsGoInAnyOrderWhileOthersCome) {
  ObjectPool pool;
  const std::vector<Filled> first = manyObjects(pool);
  giveBack(first, 0, 2);
  const std::vector<Filled> second = manyObjects(pool);
  giveBack(first, 1, 2);
  std::vector<std::size_t> order(second.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::shuffle(order.begin(), order.end(), std::minstd_rand(1));
  for (const std::size_t i : order) {
    EXPECT_TRUE(second[i].isWhole());
    ObjectPool::deallocate(second[i].chunk, second[i].bytes);
  }
}

TEST(ObjectPoolTest, ObjectsOutliveThePool) {
  auto pool = std::make_unique<ObjectPool>();
  const std::vector<Filled> objects = manyObjects(*pool);
  giveBack(objects, 0, 3);
  pool.reset();
  giveBack(objects, 1, 3);
  giveBack(objects, 2, 3);
}

TEST(ObjectPoolTest, ObjectsGoOnAnotherThreadWhileOthersCome) {
  ObjectPool pool;
  const std::vector<Filled> first = manyObjects(pool);
  std::thread other([&first] { giveBack(first, 0, 1); });
  const std::vector<Filled> second = manyObjects(pool);
  other.join();
  giveBack(second, 0, 1);
}

TEST(ObjectPoolTest, HoldsSharedObjects) {
  auto pool = std::make_unique<ObjectPool>();
  const auto shared = std::allocate_shared<std::vector<int>>(PoolAllocator<std::vector<int>>(*pool), 3, 7);
  const std::weak_ptr<std::vector<int>> seen = shared;
  pool.reset();
  EXPECT_EQ(*seen.lock(), std::vector<int>(3, 7));
}

/// What a pool that expects so many objects tells when many come, in a build that pools.
std::vector<std::pair<void*, std::size_t>> toldBy(std::size_t expected) {
  told.clear();
  ObjectPool pool(expected, pages);
  giveBack(manyObjects(pool), 0, 1);
  return std::exchange(told, {});
}

constexpr auto fillsLargePage = [](const std::pair<void*, std::size_t>& memory) {
  return memory.second > largePage - 4096 && memory.second <= largePage;
};

TEST(ObjectPoolTest, LargePagesHoldThemAsLongAsSoManyAreExpected) {
  const auto memory = toldBy(5000);
  if (!ObjectPool::isPooling()) {
    EXPECT_TRUE(memory.empty());
    return;
  }
  constexpr std::size_t atLeast = 30;
  ASSERT_GT(memory.size(), atLeast);
  for (std::size_t i = 0; i < atLeast; ++i) {
    EXPECT_TRUE(fillsLargePage(memory[i])) << i;
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(memory[i].first) % largePage, 0U) << i;
  }
  EXPECT_LT(memory.back().second, largePage / 2);
}

TEST(ObjectPoolTest, FewObjectsNeedNoLargePage) {
  const auto memory = toldBy(100);
  EXPECT_EQ(memory.empty(), !ObjectPool::isPooling());
  EXPECT_TRUE(std::none_of(memory.begin(), memory.end(), fillsLargePage));
}

}  // namespace
}  // namespace kob
