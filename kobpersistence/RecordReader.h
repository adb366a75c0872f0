// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Bytes.h>
#include <kobpersistence/Container.h>
#include <kobtraduction/persistence/PersistStream.h>

#include <cstdint>
#include <memory>

namespace kob::persistence {

/// Where a record's objects come from: made and filled.
class FilledObjects {
 public:
  virtual ~FilledObjects() = default;
  virtual PersistRef next() = 0;
  virtual PersistRef numbered(std::uint32_t record) = 0;
};

/// The stream that an object reads its record from, which was checked before; used for one record after the
/// other.
class RecordReader final : public PersistStream {
 public:
  RecordReader(FilledObjects& objects, const Container& container);

  /// Begins a record; its texts lie from `texts` on, as RecordCheck lays them out.
  void open(std::uint32_t number, const Record& record, const char16_t* texts) noexcept;
  /// Passes over the values that the object did not ask for, and tells where their texts end.
  const char16_t* close();

  std::int32_t Version() override { return version_; }
  void setVersion(std::int32_t version) override;
  void WriteValue(const PersistValue& value) override;
  const PersistValue& ReadValue() override;
  std::int32_t ReadStrings(std::span<TextView> to) override;
  std::int32_t ReadLongs(std::span<std::int32_t> to) override;
  std::int32_t PassOnes(std::int32_t most) override;
  ImageRef image() const override { return image_; }

 private:
  TextView takeText(std::size_t units) noexcept;
  /// Reads values as long as they are texts of units below 256 or "", as many as there is room for.
  std::size_t readNarrow(std::span<TextView> to) noexcept;
  /// Reads the next value if it is a text; whether it is one. There is a next value.
  bool readText(TextView& text) noexcept;

  FilledObjects& objects_;
  const Container& container_;
  ImageRef image_;
  const Byte* from_ = nullptr;
  const Byte* end_ = nullptr;
  /// The second value, when it repeats the first one.
  const Byte* repeated_ = nullptr;
  const char16_t* texts_ = nullptr;
  std::size_t lastUnits_ = 0;
  /// Small integers 1 that a run still stands for.
  std::uint32_t ones_ = 0;
  std::uint32_t number_ = 0;
  std::int32_t version_ = 0;
  PersistValue value_;
};

}  // namespace kob::persistence
