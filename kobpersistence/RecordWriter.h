// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Bytes.h>
#include <kobpersistence/Format.h>
#include <kobtraduction/persistence/PersistStream.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <memory>
#include <span>

namespace kob::persistence {

/// How the object of an Object value is written.
struct ObjectForm {
  bool isNext = true;
  /// The number of its record, unless it is the next object.
  std::uint32_t number = 0;
};

/// Told of every object that a record names.
class NamedObjects {
 public:
  virtual ~NamedObjects() = default;
  virtual ObjectForm name(IKOBVBPersistStream& object) = 0;
  /// Keeps an object until the save has ended that nobody else may keep so long. It is named next.
  virtual void keep(const PersistRef& object) = 0;
};

/// The stream that an object writes its record to. Records are written one after the other, each into room
/// that it is given or, when it does not fit there, into a buffer of the writer's own.
class RecordWriter final : public PersistStream {
 public:
  explicit RecordWriter(NamedObjects& objects);

  /// Lets the object write its record, at the beginning of `room` if it fits; all of that may be written to.
  /// What went wrong in the service's own part is thrown here, and not through the object, which would take
  /// it for a failure of its own.
  void write(IKOBVBPersistStream& object, Byte classNumber, std::span<Byte> room);

  /// The record written last, complete; in a buffer of the writer's own it lives until the next one.
  const Byte* record() const noexcept { return start_; }
  std::size_t recordSize() const noexcept { return static_cast<std::size_t>(to_ - start_); }
  /// The units of all texts of that record.
  std::uint64_t units() const noexcept { return units_; }

  std::int32_t Version() override { return version_; }
  void setVersion(std::int32_t version) override { version_ = version; }
  void WriteValue(const PersistValue& value) override;
  void WriteStrings(std::span<const TextView> texts) override;
  void WriteRun(const TextRun& texts) override;
  void WriteLongs(std::span<const std::int32_t> numbers) override;
  void WriteOnes(std::int32_t count) override;
  void WriteKept(const KeptObject& object) override;
  const PersistValue& ReadValue() override;

 private:
  /// The text written last when it may be repeated, and its size with tag and length; 0 for none.
  struct Repeatable {
    const Byte* begin = nullptr;
    std::size_t size = 0;
  };

  /// Whether there is room for so many bytes, and a block beyond them.
  bool hasRoom(std::size_t size) const noexcept { return static_cast<std::size_t>(limit_ - to_) >= size; }
  void reserve(std::size_t size) {
    if (!hasRoom(size)) {
      grow(size);
    }
  }
  /// The record goes on in a buffer of the writer's own that has room for so many bytes more.
  void grow(std::size_t size);
  /// What goes wrong is kept for write().
  template <class Write>
  void guarded(Write write);
  void writeAny(const PersistValue& value);
  void writeText(TextView text);
  /// Writes a short text of units below 256, without a failure; false, and nothing is written, for another
  /// one.
  bool writeShort(TextView text) noexcept;
  /// Writes a run of units below 256, without a failure; false, and nothing is written, for another one, a
  /// long one, and for want of room.
  bool writeNarrow(const TextRun& texts) noexcept;
  /// Where the record goes on behind a text that was put there: at once when it is the one before it once
  /// more.
  static Byte* endText(Byte* begin, Byte* end, Repeatable& last) noexcept;
  /// Null is "nothing".
  void writeObject(IKOBVBPersistStream* object);
  void endRecord(Byte classNumber);

  NamedObjects& objects_;
  std::unique_ptr<Byte[]> buffer_;
  std::size_t capacity_;
  Byte* start_;
  /// Where the values begin, which is behind what stands before them, and where the next one goes.
  Byte* values_;
  Byte* to_;
  /// `slack` bytes before the end of the room or buffer.
  Byte* limit_;
  /// How much stood before the values of a class's last record, in bytes: most likely as much as next time.
  std::array<Byte, mostClasses> heads_;
  /// The number of ones behind the value written last, if that is a run of ones.
  Byte* ones_ = nullptr;
  Repeatable last_;
  std::uint64_t units_ = 0;
  std::int32_t version_ = 0;
  std::exception_ptr failure_;
};

}  // namespace kob::persistence
