// SPDX-FileCopyrightText: The KOBTraduction authors
#include "PersistenceTest.h"

#include "tests/doubles/Lines.h"

namespace kob::test {

using kob::testing::valueText;

PersistenceTest::PersistenceTest() : languagesBefore_(Global_Util::NbLangues()) {
  Global_Util::setNbLangues(3);
  Global_Util::setPersistOk(true);
}

PersistenceTest::~PersistenceTest() {
  EXPECT_EQ(messages.take(), "");
  Global_Util::setNbLangues(languagesBefore_);
}

Values written(IKOBVBPersistStream& object) {
  ScriptedStream stream;
  object.write(stream);
  return stream.record().values;
}

bool writes(IKOBVBPersistStream& object) {
  Global_Util::setPersistOk(true);
  written(object);
  return Global_Util::PersistOk();
}

bool reads(IKOBVBPersistStream& object, std::int32_t version, const Values& values) {
  Global_Util::setPersistOk(true);
  ScriptedStream stream({version, values});
  object.read(stream);
  EXPECT_TRUE(!Global_Util::PersistOk() || stream.valuesRead() == values.size()) << "values were left unread";
  return Global_Util::PersistOk();
}

CellRef emptyCell(TextView name) {
  CellRef cell = named(name);
  cell->setTypeFeuille(0);
  return cell;
}

CellRef cellRead(const Values& values, std::int32_t version) {
  CellRef cell = KOBCellTraduction::create();
  EXPECT_TRUE(reads(*cell, version, values));
  return cell;
}

EntryRef entryRead(const Values& values) {
  auto made = std::make_shared<KOBTraductionObj>();
  EXPECT_TRUE(reads(*made, 1, values));
  return made;
}

Values cellStart(TextView name, std::int32_t typeFeuille) {
  return {aText(name), aText(u""), aLong(2), aLong(typeFeuille)};
}

Values operator+(Values first, const Values& then) {
  first.insert(first.end(), then.begin(), then.end());
  return first;
}

namespace {

/// `[a b]`, `none`; an item that is nothing is `-`.
template <class List>
std::string namesIn(const std::shared_ptr<List>& list) {
  if (list == nullptr) {
    return "none";
  }
  std::string names;
  for (const auto& item : *list) {
    names += (names.empty() ? "" : " ") + (item == nullptr ? "-" : toUtf8(item->nom()));
  }
  return "[" + names + "]";
}

std::string textsIn(const KOBTraductionObj& entry) {
  if (entry.ColTraduction() == nullptr) {
    return "none";
  }
  std::string all;
  for (const Text& text : texts(*entry.ColTraduction())) {
    all += (all.empty() ? "" : " ") + kob::testing::quoted(text);
  }
  return "[" + all + "]";
}

}  // namespace

std::string stateOf(const KOBTraductionObj& entry) {
  return toUtf8(entry.nom()) + ": " + textsIn(entry);
}

std::string stateOf(const std::shared_ptr<FactorList>& factors) {
  if (factors == nullptr) {
    return "none";
  }
  std::string all;
  for (const Factor& factor : *factors) {
    all += (all.empty() ? "" : " ") + valueText(factor.value()) + (factor.isDouble() ? "d" : "");
  }
  return all;
}

std::string stateOf(const KOBCellTraduction& cell) {
  std::string state = toUtf8(cell.nom()) + "/" + toUtf8(cell.Alias()) + " " +
                      std::to_string(cell.TypeCell()) + std::to_string(cell.TypeFeuille());
  if (cell.TypeCell() == 1) {
    state += " cells " + namesIn(cell.ColCell());
  }
  if (cell.Traduction() != nullptr) {
    state += " message " + textsIn(*cell.Traduction());
  }
  if (cell.TypeFeuille() == 2 || cell.m_left() != 0 || cell.m_width() != 0) {
    state += " at " + std::to_string(cell.m_left()) + "," + std::to_string(cell.m_width());
  }
  if (cell.TypeFeuille() == 2) {
    state += " entries " + namesIn(cell.ColTraduction()) + " width [" + stateOf(cell.ColWidth()) +
             "] left [" + stateOf(cell.ColLeft()) + "]";
  }
  return state + (cell.Contexte() ? " context" : "");
}

}  // namespace kob::test
