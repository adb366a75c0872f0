// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Bytes.h>
#include <kobpersistence/Format.h>
#include <kobtraduction/base/Text.h>

#include <cstdint>
#include <vector>

namespace kob::persistence {

bool takeLongVarint(const Byte*& from, const Byte* end, std::uint32_t& number) noexcept;

/// Reads a number that storeVarint writes, and no other form of it; moves `from` behind it.
inline bool takeVarint(const Byte*& from, const Byte* end, std::uint32_t& number) noexcept {
  if (from != end && *from < 0x80) {
    number = *from++;
    return true;
  }
  return takeLongVarint(from, end, number);
}

/// Where a record's second value is when it repeats the first one, a text of so many units, as an alias
/// repeats the name that it is; null when it does not, and perhaps for values that are wrong.
inline const Byte* findRepeated(const Byte* values, const Byte* end, std::uint32_t& units) noexcept {
  if (values == end ||
      (static_cast<Tag>(*values) != Tag::NarrowText && static_cast<Tag>(*values) != Tag::WideText)) {
    return nullptr;
  }
  const std::uint64_t bytesPerUnit = static_cast<Tag>(*values++) == Tag::NarrowText ? 1 : 2;
  if (!takeVarint(values, end, units) || bytesPerUnit * units >= static_cast<std::uint64_t>(end - values)) {
    return nullptr;
  }
  values += bytesPerUnit * units;
  return static_cast<Tag>(*values) == Tag::SameText ? values : nullptr;
}

/// Looks at the values of all records, from the last to the first, and lays their texts out as UTF-16: one
/// behind the other, but a second value that repeats the first one lies where that lies.
/// What is wrong is thrown as a PersistFailure.
class RecordCheck {
 public:
  /// The block has room for so many units, and for `slack` bytes more.
  RecordCheck(const Byte* file, std::uint32_t records, char16_t* block, std::uint64_t units);

  void check(std::uint32_t record, const Byte* from, const Byte* end);
  /// After the first record: whether the records are one whole.
  void finish() const;

  const char16_t* textsEnd() const noexcept { return to_; }
  /// The numbers of the objects that are named by number, each once, ascending.
  std::vector<std::uint32_t> shared() const;

 private:
  [[noreturn]] void wrong(const Byte* at, TextView what) const;
  /// Behind the short texts at the front that are right, perhaps none.
  const Byte* takeShortTexts(const Byte* from, const Byte* end) noexcept;
  const Byte* checkValue(const Byte* from, const Byte* end);
  /// Behind a text of so many units, each in so many bytes.
  const Byte* takeText(const Byte* from, const Byte* end, std::uint32_t bytesPerUnit);
  void repeatText(const Byte* at);
  void takeNextObject(const Byte* at);
  const Byte* takeNumberedObject(const Byte* from, const Byte* end);
  void checkRoom(std::uint64_t units, const Byte* at) const;

  const Byte* file_;
  char16_t* to_;
  const char16_t* blockEnd_;
  std::uint32_t record_ = 0;
  /// The units of the record's last text, when it may be repeated; it lies where the texts have come to.
  std::size_t lastUnits_ = 0;
  /// The second value, when it repeats the first one.
  const Byte* repeated_ = nullptr;
  /// For each record, how many levels it has with those below it.
  std::vector<std::uint16_t> heights_;
  /// The records whose objects wait for the record that names them.
  std::vector<std::uint32_t> waiting_;
  std::vector<std::uint32_t> shared_;
};

}  // namespace kob::persistence
