// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Content.h>
#include <kobtraduction/base/Text.h>
#include <kobtraduction/component/ClassRegistry.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace kob::persistence {

/// One record: how its object is made, and where its values lie.
struct Record {
  MakeObject make;
  std::int32_t version;
  const Byte* values;
  const Byte* end;
};

/// A file's content that was found to be right in everything that can be known without its objects, with all
/// its texts as UTF-16 in one block, as RecordCheck lays them out.
class Container {
 public:
  /// Throws a PersistFailure for a content that is damaged, cut short, too new or of another kind.
  /// `firstClass` is the class of the object that the file is to be read into.
  Container(Content content, TextView firstClass);

  std::size_t size() const noexcept { return content_.size; }
  /// Records are numbered from 0; there is at least one.
  std::uint32_t records() const noexcept { return static_cast<std::uint32_t>(offsets_.size()) - 1; }
  Record record(std::uint32_t number) const noexcept {
    const Byte* from = content_.bytes.get() + offsets_[number];
    // Its length is known, too, from where the next one begins.
    while (*from++ >= 0x80) {
    }
    const MakeObject make = classes_[*from++].make;
    const std::int32_t version = unzigzag(loadVarint(from));
    return {make, version, from, content_.bytes.get() + offsets_[number + 1]};
  }
  std::uint32_t offset(std::uint32_t number) const noexcept { return offsets_[number]; }

  /// Where the texts of the last record begin; the others follow.
  const std::shared_ptr<char16_t[]>& texts() const noexcept { return texts_; }
  /// Where those of record 0 begin.
  const char16_t* firstTexts() const noexcept { return firstTexts_; }

  /// The numbers of the records whose objects are named more than once, ascending.
  const std::vector<std::uint32_t>& shared() const noexcept { return shared_; }

 private:
  void checkHeader() const;
  /// Reads the class table and returns where it ends.
  const Byte* readClasses();
  void findRecords(const Byte* from, TextView firstClass);
  void checkRecords();

  template <class T>
  T field(std::size_t at) const noexcept {
    return loadNumber<T>(content_.bytes.get() + at);
  }
  /// Where the records end.
  const Byte* end() const noexcept;
  std::uint64_t offsetOf(const Byte* at) const noexcept {
    return static_cast<std::uint64_t>(at - content_.bytes.get());
  }

  struct KnownClass {
    Text name;
    MakeObject make;
  };

  Content content_;
  std::vector<KnownClass> classes_;
  /// Where each record begins, and where the last one ends.
  std::vector<std::uint32_t> offsets_;
  /// Of texts that are not laid out.
  std::uint64_t repeatedUnits_ = 0;
  std::vector<std::uint32_t> shared_;
  std::shared_ptr<char16_t[]> texts_;
  const char16_t* firstTexts_ = nullptr;
};

}  // namespace kob::persistence
