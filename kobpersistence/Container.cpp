// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/Checksum.h>
#include <kobpersistence/Container.h>
#include <kobpersistence/Describing.h>
#include <kobpersistence/Format.h>
#include <kobpersistence/LargePages.h>
#include <kobpersistence/RecordCheck.h>
#include <kobpersistence/Units.h>

#include <algorithm>
#include <utility>

namespace kob::persistence {

namespace {

/// Length, class and version of a record without values.
constexpr std::size_t shortestRecord = 3;
/// A text may be stored twice by one byte more.
constexpr std::uint64_t mostUnitsPerByte = 2;

Text number(std::uint64_t value) {
  return decimal(static_cast<std::int64_t>(value));
}

}  // namespace

Container::Container(Content content, TextView firstClass) : content_(std::move(content)) {
  checkHeader();
  findRecords(readClasses(), firstClass);
  checkRecords();
}

const Byte* Container::end() const noexcept {
  return content_.bytes.get() + content_.size - checksumSize;
}

void Container::checkHeader() const {
  const Byte* const bytes = content_.bytes.get();
  const std::size_t known = std::min(content_.size, magic.size());
  if (content_.size == 0 || !std::equal(bytes, bytes + known, magic.begin())) {
    throw failure({content_.size == 0 ? u"The file is empty." : u"The file is no translation file.",
                   u" Choose another one."});
  }
  if (content_.size < headerSize + checksumSize) {
    throw damaged({u"only its first ", number(content_.size), u" bytes are there"});
  }
  const auto version = field<std::uint32_t>(at::version);
  if (version > containerVersion) {
    throw failure({u"The file has the format version ", number(version), u", and this program knows version ",
                   number(containerVersion), u" only. Load it with a newer version of the program."});
  }
  const auto length = field<std::uint64_t>(at::length);
  if (length != content_.size) {
    throw damaged({u"it has ", number(content_.size), u" bytes, and its header (at byte ", number(at::length),
                   u") says that there are ", number(length)});
  }
  if (loadNumber<std::uint64_t>(end()) != checksumOf(bytes, content_.size)) {
    throw damaged({u"the checksum at byte ", number(offsetOf(end())), u" is not that of its ",
                   number(content_.size), u" bytes"});
  }
  if (version != containerVersion || field<std::uint32_t>(at::reserved) != 0) {
    throw badFile(at::version, u"the header is wrong");
  }
}

const Byte* Container::readClasses() {
  const auto count = field<std::uint32_t>(at::classes);
  if (count > mostClasses) {
    throw badFile(at::classes, u"there are too many classes");
  }
  const Byte* from = content_.bytes.get() + headerSize;
  for (std::uint32_t i = 0; i < count; ++i) {
    const auto left = static_cast<std::size_t>(end() - from);
    const std::size_t units = left < sizeof(std::uint16_t) ? 0 : loadNumber<std::uint16_t>(from);
    if (left < sizeof(std::uint16_t) + 2 * units || units == 0) {
      throw badFile(offsetOf(from), u"a class identifier is cut short or empty");
    }
    Text name(units, u'\0');
    loadUnits(name.data(), from + sizeof(std::uint16_t), units);
    const MakeObject make = findClass(name);
    if (make == nullptr) {
      throw failure({u"The file holds objects of the class \"", name,
                     u"\", which this program does not know (at byte ", number(offsetOf(from)),
                     u"). Load it with the program that it comes from."});
    }
    classes_.push_back({std::move(name), make});
    from += sizeof(std::uint16_t) + 2 * units;
  }
  return from;
}

void Container::findRecords(const Byte* from, TextView firstClass) {
  const auto count = field<std::uint32_t>(at::records);
  if (count == 0 || count > static_cast<std::size_t>(end() - from) / shortestRecord) {
    throw badFile(at::records, u"there are fewer records than the header says");
  }
  offsets_.reserve(std::size_t{count} + 1);
  MakeObject firstMake = nullptr;
  for (std::uint32_t i = 0; i < count; ++i) {
    const Byte* const start = from;
    std::uint32_t length = 0;
    if (!takeVarint(from, end(), length) || length > static_cast<std::size_t>(end() - from)) {
      throw badRecord(i, offsetOf(start), u"it is cut short");
    }
    const Byte* const recordEnd = from + length;
    if (from == recordEnd || *from >= classes_.size()) {
      throw badRecord(i, offsetOf(start), u"it has no class");
    }
    if (i == 0 && classes_[*from].name != firstClass) {
      throw failure({u"The file holds an object of the class \"", classes_[*from].name, u"\" and not \"",
                     firstClass, u"\". Choose another one."});
    }
    const MakeObject make = classes_[*from].make;
    if (i == 0) {
      firstMake = make;
    } else if (make == firstMake) {
      // It would set the language count in the midst of records that are read with another one.
      throw badRecord(i, offsetOf(start), u"an object of the first one's class lies within it");
    }
    ++from;
    std::uint32_t version = 0;
    if (!takeVarint(from, recordEnd, version)) {
      throw badRecord(i, offsetOf(start), u"it has no version");
    }
    offsets_.push_back(static_cast<std::uint32_t>(offsetOf(start)));
    std::uint32_t units = 0;
    repeatedUnits_ += findRepeated(from, recordEnd, units) != nullptr ? units : 0;
    from = recordEnd;
  }
  offsets_.push_back(static_cast<std::uint32_t>(offsetOf(from)));
  if (from != end()) {
    throw badFile(offsetOf(from), u"there are more records than the header says");
  }
}

void Container::checkRecords() {
  const auto units = field<std::uint64_t>(at::units);
  if (units > mostUnitsPerByte * content_.size) {
    throw badFile(at::units, u"the texts are longer than the file");
  }
  if (units < repeatedUnits_) {
    throw badFile(at::units, u"the texts are longer than the header says");
  }
  const std::uint64_t laidOut = units - repeatedUnits_;
  texts_ = makeLarge<char16_t>(laidOut + slack / sizeof(char16_t));
  RecordCheck check(content_.bytes.get(), records(), texts_.get(), laidOut);
  for (std::uint32_t i = records(); i-- > 0;) {
    const Record found = record(i);
    firstTexts_ = check.textsEnd();
    check.check(i, found.values, found.end);
  }
  check.finish();
  shared_ = check.shared();
}

}  // namespace kob::persistence
