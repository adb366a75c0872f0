// SPDX-FileCopyrightText: The KOBTraduction authors
// What files that were made to need memory make of it. The program counts what it takes.
#include "MemoryStorage.h"
#include "TestFile.h"

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> inUse = 0;
std::atomic<std::size_t> most = 0;

void* counted(void* block) {
  if (block == nullptr) {
    throw std::bad_alloc();
  }
  const std::size_t now = inUse += malloc_usable_size(block);
  std::size_t known = most;
  while (known < now && !most.compare_exchange_weak(known, now)) {
  }
  return block;
}

}  // namespace

// Not inlined: the compiler would see memory of malloc() given to delete, or the other way round.
__attribute__((noinline)) void* operator new(std::size_t size) {
  return counted(std::malloc(size));
}

__attribute__((noinline)) void operator delete(void* block) noexcept {
  inUse -= malloc_usable_size(block);
  std::free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept {
  operator delete(block);
}

__attribute__((noinline)) void* operator new(std::size_t size, std::align_val_t alignment) {
  const auto multiple = static_cast<std::size_t>(alignment);
  return counted(std::aligned_alloc(multiple, (size + multiple - 1) / multiple * multiple));
}

void operator delete(void* block, std::align_val_t /*alignment*/) noexcept {
  operator delete(block);
}

namespace kob::test {
namespace {

class MemoryTest : public ::testing::Test, public ModelTestScope {
 public:
  /// How many bytes loading takes for each byte of the file.
  double takenPerByte(const FileBytes& bytes, bool isRight) {
    MemoryService service;
    service.storage.files[u"m"] = bytes;
    KOBModeleTraduction model;
    const std::size_t before = inUse;
    most = before;
    EXPECT_EQ(model.Load(u"m"), isRight);
    EXPECT_TRUE(boxes.notices.empty()) << toUtf8(boxes.notices.empty() ? Text() : boxes.notices.back());
    // Without the bytes of the file in memory, which were there before, and their copy.
    const double taken = static_cast<double>(most - before) / static_cast<double>(bytes.size());
    RecordProperty("takenPerByte", std::to_string(taken));
    return taken;
  }

  /// A root with so many children, each of this record.
  static TestFile children(std::int32_t languages, std::int32_t count, const FileBytes& child) {
    FileBytes values = emptyText + emptyText + longValue(1) + longValue(count);
    values.insert(values.end(), static_cast<std::size_t>(count), nextObject.front());
    TestFile file{.records = {modelRecord(languages), record(1, 2, values + longValue(0) + no)}};
    file.records.insert(file.records.end(), static_cast<std::size_t>(count), child);
    return file;
  }
};

TEST_F(MemoryTest, ManySmallCells) {
  const FileBytes cell = record(1, 2, emptyText + emptyText + longValue(2) + longValue(0) + no);
  EXPECT_LT(takenPerByte(children(6, 100'000, cell).bytes(), true), 100);
}

TEST_F(MemoryTest, WhatWasLoadedIsGivenBackInWhateverOrderItGoes) {
  const FileBytes cell = record(1, 2, letters("n") + emptyText + longValue(2) + longValue(0) + no);
  MemoryService service;
  TestFile file = children(6, 100'000, cell);
  file.units = 100'000;
  service.storage.files[u"m"] = file.bytes();
  const std::size_t before = inUse;
  {
    std::vector<CellRef> kept;
    {
      KOBModeleTraduction model;
      ASSERT_TRUE(model.Load(u"m"));
      const auto cells = model.Racine()->ColCell();
      for (std::int32_t i = 1; i <= cells->Count(); i += 997) {
        kept.push_back(cells->Item(i));
      }
    }
    EXPECT_EQ(kept.back()->nom(), u"n");
    std::reverse(kept.begin(), kept.end());
  }
  // Some state of the thread may have been made on the way.
  EXPECT_LT(inUse, before + 10'000);
}

TEST_F(MemoryTest, ManyRepeatedTexts) {
  constexpr int texts = 100;
  FileBytes values;
  for (int i = 0; i < texts; ++i) {
    values = values + letters(std::string(100, 'x')) + FileBytes{0x28};
  }
  TestFile file = children(6, 50, record(1, 2, values));
  file.units = std::uint64_t(50) * 2 * 100 * texts;
  EXPECT_LT(takenPerByte(file.bytes(), false), 10);
}

TEST_F(MemoryTest, ManyFactorsInFewBytes) {
  constexpr std::int32_t languages = 4'000;
  FileBytes values = emptyText + emptyText + longValue(2) + longValue(2) + longValue(1) + longValue(1) +
                     longValue(0) + FileBytes{0x05, 0, 0, 0, 0, 0, 0, 0, 1} +
                     FileBytes{0x05, 0, 0, 0, 0, 0, 0, 0, 1};
  for (std::int32_t left = 2 * languages - 2; left > 0; left -= 16) {
    values = values + FileBytes{0x12, static_cast<std::uint8_t>(std::min(left, 16))};
  }
  EXPECT_LT(takenPerByte(children(languages, 300, record(1, 2, values + no)).bytes(), true), 300);
}

TEST_F(MemoryTest, ManyLanguagesOfRecordsThatFail) {
  // As many languages as are let through for so many records.
  const FileBytes cell = record(1, 2, emptyText + emptyText + longValue(2) + longValue(2));
  const TestFile file = children(100, 20'000, cell);
  EXPECT_LT(takenPerByte(file.bytes(), false), 300);
}

}  // namespace
}  // namespace kob::test
