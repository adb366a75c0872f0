// SPDX-FileCopyrightText: The KOBTraduction authors
// Records of any values, straight into an object: no failure leaves it, and what was read whole is written
// and read again as the same values.
#include "tests/doubles/ScriptedStream.h"

#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace kob::fuzz {

namespace {

using kob::testing::Record;
using kob::testing::RecordValue;
using kob::testing::ScriptedStream;

void require(bool holds, const char* what) {
  if (!holds) {
    std::fprintf(stderr, "FAILED: %s\n", what);
    std::abort();
  }
}

/// Values out of bytes; every sequence of bytes is some record.
class Source {
 public:
  Source(const std::uint8_t* from, std::size_t size) : from_(from), end_(from + size) {}

  bool isAtEnd() const noexcept { return from_ == end_; }
  template <class T>
  T take() noexcept {
    T value{};
    const std::size_t now = std::min(sizeof value, static_cast<std::size_t>(end_ - from_));
    std::memcpy(&value, from_, now);
    from_ += now;
    return value;
  }

  RecordValue value() {
    switch (take<std::uint8_t>() % 12) {
      case 0:
        return kob::testing::aSmallInteger(take<std::int16_t>());
      case 1:
        return kob::testing::aSmallInteger(1);
      case 2:
        return kob::testing::aLong(take<std::int8_t>());
      case 3:
        return kob::testing::aLong(take<std::int32_t>());
      case 4:
        return kob::testing::aDouble(take<double>());
      case 5:
        return kob::testing::aBoolean(take<std::uint8_t>() % 2 != 0);
      case 6:
        return kob::testing::nothing();
      case 7:
        return kob::testing::anObject(KOBCellTraduction::create());
      case 8:
        return kob::testing::anObject(std::make_shared<KOBTraductionObj>());
      case 9:
        return kob::testing::anObject(std::make_shared<KOBModeleTraduction>());
      case 10:
        return digits();
      default:
        return text();
    }
  }

 private:
  /// A text that is a number more often than not.
  RecordValue digits() {
    Text text;
    for (int i = take<std::uint8_t>() % 6; i > 0; --i) {
      text += u"0123456789-+. eE"[take<std::uint8_t>() % 16];
    }
    return kob::testing::aText(text);
  }
  RecordValue text() {
    Text text;
    for (int i = take<std::uint8_t>() % 8; i > 0; --i) {
      text += take<char16_t>();
    }
    return kob::testing::aText(text);
  }

  const std::uint8_t* from_;
  const std::uint8_t* end_;
};

PersistRef made(int kind) {
  switch (kind) {
    case 0:
      return std::make_shared<KOBTraductionObj>();
    case 1:
      return std::make_shared<KOBModeleTraduction>();
    default:
      return KOBCellTraduction::create();
  }
}

bool reads(IKOBVBPersistStream& object, const Record& record, bool keepsTexts) {
  ScriptedStream stream(record);
  if (keepsTexts) {
    stream.keepTexts();
  }
  Global_Util::setPersistOk(true);
  object.read(stream);
  return Global_Util::PersistOk();
}

void tryRecord(Source source) {
  const auto shape = source.take<std::uint8_t>();
  const int kind = shape % 4;
  // The count of a thread is what its host makes it; a huge one is asked for in a model's own record.
  const std::int32_t languages = source.take<std::int8_t>() % 12;
  Global_Util::setNbLangues(languages);
  Record given{source.take<std::int8_t>(), {}};
  while (!source.isAtEnd()) {
    given.values.push_back(source.value());
  }
  // Making the values may have made a model, which raises the count.
  Global_Util::setNbLangues(languages);
  const PersistRef object = made(kind);
  Global_Util::setNbLangues(languages);
  const bool isWhole = reads(*object, given, (shape & 4) != 0);

  ScriptedStream first;
  Global_Util::setPersistOk(true);
  object->write(first);
  if (!isWhole) {
    return;
  }
  require(Global_Util::PersistOk(), "what was read whole can be written");
  const std::int32_t count = Global_Util::NbLangues();
  const PersistRef again = made(kind);
  Global_Util::setNbLangues(count);
  require(reads(*again, first.record(), (shape & 8) != 0), "what was written can be read");
  ScriptedStream second;
  again->write(second);
  require(first.operations() == second.operations(), "the values stay the same");
}

}  // namespace

}  // namespace kob::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kob::fuzz::tryRecord({data, size});
  // The next model would raise it, and nothing may depend on the inputs before.
  kob::Global_Util::setNbLangues(0);
  return 0;
}
