// SPDX-FileCopyrightText: The KOBTraduction authors
#include "PersistenceTest.h"

#include <kobtraduction/persistence/FileManager.h>

#include <functional>
#include <memory>
#include <new>
#include <stdexcept>

namespace kob::test {
namespace {

using Strings = std::vector<std::string>;

/// A way in which the value at an index fails.
using Spoil = std::function<void(ScriptedStream& stream, Record& record, std::size_t index)>;

/// A record, and what stands in a new object when its value i (from 0) is the one that fails; the last state
/// is that of the whole record.
template <class Object>
struct Case {
  std::function<std::shared_ptr<Object>()> make;
  std::int32_t version;
  Values values;
  Strings states;
};

template <class Object>
void failEverywhere(const Case<Object>& test, const std::function<std::string(const Object&)>& stateOfIt) {
  ASSERT_EQ(test.states.size(), test.values.size() + 1);
  for (std::size_t i = 0; i <= test.values.size(); ++i) {
    const auto run = [&](const char* how, ScriptedStream stream) {
      Global_Util::setNbLangues(2);
      Global_Util::setPersistOk(true);
      const auto object = test.make();
      EXPECT_NO_THROW(object->read(stream));
      EXPECT_EQ(Global_Util::PersistOk(), i == test.values.size()) << how << " at value " << i;
      EXPECT_EQ(stateOfIt(*object), test.states[i]) << how << " at value " << i;
      EXPECT_LE(stream.valuesRead(), i + 1) << how << ": nothing is read behind the failure";
    };
    const auto given = test.values.begin() + static_cast<std::ptrdiff_t>(i);
    run("the record ends", ScriptedStream({test.version, {test.values.begin(), given}}));
    ScriptedStream failing({test.version, test.values});
    failing.failAt(static_cast<int>(i) + 2);
    run("the stream fails", std::move(failing));
    if (i < test.values.size()) {
      Values wrong = test.values;
      wrong[i] = wrong[i].type == PersistType::Object ? aText(u"no object")
                                                      : anObject(std::make_shared<KOBTraductionObj>());
      run("a value does not convert", ScriptedStream({test.version, wrong}));
    }
  }
}

std::string cellState(const KOBCellTraduction& cell) {
  return stateOf(cell);
}

std::string entryState(const KOBTraductionObj& entry) {
  return stateOf(entry);
}

std::string modelState(const KOBModeleTraduction& model) {
  return toUtf8(model.Racine()->nom()) + " " + std::to_string(Global_Util::NbLangues());
}

std::shared_ptr<KOBModeleTraduction> newModel() {
  const std::int32_t before = Global_Util::NbLangues();
  auto model = std::make_shared<KOBModeleTraduction>();
  Global_Util::setNbLangues(before);
  return model;
}

std::shared_ptr<KOBTraductionObj> newEntry() {
  return std::make_shared<KOBTraductionObj>();
}

class FailingReads : public PersistenceTest {};

TEST_F(FailingReads, AModelKeepsWhatItHadRead) {
  failEverywhere<KOBModeleTraduction>(
      {newModel, 1, {aLong(4), anObject(emptyCell(u"root"))}, {"RACINE 2", "RACINE 4", "root 4"}},
      modelState);
}

TEST_F(FailingReads, AnEntryKeepsWhatItHadRead) {
  failEverywhere<KOBTraductionObj>(
      {newEntry,
       1,
       {aText(u"Caption"), aText(u"Nom"), aText(u"Name")},
       {R"(: ["" ""])", "Caption: []", R"(Caption: ["Nom"])", R"(Caption: ["Nom" "Name"])"}},
      entryState);
}

TEST_F(FailingReads, AnEmptyLeafKeepsWhatItHadRead) {
  failEverywhere<KOBCellTraduction>(
      {KOBCellTraduction::create,
       2,
       {aText(u"a"), aText(u"b"), aLong(2), aLong(0), aBoolean(true)},
       {R"(/ 21 message ["" ""])", R"(a/ 21 message ["" ""])", R"(a/b 21 message ["" ""])",
        R"(a/b 21 message ["" ""])", "a/b 20", "a/b 20 context"}},
      cellState);
}

TEST_F(FailingReads, AVersionOneLeafKeepsWhatItHadRead) {
  failEverywhere<KOBCellTraduction>({KOBCellTraduction::create,
                                     1,
                                     {aText(u"a"), aText(u"b"), aLong(2), aLong(0)},
                                     {R"(/ 21 message ["" ""])", R"(a/ 21 message ["" ""])",
                                      R"(a/b 21 message ["" ""])", R"(a/b 21 message ["" ""])", "a/b 20"}},
                                    cellState);
}

TEST_F(FailingReads, ANodeKeepsWhatItHadRead) {
  failEverywhere<KOBCellTraduction>(
      {KOBCellTraduction::create,
       2,
       {aText(u"n"), aText(u""), aLong(1), aLong(2), anObject(emptyCell(u"x")), anObject(emptyCell(u"y")),
        aLong(0), aBoolean(true)},
       {R"(/ 21 message ["" ""])", R"(n/ 21 message ["" ""])", R"(n/ 21 message ["" ""])",
        R"(n/ 11 cells [] message ["" ""])", R"(n/ 11 cells [] message ["" ""])",
        R"(n/ 11 cells [x] message ["" ""])", R"(n/ 11 cells [x y] message ["" ""])", "n/ 10 cells [x y]",
        "n/ 10 cells [x y] context"}},
      cellState);
}

TEST_F(FailingReads, AMessageKeepsWhatItHadRead) {
  failEverywhere<KOBCellTraduction>(
      {KOBCellTraduction::createNode,
       2,
       {aText(u"m"), aText(u""), aLong(2), aLong(1), anObject(entry(u"", {u"t", u"u"})), aBoolean(true)},
       {"/ 10 cells []", "m/ 10 cells []", "m/ 10 cells []", "m/ 20", R"(m/ 21 message ["" ""])",
        R"(m/ 21 message ["t" "u"])", R"(m/ 21 message ["t" "u"] context)"}},
      cellState);
}

TEST_F(FailingReads, AControlKeepsWhatItHadRead) {
  const std::string fresh = " entries [] width [1 1] left [1 1]";
  failEverywhere<KOBCellTraduction>(
      {KOBCellTraduction::create,
       2,
       {aText(u"c"), aText(u""), aLong(2), aLong(2), aLong(5), aLong(-1), aLong(2),
        anObject(entry(u"Caption", {})), anObject(entry(u"ToolTip", {})), aDouble(1.5), aDouble(0.5),
        aSmallInteger(1), aDouble(1), aBoolean(true)},
       {R"(/ 21 message ["" ""])", R"(c/ 21 message ["" ""])", R"(c/ 21 message ["" ""])",
        R"(c/ 21 message ["" ""])", "c/ 22 at 0,0" + fresh, "c/ 22 at 1,0" + fresh, "c/ 22 at 1,-1" + fresh,
        "c/ 22 at 1,-1" + fresh, "c/ 22 at 1,-1 entries [Caption] width [1 1] left [1 1]",
        "c/ 22 at 1,-1 entries [Caption ToolTip] width [] left []",
        "c/ 22 at 1,-1 entries [Caption ToolTip] width [1.5d] left []",
        "c/ 22 at 1,-1 entries [Caption ToolTip] width [1.5d] left [0.5d]",
        "c/ 22 at 1,-1 entries [Caption ToolTip] width [1.5d 1] left [0.5d]",
        "c/ 22 at 1,-1 entries [Caption ToolTip] width [1.5d 1] left [0.5d 1d]",
        "c/ 22 at 1,-1 entries [Caption ToolTip] width [1.5d 1] left [0.5d 1d] context"}},
      cellState);
}

TEST_F(FailingReads, AControlWithUntouchedFactorsKeepsWhatItHadRead) {
  const std::string fresh = " entries [] width [1 1] left [1 1]";
  failEverywhere<KOBCellTraduction>(
      {KOBCellTraduction::createControl,
       2,
       {aText(u"c"), aText(u""), aLong(2), aLong(2), aLong(1), aLong(1), aLong(0), aSmallInteger(1),
        aSmallInteger(1), aSmallInteger(1), aDouble(2), aBoolean(false)},
       {"/ 22 at 0,0" + fresh, "c/ 22 at 0,0" + fresh, "c/ 22 at 0,0" + fresh, "c/ 22 at 0,0" + fresh,
        "c/ 22 at 0,0" + fresh, "c/ 22 at 1,0" + fresh, "c/ 22 at 1,1" + fresh,
        "c/ 22 at 1,1 entries [] width [] left []", "c/ 22 at 1,1 entries [] width [1] left []",
        "c/ 22 at 1,1 entries [] width [1] left [1]", "c/ 22 at 1,1 entries [] width [1 1] left [1]",
        "c/ 22 at 1,1 entries [] width [1 1] left [1 2d]",
        "c/ 22 at 1,1 entries [] width [1 1] left [1 2d]"}},
      cellState);
}

TEST_F(FailingReads, AFailingVersionReadsNothing) {
  const auto read = [](IKOBVBPersistStream& object, const Values& values) {
    ScriptedStream stream({2, values});
    stream.failAt(1);
    Global_Util::setPersistOk(true);
    object.read(stream);
    EXPECT_FALSE(Global_Util::PersistOk());
    EXPECT_EQ(stream.valuesRead(), 0U);
  };
  const CellRef cell = named(u"before");
  read(*cell, cellStart(u"a", 0) + Values{aBoolean(true)});
  EXPECT_EQ(cell->nom(), u"before");
  const EntryRef made = entry(u"before", {u"text"});
  read(*made, {aText(u"Caption"), aText(u"a"), aText(u"b"), aText(u"c")});
  EXPECT_EQ(stateOf(*made), R"(before: ["text"])");
  KOBModeleTraduction model;
  const CellRef root = model.Racine();
  read(model, {aLong(2), anObject(cell)});
  EXPECT_EQ(model.Racine(), root);
  EXPECT_EQ(Global_Util::NbLangues(), 6);
}

TEST_F(FailingReads, WhateverTheStreamThrowsStaysInside) {
  const std::function<void()> raises[] = {
      [] { throw PersistFailure(u"no disk"); }, [] { throw Failure(FailureKind::InvalidIndex); },
      [] { throw std::runtime_error("no disk"); }, [] { throw std::bad_alloc(); }, [] { throw 5; }};
  for (const auto& raise : raises) {
    ScriptedStream stream({2, cellStart(u"a", 0)});
    stream.failAt(3, raise);
    const CellRef cell = KOBCellTraduction::create();
    Global_Util::setPersistOk(true);
    EXPECT_NO_THROW(cell->read(stream));
    EXPECT_FALSE(Global_Util::PersistOk());
    EXPECT_EQ(cell->nom(), u"a");
  }
}

TEST_F(FailingReads, ARecordThatSucceedsDoesNotClearAnEarlierFailure) {
  Global_Util::setPersistOk(false);
  ScriptedStream stream({1, {aText(u"Caption"), aText(u"a"), aText(u"b"), aText(u"c")}});
  KOBTraductionObj().read(stream);
  EXPECT_FALSE(Global_Util::PersistOk());
}

TEST_F(FailingReads, ARecordThatSucceedsLeavesTheFlagSet) {
  ScriptedStream stream({1, {aText(u"Caption"), aText(u"a"), aText(u"b"), aText(u"c")}});
  KOBTraductionObj().read(stream);
  EXPECT_TRUE(Global_Util::PersistOk());
}

TEST_F(FailingReads, AFailedRecordShowsNoMessage) {
  EXPECT_FALSE(reads(*KOBCellTraduction::create(), 2, {}));
  EXPECT_FALSE(reads(*std::make_shared<KOBTraductionObj>(), 1, {}));
  KOBModeleTraduction model;
  EXPECT_FALSE(reads(model, 1, {}));
  EXPECT_EQ(messages.take(), "");
}

}  // namespace
}  // namespace kob::test
