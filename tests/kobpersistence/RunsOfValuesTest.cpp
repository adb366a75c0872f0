// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ServiceTest.h"

#include <kobtraduction/persistence/FileManager.h>

#include <algorithm>
#include <array>
#include <functional>
#include <utility>

namespace kob::test {
namespace {

using Writing = std::function<void(PersistStream&)>;

/// An object whose record is whatever a test writes.
class Written final : public IKOBVBPersistStream {
 public:
  explicit Written(Writing writing) : writing_(std::move(writing)) {}
  TextView getProgID() const noexcept override { return u"Written"; }
  std::shared_ptr<ProgIdTable> getProgIdTable() override {
    auto table = std::make_shared<ProgIdTable>();
    table->Add(u"Written");
    return table;
  }
  void write(PersistStream& stream) override { writing_(stream); }
  void read(PersistStream& /*stream*/) override {}

 private:
  Writing writing_;
};

/// Values that are handed over together give the bytes that they give one by one.
class RunsOfValuesTest : public ServiceTest {
 protected:
  FileBytes saved(Writing writing) {
    Written object(std::move(writing));
    makeFileManager()->SaveToFile(name("values"), object, 1);
    return bytesOf(path("values"));
  }

  /// The lengths are those of texts that lie one behind the other in `units`: a run, which may also be handed
  /// over as one.
  void expectSameTexts(TextView units, std::initializer_list<std::size_t> lengths) {
    std::vector<TextView> texts;
    std::vector<std::uint32_t> ends;
    std::uint32_t end = 0;
    for (const std::size_t length : lengths) {
      texts.push_back(units.substr(end, length));
      end += static_cast<std::uint32_t>(length);
      ends.push_back(end);
    }
    expectSameTexts(texts);
    // Nothing behind the run is there to be read.
    const auto alone = std::make_unique<char16_t[]>(end);
    std::copy_n(units.begin(), end, alone.get());
    expectSame(texts, [&](PersistStream& stream) { stream.WriteRun({alone.get(), ends}); });
  }

  void expectSameTexts(const std::vector<TextView>& texts) {
    expectSame(texts, [&](PersistStream& stream) { stream.WriteStrings(texts); });
  }

  /// Whatever was written before, a text or one that is to be repeated or a number, and whatever comes after.
  void expectSame(const std::vector<TextView>& texts, const Writing& writing) {
    const TextView first = texts.empty() ? TextView() : texts.front();
    for (const PersistValue& before : {PersistValue::ofLong(5), PersistValue::smallInteger(1),
                                       PersistValue::string(first), PersistValue::string(u"other")}) {
      const auto between = [&](auto writeTexts) {
        return saved([&](PersistStream& stream) {
          stream.WriteValue(before);
          writeTexts(stream);
          stream.WriteValue(PersistValue::smallInteger(1));
          stream.WriteValue(PersistValue::string(texts.empty() ? TextView() : texts.back()));
        });
      };
      EXPECT_EQ(between(writing), between([&](PersistStream& stream) {
                  for (const TextView text : texts) {
                    stream.WriteValue(PersistValue::string(text));
                  }
                }));
    }
  }
};

/// Units below 256 that repeat late.
Text narrowUnits(std::size_t count) {
  Text units;
  for (std::size_t i = 0; i < count; ++i) {
    units.push_back(static_cast<char16_t>(1 + i * 7 % 251));
  }
  return units;
}

TEST_F(RunsOfValuesTest, ShortTexts) {
  expectSameTexts(narrowUnits(200), {7, 23, 1, 31, 32, 33, 40});
}

TEST_F(RunsOfValuesTest, EmptyTextsAmongOthers) {
  expectSameTexts(narrowUnits(200), {0, 0, 23, 0, 5, 0});
  expectSameTexts({}, {0, 0, 0});
}

TEST_F(RunsOfValuesTest, NoTexts) {
  expectSameTexts({}, {});
}

TEST_F(RunsOfValuesTest, TextsOfTheLengthsAtWhichFormsChange) {
  expectSameTexts(narrowUnits(2000), {126, 127, 128, 129, 1, 127, 3, 0, 127, 127, 127, 126});
}

TEST_F(RunsOfValuesTest, MoreUnitsThanAreTakenTogether) {
  expectSameTexts(narrowUnits(4000), {100, 100, 100, 100, 100, 13, 100, 100, 100, 99, 2000, 12, 9});
}

TEST_F(RunsOfValuesTest, WideUnitsAnywhere) {
  for (std::size_t at = 0; at < 60; ++at) {
    Text units = narrowUnits(60);
    units[at] = u'\u0153';
    expectSameTexts(units, {9, 0, 20, 3, 28});
  }
}

TEST_F(RunsOfValuesTest, ATextAndItsRepetitions) {
  expectSameTexts(u"onceonceonceonce twice", {4, 4, 4, 4, 6});
  expectSameTexts(u"onceoncealiketwice", {4, 0, 4, 5, 5});
  expectSameTexts(u"one.two.one.", {4, 4, 4});
}

TEST_F(RunsOfValuesTest, TheVeryTextBefore) {
  const Text other = u"other";
  for (const Text& text :
       {Text(u"name"), Text(u"n"), Text(), Text(u"wide \u0153"), narrowUnits(200), Text(200, u'\u0416')}) {
    for (std::size_t times = 1; times <= 5; ++times) {
      std::vector<TextView> texts(times, text);
      texts.push_back(other);
      texts.push_back(text);
      texts.push_back(TextView(text).substr(0, text.size() / 2));
      expectSameTexts(texts);
    }
  }
}

TEST_F(RunsOfValuesTest, TheVeryTextBeforeThatWasARepetitionItself) {
  const TextView units = u"onceonce";
  expectSameTexts({units.substr(0, 4), units.substr(4), units.substr(4), units.substr(4)});
}

TEST_F(RunsOfValuesTest, TextsThatLieApart) {
  const Text first = narrowUnits(20);
  const Text second = narrowUnits(30);
  expectSameTexts(
      {TextView(first).substr(10), TextView(first).substr(0, 10), second, TextView(second).substr(0, 5)});
}

TEST_F(RunsOfValuesTest, MoreThanTheWriterHasRoomFor) {
  const Text units = narrowUnits(400);
  const std::array<TextView, 4> texts = {TextView(units).substr(0, 100), TextView(units).substr(100, 100),
                                         TextView(units).substr(200, 100), TextView(units).substr(300, 100)};
  const auto many = [&](auto writeOnce) {
    return saved([&](PersistStream& stream) {
      for (int i = 0; i < 2000; ++i) {
        writeOnce(stream);
      }
    });
  };
  const FileBytes oneByOne = many([&](PersistStream& stream) {
    for (const TextView text : texts) {
      stream.WriteValue(PersistValue::string(text));
    }
  });
  EXPECT_EQ(many([&](PersistStream& stream) { stream.WriteStrings(texts); }), oneByOne);
  const std::array<std::uint32_t, 4> ends = {100, 200, 300, 400};
  EXPECT_EQ(many([&](PersistStream& stream) { stream.WriteRun({units.data(), ends}); }), oneByOne);
}

/// The second record of a file whose first one ends with a text of so many units.
class RecordBehind : public RunsOfValuesTest {
 protected:
  FileBytes recordBehind(std::size_t units) {
    const FileBytes bytes = saved([&](PersistStream& stream) {
      stream.WriteValue(PersistValue::string(Text(units, u'a')));
      stream.WriteKept(KeptObject(object_));
    });
    const FileBytes mark(mark_.begin(), mark_.end());
    constexpr std::ptrdiff_t checksum = 8;
    constexpr std::size_t most = 20000;
    const auto from = bytes.end() - static_cast<std::ptrdiff_t>(std::min(bytes.size(), most));
    return {std::search(from, bytes.end(), mark.begin(), mark.end()), bytes.end() - checksum};
  }

 private:
  /// Short texts, as less room than they need is not used; values of every kind, and then more of them than
  /// the writer's own buffer holds.
  void write(PersistStream& stream) const {
    stream.WriteValue(PersistValue::string(mark_));
    for (std::size_t i = 0; i < 12; ++i) {
      stream.WriteValue(PersistValue::string(narrowUnits(100 + i)));
    }
    for (int i = 0; i < 10; ++i) {
      stream.WriteValue(PersistValue::ofBoolean(i % 2 == 0));
      stream.WriteOnes(i == 5 ? 256 : 3);
      stream.WriteLongs(numbers_);
      const TextView name = TextView(run_).substr(0, 127);
      stream.WriteStrings(std::array{name, name});
    }
    for (int i = 0; i < 70; ++i) {
      stream.WriteValue(PersistValue::ofBoolean(i % 2 == 0));
    }
    for (int i = 0; i < 20; ++i) {
      stream.WriteLongs(numbers_);
    }
    for (int i = 0; i < 5; ++i) {
      stream.WriteOnes(256);
      stream.WriteValue(PersistValue::ofBoolean(true));
    }
    for (const Text& text :
         {narrowUnits(30), Text(20, u'\u0416'), narrowUnits(3000), Text(1500, u'\u0416')}) {
      stream.WriteValue(PersistValue::string(text));
      stream.WriteOnes(40);
      stream.WriteValue(PersistValue::string(text));
      stream.WriteValue(PersistValue::object(std::make_shared<Written>([](PersistStream&) {})));
      stream.WriteRun({run_.data(), ends_});
      stream.WriteValue(PersistValue::ofBoolean(true));
      stream.WriteLongs(numbers_);
    }
  }

  const Text mark_ = u"MARK";
  const Text run_ = narrowUnits(200);
  const std::array<std::uint32_t, 5> ends_ = {20, 20, 90, 110, 200};
  const std::array<std::int32_t, 3> numbers_ = {1, -70, 1000000};
  const std::shared_ptr<Written> object_ = std::make_shared<Written>([this](PersistStream& s) { write(s); });
};

TEST_F(RecordBehind, IsTheSameWhereverTheWritersRoomEnds) {
  const FileBytes expected = recordBehind(10);
  // What is written together, and of the places that its end can have all in the short values, the others now
  // and then, and all in which next to nothing of it is left.
  constexpr std::size_t room = 256 * 1024;
  ASSERT_GT(expected.size(), 6000U);
  for (std::size_t units = room - expected.size(); units < room + 40;) {
    ASSERT_EQ(recordBehind(units), expected) << units;
    const bool isEach = (units > room - 4000 && units < room - 1000) || units > room - 80;
    units += isEach ? 1 : 43;
  }
}

TEST_F(RunsOfValuesTest, Ones) {
  const PersistValue one = PersistValue::smallInteger(1);
  for (const int before : {0, 1, 15, 16, 17}) {
    for (const std::int32_t count : {-1, 0, 1, 2, 15, 16, 17, 33, 255, 256, 257, 2000, 20000}) {
      const auto ones = [&](auto write) {
        return saved([&](PersistStream& stream) {
          for (int i = 0; i < before; ++i) {
            stream.WriteValue(one);
          }
          write(stream);
          stream.WriteValue(PersistValue::string(u"behind"));
          stream.WriteOnes(1);
        });
      };
      EXPECT_EQ(ones([&](PersistStream& stream) { stream.WriteOnes(count); }),
                ones([&](PersistStream& stream) {
                  for (std::int32_t i = 0; i < count; ++i) {
                    stream.WriteValue(one);
                  }
                }))
          << before << " and " << count;
    }
  }
}

TEST_F(RunsOfValuesTest, LongsBetweenOnes) {
  std::vector<std::int32_t> numbers = {0, 1, -1, 63, 64, -65, 2147483647, -2147483647 - 1};
  numbers.resize(1000, 5);
  EXPECT_EQ(saved([&](PersistStream& stream) {
              stream.WriteOnes(3);
              stream.WriteLongs(std::span(numbers).first(8));
              stream.WriteOnes(3);
              stream.WriteLongs(numbers);
            }),
            saved([&](PersistStream& stream) {
              const auto writeOnes = [&] {
                for (int i = 0; i < 3; ++i) {
                  stream.WriteValue(PersistValue::smallInteger(1));
                }
              };
              writeOnes();
              for (std::size_t i = 0; i < 8; ++i) {
                stream.WriteValue(PersistValue::ofLong(numbers[i]));
              }
              writeOnes();
              for (const std::int32_t number : numbers) {
                stream.WriteValue(PersistValue::ofLong(number));
              }
            }));
}

TEST_F(RunsOfValuesTest, ABooleanEndsARunOfOnes) {
  const PersistValue one = PersistValue::smallInteger(1);
  const FileBytes bytes = saved([&](PersistStream& stream) {
    stream.WriteValue(one);
    stream.WriteValue(PersistValue::ofBoolean(true));
    stream.WriteValue(one);
    stream.WriteValue(one);
    stream.WriteValue(PersistValue::ofBoolean(false));
  });
  const FileBytes values = {0x12, 1, 0x1B, 0x12, 2, 0x0B};
  EXPECT_NE(std::search(bytes.begin(), bytes.end(), values.begin(), values.end()), bytes.end());
}

TEST_F(RunsOfValuesTest, ObjectsThatAreKept) {
  const auto below = std::make_shared<Written>([](PersistStream& stream) { stream.WriteOnes(1); });
  const std::shared_ptr<Written> nothing;
  EXPECT_EQ(saved([&](PersistStream& stream) {
              stream.WriteKept(KeptObject(below));
              stream.WriteKept(KeptObject(nothing));
              stream.WriteKept(KeptObject(below));
            }),
            saved([&](PersistStream& stream) {
              stream.WriteValue(PersistValue::object(below));
              stream.WriteValue(PersistValue::object(nullptr));
              stream.WriteValue(PersistValue::object(below));
            }));
}

TEST_F(RunsOfValuesTest, ObjectsThatNobodyElseKeepsLiveUntilTheyAreWritten) {
  const auto naming = [](int count) {
    return [count](PersistStream& stream) {
      for (int i = 0; i < count; ++i) {
        stream.WriteValue(PersistValue::object(std::make_shared<Written>([i](PersistStream& below) {
          below.WriteValue(PersistValue::string(decimal(i)));
          below.WriteValue(PersistValue::object(std::make_shared<Written>([](PersistStream&) {})));
        })));
      }
    };
  };
  std::vector<std::shared_ptr<Written>> kept;
  const FileBytes expected = saved([&](PersistStream& stream) {
    for (int i = 0; i < 20; ++i) {
      const auto& last = kept.emplace_back(std::make_shared<Written>([](PersistStream&) {}));
      const auto& object = kept.emplace_back(std::make_shared<Written>([i, last](PersistStream& below) {
        below.WriteValue(PersistValue::string(decimal(i)));
        below.WriteKept(KeptObject(last));
      }));
      stream.WriteValue(PersistValue::object(object));
    }
  });
  EXPECT_EQ(saved(naming(20)), expected);
}

}  // namespace
}  // namespace kob::test
