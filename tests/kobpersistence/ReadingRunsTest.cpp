// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ServiceTest.h"

#include <kobtraduction/persistence/FileManager.h>

#include <algorithm>
#include <array>
#include <functional>
#include <span>
#include <utility>

namespace kob::test {
namespace {

using Handling = std::function<void(PersistStream&)>;

/// An object that goes for a model, as files hold objects of known classes only, and whose record is a
/// test's.
class Told final : public IKOBVBPersistStream {
 public:
  Told(Handling writing, Handling reading) : writing_(std::move(writing)), reading_(std::move(reading)) {}
  TextView getProgID() const noexcept override { return u"KOBTraduction.KOBModeleTraduction"; }
  std::shared_ptr<ProgIdTable> getProgIdTable() override {
    auto table = std::make_shared<ProgIdTable>();
    table->Add(Text(getProgID()));
    return table;
  }
  void write(PersistStream& stream) override { writing_(stream); }
  void read(PersistStream& stream) override { reading_(stream); }

 private:
  Handling writing_;
  Handling reading_;
};

/// Values that are read together are those that are read one by one.
class ReadingRunsTest : public ServiceTest {
 protected:
  void expectReading(const Handling& writing, const Handling& reading) {
    bool isRead = false;
    Told object(writing, [&](PersistStream& stream) {
      reading(stream);
      isRead = true;
    });
    const auto files = makeFileManager();
    files->SaveToFile(name("values"), object, 1);
    files->LoadFromFile(name("values"), object);
    EXPECT_TRUE(isRead);
  }

  static Texts strings(PersistStream& stream, std::size_t most) {
    std::vector<TextView> views(most);
    const std::int32_t read = stream.ReadStrings(views);
    return {views.begin(), views.begin() + read};
  }
  static std::vector<std::int32_t> longs(PersistStream& stream, std::size_t most) {
    std::vector<std::int32_t> numbers(most);
    numbers.resize(static_cast<std::size_t>(stream.ReadLongs(numbers)));
    return numbers;
  }
};

TEST_F(ReadingRunsTest, TextsOfAllFormsUpToAnotherValue) {
  const Text longText(300, u'l');
  const std::array<TextView, 9> texts = {u"one",   u"one",   u"", u"œuvre", u"œuvre",
                                         longText, longText, u"", u"two"};
  expectReading(
      [&](PersistStream& stream) {
        stream.WriteStrings(texts);
        stream.WriteValue(PersistValue::ofLong(5));
      },
      [&](PersistStream& stream) {
        EXPECT_EQ(strings(stream, 20), Texts(texts.begin(), texts.end()));
        EXPECT_EQ(strings(stream, 20), Texts());
        EXPECT_EQ(longs(stream, 20), (std::vector<std::int32_t>{5}));
      });
}

TEST_F(ReadingRunsTest, NoMoreTextsThanThereIsRoomFor) {
  const std::array<TextView, 5> texts = {u"a", u"b", u"b", u"é", u"c"};
  expectReading([&](PersistStream& stream) { stream.WriteStrings(texts); },
                [&](PersistStream& stream) {
                  EXPECT_EQ(strings(stream, 0), Texts());
                  EXPECT_EQ(strings(stream, 2), (Texts{u"a", u"b"}));
                  EXPECT_EQ(stream.ReadValue().text(), u"b");
                  EXPECT_EQ(strings(stream, 2), (Texts{u"é", u"c"}));
                  EXPECT_EQ(strings(stream, 2), Texts());
                });
}

TEST_F(ReadingRunsTest, ASecondTextThatRepeatsTheFirstIsInOnePlaceWithIt) {
  for (const Text& first : {Text(u"name"), Text(u"œuvre"), Text(200, u'n'), Text(200, u'œ')}) {
    const std::array<TextView, 4> texts = {first, first, u"behind", u"behind"};
    const auto writing = [&](PersistStream& stream) { stream.WriteStrings(texts); };
    const auto expectTexts = [&](std::span<const TextView> read) {
      EXPECT_TRUE(std::equal(texts.begin(), texts.end(), read.begin(), read.end()));
      EXPECT_EQ(read[1].data(), read[0].data());
      EXPECT_EQ(read[2].data(), read[1].data() + read[1].size());
      EXPECT_EQ(read[3].data(), read[2].data() + read[2].size());
    };
    expectReading(writing, [&](PersistStream& stream) {
      std::array<TextView, 4> read;
      EXPECT_EQ(stream.ReadStrings(read), 4);
      expectTexts(read);
    });
    expectReading(writing, [&](PersistStream& stream) {
      std::array<TextView, 4> read;
      for (TextView& text : read) {
        text = stream.ReadValue().text();
      }
      expectTexts(read);
    });
  }
}

TEST_F(ReadingRunsTest, ALaterTextThatRepeatsTheOneBeforeContinuesTheRun) {
  const std::array<TextView, 3> texts = {u"", u"once", u"once"};
  expectReading([&](PersistStream& stream) { stream.WriteStrings(texts); },
                [&](PersistStream& stream) {
                  std::array<TextView, 3> read;
                  EXPECT_EQ(stream.ReadStrings(read), 3);
                  EXPECT_EQ(read[2], u"once");
                  EXPECT_EQ(read[2].data(), read[1].data() + read[1].size());
                });
}

TEST_F(ReadingRunsTest, LongsUpToAnotherValue) {
  const std::array<std::int32_t, 6> numbers = {0, -1, 63, 64, 2147483647, -2147483647 - 1};
  expectReading(
      [&](PersistStream& stream) {
        stream.WriteLongs(numbers);
        stream.WriteValue(PersistValue::string(u"text"));
        stream.WriteValue(PersistValue::ofLong(7));
        stream.WriteValue(PersistValue::smallInteger(3));
      },
      [&](PersistStream& stream) {
        EXPECT_EQ(longs(stream, 0), std::vector<std::int32_t>());
        EXPECT_EQ(longs(stream, 1), (std::vector<std::int32_t>{0}));
        EXPECT_EQ(longs(stream, 9), std::vector<std::int32_t>(numbers.begin() + 1, numbers.end()));
        EXPECT_EQ(longs(stream, 9), std::vector<std::int32_t>());
        EXPECT_EQ(stream.ReadValue().text(), u"text");
        EXPECT_EQ(longs(stream, 9), (std::vector<std::int32_t>{7}));
        EXPECT_EQ(longs(stream, 9), std::vector<std::int32_t>());
        EXPECT_EQ(stream.ReadValue().integer(), 3);
        EXPECT_EQ(longs(stream, 9), std::vector<std::int32_t>());
      });
}

TEST_F(ReadingRunsTest, OnesThatAreLeftComeFirst) {
  expectReading(
      [](PersistStream& stream) {
        stream.WriteOnes(3);
        stream.WriteValue(PersistValue::ofLong(9));
        stream.WriteValue(PersistValue::string(u"text"));
      },
      [](PersistStream& stream) {
        EXPECT_EQ(stream.PassOnes(1), 1);
        EXPECT_EQ(longs(stream, 2), std::vector<std::int32_t>());
        EXPECT_EQ(strings(stream, 2), Texts());
        EXPECT_EQ(stream.PassOnes(5), 2);
        EXPECT_EQ(strings(stream, 2), Texts());
        EXPECT_EQ(longs(stream, 2), (std::vector<std::int32_t>{9}));
        EXPECT_EQ(strings(stream, 2), (Texts{u"text"}));
      });
}

}  // namespace
}  // namespace kob::test
