// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ServiceTest.h"

#include <kobtraduction/persistence/FileManager.h>

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

  /// The lengths are those of texts that lie one behind the other in `units`.
  void expectSameTexts(TextView units, std::initializer_list<std::size_t> lengths) {
    std::vector<TextView> texts;
    for (const std::size_t length : lengths) {
      texts.push_back(units.substr(0, length));
      units.remove_prefix(length);
    }
    expectSameTexts(texts);
  }

  void expectSameTexts(const std::vector<TextView>& texts) {
    EXPECT_EQ(saved([&](PersistStream& stream) { stream.WriteStrings(texts); }),
              saved([&](PersistStream& stream) {
                for (const TextView text : texts) {
                  stream.WriteValue(PersistValue::string(text));
                }
              }));
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

TEST_F(RunsOfValuesTest, MoreThanTheFirstBufferHolds) {
  const Text units = narrowUnits(400);
  const std::array<TextView, 4> texts = {TextView(units).substr(0, 100), TextView(units).substr(100, 100),
                                         TextView(units).substr(200, 100), TextView(units).substr(300, 100)};
  const auto many = [&](auto writeOnce) {
    return saved([&](PersistStream& stream) {
      for (int i = 0; i < 40; ++i) {
        writeOnce(stream);
      }
    });
  };
  EXPECT_EQ(many([&](PersistStream& stream) { stream.WriteStrings(texts); }),
            many([&](PersistStream& stream) {
              for (const TextView text : texts) {
                stream.WriteValue(PersistValue::string(text));
              }
            }));
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

}  // namespace
}  // namespace kob::test
