// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "tests/doubles/RecordedMessages.h"
#include "tests/doubles/ScriptedStream.h"
#include "tests/model/ModelVocabulary.h"

#include <gmock/gmock.h>

#include <initializer_list>
#include <string>
#include <vector>

/// The words in which the cases of records and files are told.
namespace kob::test {

using ::kob::testing::aBoolean;
using ::kob::testing::aDouble;
using ::kob::testing::aLong;
using ::kob::testing::anObject;
using ::kob::testing::aSmallInteger;
using ::kob::testing::aText;
using ::kob::testing::nothing;
using ::kob::testing::Record;
using ::kob::testing::RecordValue;
using ::kob::testing::ScriptedStream;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Values = std::vector<RecordValue>;

/// Three languages on the thread, records that have not failed, and messages that are kept. A case that shows
/// a message takes it.
class PersistenceTest : public ::testing::Test {
 protected:
  PersistenceTest();
  ~PersistenceTest() override;

  kob::testing::RecordedMessages messages;

 private:
  std::int32_t languagesBefore_;
};

/// The values that an object writes, and whether its record succeeded.
Values written(IKOBVBPersistStream& object);
bool writes(IKOBVBPersistStream& object);
/// Reads a record into the object; whether the record succeeded.
bool reads(IKOBVBPersistStream& object, std::int32_t version, const Values& values);

/// A cell of no kind of translation and without children.
CellRef emptyCell(TextView name);
/// A cell that was made as the service makes it and has read this record.
CellRef cellRead(const Values& values, std::int32_t version = 2);
EntryRef entryRead(const Values& values);

/// The values of a cell's record without lists: a leaf, a node, of a kind, ending before what the kind adds.
Values cellStart(TextView name, std::int32_t typeFeuille);
Values operator+(Values first, const Values& then);

/// All that an object holds, on one line. Cells and entries below are shown by their names only.
std::string stateOf(const KOBCellTraduction& cell);
std::string stateOf(const KOBTraductionObj& entry);
/// `1 1 2.5d`: a double is marked.
std::string stateOf(const std::shared_ptr<FactorList>& factors);

}  // namespace kob::test
