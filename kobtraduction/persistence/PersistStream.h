// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/ImageRef.h>
#include <kobtraduction/base/OrderedList.h>
#include <kobtraduction/base/Text.h>
#include <kobtraduction/base/TextRun.h>
#include <kobtraduction/persistence/PersistValue.h>

#include <cstdint>
#include <memory>
#include <span>

namespace kob {

/// An object in the record of another one, which keeps it until the save has ended. The reference is taken by
/// who needs one.
class KeptObject {
 public:
  /// `kept` must outlive this.
  template <class Object>
  explicit KeptObject(const std::shared_ptr<Object>& kept) noexcept
      : object_(kept.get()), kept_(&kept), share_([](const void* reference) {
          return PersistRef(*static_cast<const std::shared_ptr<Object>*>(reference));
        }) {}

  /// Null is "nothing".
  IKOBVBPersistStream* get() const noexcept { return object_; }
  PersistRef share() const { return share_(kept_); }

 private:
  IKOBVBPersistStream* object_;
  const void* kept_;
  PersistRef (*share_)(const void* reference);
};

/// The record of one object as the persistence service shows it to that object: a version and a sequence of
/// typed values. Any operation may fail with an exception; the object then stops reading or writing. Used on
/// the thread that called the service, during the call only.
class KOB_EXPORT PersistStream {
 public:
  virtual ~PersistStream();

  /// The version with which the record being read was written.
  virtual std::int32_t Version() = 0;
  /// Sets the version that is stored with the record being written.
  virtual void setVersion(std::int32_t version) = 0;
  /// Appends a value to the record being written. The service persists the object of an Object value in turn,
  /// at a time of its choice before the save ends; an object met twice is one object in the file.
  virtual void WriteValue(const PersistValue& value) = 0;

  // The same as WriteValue for each of several values in turn, which is what they do here. A stream that has
  // a shorter way for values of one type may take it: the record must be the same.

  virtual void WriteStrings(std::span<const TextView> texts);
  virtual void WriteRun(const TextRun& texts);
  virtual void WriteLongs(std::span<const std::int32_t> numbers);
  /// So many small integers 1.
  virtual void WriteOnes(std::int32_t count);
  virtual void WriteKept(const KeptObject& object);

  /// The next value of the record being read; it lives until the next call. The object of an Object value has
  /// been made and filled already. Reading past the record's end fails.
  virtual const PersistValue& ReadValue() = 0;

  // What ReadValue() reads as well, for records with very many such values. A service without a quicker way
  // than that reads none (as here).

  /// Reads values as long as they are texts, as many as there is room for; how many it were. The texts live
  /// as those of ReadValue(), but up to the next call of any reading operation.
  virtual std::int32_t ReadStrings(std::span<TextView> to);
  /// Reads values as long as they are longs, as many as there is room for; how many it were.
  virtual std::int32_t ReadLongs(std::span<std::int32_t> to);
  /// Passes over values as long as they are the small integer 1, at most so many; how many it were.
  virtual std::int32_t PassOnes(std::int32_t most);

  /// What keeps the characters of the texts that were read alive: an object may hold on to it and go on using
  /// the views instead of copying them. Texts read one after the other should lie one behind the other then:
  /// an entry keeps its texts as one run. None (as here) when texts live no longer than the call says.
  virtual ImageRef image() const;
};

/// The class identifiers that may occur in an object's graph.
using ProgIdTable = OrderedList<Text>;

/// What the persistence service asks of an object. Neither operation lets a failure out: a record that cannot
/// be written or read clears Global_Util::PersistOk, and the object keeps what it had read before.
class KOB_EXPORT IKOBVBPersistStream {
 public:
  virtual ~IKOBVBPersistStream();

  /// The class identifier by which the service makes such an object again; static storage.
  virtual TextView getProgID() const noexcept = 0;
  /// A new table of the classes in the object's graph; null for an object that is not saved by itself.
  virtual std::shared_ptr<ProgIdTable> getProgIdTable() = 0;
  virtual void write(PersistStream& stream) = 0;
  virtual void read(PersistStream& stream) = 0;
};

}  // namespace kob
