// SPDX-FileCopyrightText: The KOBTraduction authors
#include "MemoryStorage.h"
#include "TestFile.h"

#include <gmock/gmock.h>

namespace kob::test {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

/// A model that a refused file must not touch.
class DamageTest : public ServiceTest {
 public:
  DamageTest() {
    grow(model, "Old message\n  . \"Ancien\"\n");
    model.setFichier(u"before.trad");
    root_ = model.Racine();
    Global_Util::setNbLangues(5);
  }

  /// Loads a file of these bytes, which must be refused; gives what the box says below its first line.
  std::string refused(const FileBytes& bytes) {
    memory_.storage.files[u"m.trad"] = bytes;
    boxes.notices.clear();
    EXPECT_FALSE(model.Load(u"m.trad"));
    EXPECT_EQ(model.Racine(), root_);
    EXPECT_EQ(model.Fichier(), u"before.trad");
    EXPECT_EQ(Global_Util::NbLangues(), 5);
    if (boxes.notices.size() != 1) {
      return "(" + std::to_string(boxes.notices.size()) + " boxes)";
    }
    constexpr std::string_view first = "Erreur de chargement du modèle\r\n";
    EXPECT_THAT(lastNotice(), StartsWith(first));
    return lastNotice().substr(first.size());
  }
  std::string refused(const TestFile& file) { return refused(file.bytes()); }

  /// A small file with every kind of value.
  FileBytes small() {
    KOBModeleTraduction saved;
    Global_Util::setNbLangues(3);
    grow(saved, "C control left=1 width=-1 width[2]=1.5\n  .Caption \"Un\" 2=\"Ὄ\"\nM message\n  . \"A\"\n");
    EXPECT_TRUE(saved.Save(u"small.trad")) << lastNotice();
    Global_Util::setNbLangues(5);
    return memory_.storage.files[u"small.trad"];
  }

  KOBModeleTraduction model;

 protected:
  /// Where the files are: in memory.
  auto& inMemory() noexcept { return memory_.storage.files; }

 private:
  MemoryService memory_;
  CellRef root_;
};

TEST_F(DamageTest, EverySingleFlippedBitIsRefused) {
  const FileBytes whole = small();
  for (std::size_t bit = 0; bit < 8 * whole.size(); ++bit) {
    FileBytes bytes = whole;
    bytes[bit / 8] ^= static_cast<std::uint8_t>(1U << (bit % 8));
    ASSERT_THAT(refused(bytes), StartsWith("The file ")) << "bit " << bit;
  }
}

TEST_F(DamageTest, EveryTruncationIsRefused) {
  const FileBytes whole = small();
  for (std::size_t size = 0; size < whole.size(); ++size) {
    ASSERT_THAT(refused(FileBytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size))),
                StartsWith("The file "))
        << size << " bytes";
  }
}

TEST_F(DamageTest, ALongerFileIsRefused) {
  const FileBytes whole = small();
  EXPECT_EQ(refused(whole + FileBytes{0}), "The file is damaged: it has " + std::to_string(whole.size() + 1) +
                                               " bytes, and its header (at byte 16) says that there are " +
                                               std::to_string(whole.size()) +
                                               ". Take it from a copy, or save it again.");
}

TEST_F(DamageTest, AnEmptyFileIsCalledEmpty) {
  EXPECT_EQ(refused(FileBytes{}), "The file is empty. Choose another one.");
}

TEST_F(DamageTest, AnotherKindOfFileIsCalledSo) {
  EXPECT_EQ(refused(FileBytes{'h', 'e', 'l', 'l', 'o'}),
            "The file is no translation file. Choose another one.");
}

TEST_F(DamageTest, AFileCutShortInItsHeaderSaysHowMuchIsThere) {
  EXPECT_EQ(refused(FileBytes{'K', 'O', 'B', 'T', 'R', 'A', 'D', 0x1A, 1}),
            "The file is damaged: only its first 9 bytes are there. Take it from a copy, or save it again.");
}

TEST_F(DamageTest, AChangedByteIsFoundByTheChecksumWhichSaysWhereItStands) {
  FileBytes bytes = small();
  bytes[100] ^= 0xFF;
  EXPECT_EQ(refused(bytes), "The file is damaged: the checksum at byte " + std::to_string(bytes.size() - 8) +
                                " is not that of its " + std::to_string(bytes.size()) +
                                " bytes. Take it from a copy, or save it again.");
}

TEST_F(DamageTest, ANewerVersionIsRefusedPolitely) {
  EXPECT_EQ(refused(TestFile{.version = 2, .records = {modelRecord(6), rootRecord()}}),
            "The file has the format version 2, and this program knows version 1 only. Load it with a newer "
            "version of the program.");
}

TEST_F(DamageTest, AnUnknownClassIsRefusedByNameEvenIfNoRecordUsesIt) {
  TestFile file{.records = {modelRecord(6), rootRecord()}};
  file.classes.emplace_back(u"KOBTraduction.Autre");
  EXPECT_EQ(
      refused(file),
      "The file holds objects of the class \"KOBTraduction.Autre\", which this program does not know (at "
      "byte 234). Load it with the program that it comes from.");
}

TEST_F(DamageTest, AFileOfAnotherObjectIsRefused) {
  EXPECT_EQ(refused(TestFile{.records = {rootRecord()}}),
            "The file holds an object of the class \"KOBTraduction.KOBCellTraduction\" and not "
            "\"KOBTraduction.KOBModeleTraduction\". Choose another one.");
}

TEST_F(DamageTest, AFileThatIsRightIsNotRefused) {
  inMemory()[u"m.trad"] = TestFile{.records = {modelRecord(4), rootRecord()}}.bytes();
  EXPECT_TRUE(model.Load(u"m.trad")) << lastNotice();
  EXPECT_EQ(Global_Util::NbLangues(), 4);
}

/// Files with the right checksum whose records break one rule each.
class WrongRecordTest : public DamageTest {
 public:
  /// What is said about a root cell whose values begin with these.
  std::string withValues(const FileBytes& values, std::uint64_t units = 0) {
    return refused(TestFile{.records = {modelRecord(6), record(1, 2, values)}, .units = units});
  }
};

TEST_F(WrongRecordTest, ADescriptionSaysWhatAndWhere) {
  EXPECT_EQ(
      withValues({0x77}),
      "The file was written wrongly: in record 1, a value has an unknown type (at byte 243). Save it again "
      "with the program that it comes from.");
}

TEST_F(WrongRecordTest, ARunOfNoOnes) {
  EXPECT_THAT(withValues({0x12, 0}), HasSubstr("a run of ones is empty or too long"));
}

TEST_F(WrongRecordTest, ARunOfTooManyOnes) {
  EXPECT_THAT(withValues({0x12, 17}), HasSubstr("a run of ones is empty or too long"));
}

TEST_F(WrongRecordTest, ARunOfOnesThatIsCutShort) {
  EXPECT_THAT(withValues({0x12}), HasSubstr("a run of ones is empty or too long"));
}

TEST_F(WrongRecordTest, ALongThatIsCutShort) {
  EXPECT_THAT(withValues({0x03, 0x80}), HasSubstr("a number is cut short or too long"));
}

TEST_F(WrongRecordTest, ALongOfTooManyBits) {
  EXPECT_THAT(withValues({0x03, 0xFF, 0xFF, 0xFF, 0xFF, 0x1F}),
              HasSubstr("a number is cut short or too long"));
}

TEST_F(WrongRecordTest, ALongInMoreBytesThanItNeeds) {
  EXPECT_THAT(withValues({0x03, 0x81, 0x00}), HasSubstr("a number is cut short or too long"));
}

TEST_F(WrongRecordTest, ALongOfSixBytes) {
  EXPECT_THAT(withValues({0x03, 0x80, 0x80, 0x80, 0x80, 0x80, 0x01}),
              HasSubstr("a number is cut short or too long"));
}

TEST_F(WrongRecordTest, ASmallIntegerBeyondSixteenBits) {
  EXPECT_THAT(withValues({0x02, 0x80, 0x80, 0x04}), HasSubstr("a small integer is too large"));
}

TEST_F(WrongRecordTest, ADoubleThatIsCutShort) {
  EXPECT_THAT(withValues({0x05, 1, 2, 3, 4, 5, 6, 7}), HasSubstr("a number is cut short"));
}

TEST_F(WrongRecordTest, ATextOfNoLength) {
  EXPECT_THAT(withValues({0x18, 0}), HasSubstr("the length of a text is wrong"));
}

TEST_F(WrongRecordTest, ATextWithoutItsLength) {
  EXPECT_THAT(withValues({0x08}), HasSubstr("the length of a text is wrong"));
}

TEST_F(WrongRecordTest, ANarrowTextBeyondItsRecord) {
  EXPECT_THAT(withValues({0x18, 4, 'a', 'b', 'c'}, 4), HasSubstr("a text is longer than its record"));
}

TEST_F(WrongRecordTest, AWideTextBeyondItsRecord) {
  EXPECT_THAT(withValues({0x08, 2, 'a', 0, 'b'}, 2), HasSubstr("a text is longer than its record"));
}

TEST_F(WrongRecordTest, ATextOfFourGigabytes) {
  EXPECT_THAT(withValues({0x08, 0xFF, 0xFF, 0xFF, 0xFF, 0x0F}),
              HasSubstr("a text is longer than its record"));
}

TEST_F(WrongRecordTest, MoreUnitsThanTheHeaderSays) {
  EXPECT_THAT(withValues(letters("abc"), 2), HasSubstr("the texts are longer than the header says"));
}

TEST_F(WrongRecordTest, MoreRepeatedUnitsThanTheHeaderSays) {
  EXPECT_THAT(withValues(letters("abc") + FileBytes{0x28}, 5),
              HasSubstr("the texts are longer than the header says"));
}

TEST_F(WrongRecordTest, MoreUnitsInAnAliasThanTheHeaderSays) {
  EXPECT_THAT(withValues(letters("abc") + FileBytes{0x28}, 2),
              HasSubstr("the texts are longer than the header says"));
}

TEST_F(WrongRecordTest, MoreUnitsInALaterRepetitionThanTheHeaderSays) {
  EXPECT_THAT(withValues(FileBytes{0x38} + letters("abc") + FileBytes{0x28}, 5),
              HasSubstr("the texts are longer than the header says"));
}

TEST_F(WrongRecordTest, ARepetitionBehindAnEmptyTextOfTheWrongForm) {
  EXPECT_THAT(withValues({0x18, 0x00, 0x28}, 0), HasSubstr("the length of a text is wrong"));
}

TEST_F(WrongRecordTest, ALengthThatReadsLikeARepetitionBehindTheOnlyTextOfARecord) {
  const FileBytes fortyBytes = record(1, 2, FileBytes(38, no.front()));
  ASSERT_EQ(fortyBytes.front(), 0x28);
  EXPECT_THAT(
      refused(TestFile{.records = {modelRecord(6), record(1, 2, letters("abc")), fortyBytes}, .units = 3}),
      HasSubstr("some of its records are named by no other"));
}

TEST_F(WrongRecordTest, FewerUnitsThanTheHeaderSays) {
  EXPECT_THAT(withValues(letters("abc"), 4), HasSubstr("the texts are shorter than the header says"));
}

TEST_F(WrongRecordTest, MoreUnitsThanTheFileCanHold) {
  EXPECT_THAT(withValues(letters("abc"), 1ULL << 60), HasSubstr("the texts are longer than the file"));
}

TEST_F(WrongRecordTest, ARepeatedTextWithoutAText) {
  EXPECT_THAT(withValues({0x28}), HasSubstr("a text is to be repeated where there is none"));
}

TEST_F(WrongRecordTest, ATextRepeatedTwice) {
  EXPECT_THAT(withValues(letters("a") + FileBytes{0x28, 0x28}, 3),
              HasSubstr("a text is to be repeated where there is none"));
}

TEST_F(WrongRecordTest, ARepeatedEmptyText) {
  EXPECT_THAT(withValues(letters("a") + FileBytes{0x38, 0x28}, 2),
              HasSubstr("a text is to be repeated where there is none"));
}

TEST_F(WrongRecordTest, AnObjectWithoutARecord) {
  EXPECT_THAT(withValues(nextObject), HasSubstr("an object is named that has no record"));
}

TEST_F(WrongRecordTest, AnObjectNumberOfAnEarlierRecord) {
  EXPECT_THAT(withValues({0x19, 0}), HasSubstr("the number of an object is wrong"));
}

TEST_F(WrongRecordTest, AnObjectThatNamesItself) {
  EXPECT_THAT(withValues({0x19, 1}), HasSubstr("the number of an object is wrong"));
}

TEST_F(WrongRecordTest, AnObjectNumberBeyondTheLastRecord) {
  EXPECT_THAT(withValues({0x19, 2}), HasSubstr("the number of an object is wrong"));
}

TEST_F(WrongRecordTest, ARecordThatNobodyNames) {
  EXPECT_THAT(refused(TestFile{.records = {modelRecord(6), rootRecord(), rootRecord()}}),
              HasSubstr("some of its records are named by no other"));
}

TEST_F(WrongRecordTest, ARecordOfAnUnknownClassNumber) {
  EXPECT_THAT(refused(TestFile{.records = {modelRecord(6), record(3, 2, {})}}), HasSubstr("it has no class"));
}

TEST_F(WrongRecordTest, ARecordOfNoLength) {
  EXPECT_THAT(refused(TestFile{.records = {modelRecord(6), {0, 0, 0}}}), HasSubstr("it has no class"));
}

TEST_F(WrongRecordTest, ARecordWithoutVersion) {
  EXPECT_THAT(refused(TestFile{.records = {modelRecord(6), {2, 1, 0x80}}}), HasSubstr("it has no version"));
}

TEST_F(WrongRecordTest, ARecordBeyondTheFile) {
  EXPECT_THAT(refused(TestFile{.records = {modelRecord(6), {9, 1, 4}}}), HasSubstr("it is cut short"));
}

TEST_F(WrongRecordTest, NoRecords) {
  EXPECT_THAT(refused(TestFile{}), HasSubstr("there are fewer records than the header says"));
}

TEST_F(WrongRecordTest, FourBillionRecords) {
  FileBytes bytes = TestFile{.records = {modelRecord(6), rootRecord()}}.bytes();
  std::fill_n(bytes.begin() + 24, 4, std::uint8_t(0xFF));
  EXPECT_THAT(refused(sealed(bytes)), HasSubstr("there are fewer records than the header says"));
}

TEST_F(WrongRecordTest, BytesBehindTheLastRecord) {
  EXPECT_THAT(refused(TestFile{.records = {modelRecord(6), rootRecord() + FileBytes{0}}}),
              HasSubstr("there are more records than the header says"));
}

TEST_F(WrongRecordTest, VersionZero) {
  EXPECT_THAT(refused(TestFile{.version = 0, .records = {modelRecord(6), rootRecord()}}),
              HasSubstr("the header is wrong"));
}

TEST_F(WrongRecordTest, AReservedFieldThatIsUsed) {
  FileBytes bytes = TestFile{.records = {modelRecord(6), rootRecord()}}.bytes();
  bytes[28] = 1;
  EXPECT_THAT(refused(sealed(bytes)), HasSubstr("the header is wrong"));
}

TEST_F(WrongRecordTest, TooManyClasses) {
  FileBytes bytes = TestFile{.records = {modelRecord(6), rootRecord()}}.bytes();
  bytes[13] = 1;
  EXPECT_THAT(refused(sealed(bytes)), HasSubstr("there are too many classes"));
}

TEST_F(WrongRecordTest, AClassBeyondTheFile) {
  FileBytes bytes = TestFile{.records = {modelRecord(6), rootRecord()}}.bytes();
  bytes[41] = 0xFF;
  EXPECT_THAT(refused(sealed(bytes)), HasSubstr("a class identifier is cut short or empty"));
}

TEST_F(WrongRecordTest, AClassWithoutName) {
  EXPECT_THAT(refused(TestFile{.classes = {u""}, .records = {record(0, 1, {})}}),
              HasSubstr("a class identifier is cut short or empty"));
}

TEST_F(WrongRecordTest, ANegativeNumberOfLanguages) {
  EXPECT_THAT(refused(TestFile{.records = {modelRecord(-1), rootRecord()}}),
              HasSubstr("-1 languages are more than its texts are in"));
}

TEST_F(WrongRecordTest, MoreLanguagesThanMemoryShouldBeSpentOn) {
  EXPECT_THAT(refused(TestFile{.records = {modelRecord(2'000'000'000), rootRecord()}}),
              HasSubstr("2000000000 languages are more than its texts are in"));
}

TEST_F(WrongRecordTest, ANegativeNumberOfLanguagesOfAModelThatNamesNoRoot) {
  EXPECT_THAT(refused(TestFile{.records = {record(0, 1, longValue(-1))}}),
              HasSubstr("-1 languages are more than its texts are in"));
}

TEST_F(WrongRecordTest, AModelWithinAModelWhichWouldSetItsOwnNumberOfLanguages) {
  const FileBytes values = letters("RACINE") + emptyText + nextObject;
  EXPECT_THAT(refused(TestFile{.records = {modelRecord(6), record(1, 2, values), record(0, 1, longValue(9))},
                               .units = 6}),
              HasSubstr("in record 2, an object of the first one's class lies within it"));
}

TEST_F(WrongRecordTest, AModelWithinAModelThatIsNamedByAnotherPlaceInTheClassTable) {
  TestFile file{.records = {modelRecord(6), record(1, 2, letters("RACINE") + emptyText + nextObject),
                            record(3, 1, longValue(9))},
                .units = 6};
  file.classes.push_back(file.classes.front());
  EXPECT_THAT(refused(file), HasSubstr("in record 2, an object of the first one's class lies within it"));
}

/// An object that goes on reading whatever happens.
class StubbornObject final : public IKOBVBPersistStream {
 public:
  TextView getProgID() const noexcept override { return u"KOBTraduction.KOBModeleTraduction"; }
  std::shared_ptr<ProgIdTable> getProgIdTable() override { return nullptr; }
  void write(PersistStream& /*stream*/) override {}
  void read(PersistStream& stream) override {
    for (int i = 0; i < 10; ++i) {
      try {
        stream.ReadValue();
      } catch (const PersistFailure&) {
        ++failures;
      }
    }
  }

  int failures = 0;
};

TEST_F(WrongRecordTest, AnObjectThatReadsOnIsToldAgainAndAgain) {
  inMemory()[u"m.trad"] =
      TestFile{.records = {record(0, 1, nextObject + nextObject), rootRecord(), rootRecord()}}.bytes();
  StubbornObject object;
  Global_Util::setNbLangues(-1);
  EXPECT_THROW(persistenceService()()->LoadFromFile(u"m.trad", object), PersistFailure);
  EXPECT_EQ(object.failures, 10);
  EXPECT_EQ(Global_Util::NbLangues(), -1);
}

TEST_F(WrongRecordTest, ManyLanguagesOfAModelWithoutTextsAreRight) {
  inMemory()[u"m.trad"] = TestFile{.records = {modelRecord(500'000), rootRecord()}}.bytes();
  EXPECT_TRUE(model.Load(u"m.trad")) << lastNotice();
  EXPECT_EQ(Global_Util::NbLangues(), 500'000);
}

}  // namespace
}  // namespace kob::test
