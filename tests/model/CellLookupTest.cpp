// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

namespace kob::test {
namespace {

class ChildLookup : public ModelTest {
 protected:
  ChildLookup() { node->setTypeCell(1); }

  CellRef add(TextView name) {
    CellRef cell = named(name);
    append(node, cell);
    return cell;
  }

  const Texts shown{u"GetCell - KOBCellTraduction"};
  CellRef node = named(u"node");
};

TEST_F(ChildLookup, FindsAChildByName) {
  const CellRef a = add(u"a");
  const CellRef b = add(u"b");
  EXPECT_EQ(node->GetCell(u"a"), a);
  EXPECT_EQ(node->GetCell(u"b"), b);
  EXPECT_EQ(node->findCell(u"b"), b.get());
}

TEST_F(ChildLookup, IgnoresCase) {
  const CellRef cell = add(u"Été");
  EXPECT_EQ(node->GetCell(u"éTÉ"), cell);
}

TEST_F(ChildLookup, TellsNamesApartThatDifferInTheirFirstCharacterOnly) {
  std::vector<CellRef> cells;
  for (const TextView name : {u"aName", u"bName", u"cName", u"dName", u"eName"}) {
    cells.push_back(add(name));
  }
  for (const CellRef& cell : cells) {
    EXPECT_EQ(node->GetCell(cell->nom()), cell);
  }
  EXPECT_EQ(node->GetCell(u"fName"), nullptr);
}

TEST_F(ChildLookup, FindsEveryChildWhileTheListGrowsInAnyOrder) {
  for (int i = 0; i < 40; ++i) {
    const CellRef cell = named(u"n" + decimal(i));
    i % 3 == 0 ? node->ColCell()->Add(cell) : node->ColCell()->Add(cell, i / 2 + 1);
    for (int known = 0; known <= i; ++known) {
      const CellRef found = node->GetCell(u"N" + decimal(known));
      ASSERT_NE(found, nullptr) << known << " of " << i;
      ASSERT_EQ(found->nom(), u"n" + decimal(known));
    }
  }
}

TEST_F(ChildLookup, FindsNoneWithoutAMessageWhenNothingMatches) {
  add(u"a");
  EXPECT_EQ(node->GetCell(u"x"), nullptr);
  EXPECT_EQ(node->GetCell(u""), nullptr);
  EXPECT_EQ(node->findCell(u"x"), nullptr);
  EXPECT_TRUE(boxes.notices.empty());
}

TEST_F(ChildLookup, LooksAtDirectChildrenOnly) {
  append(add(u"a"), named(u"below"));
  EXPECT_EQ(node->GetCell(u"below"), nullptr);
}

TEST_F(ChildLookup, OfSeveralMatchesTheFirstInOrderIsFound) {
  const CellRef first = add(u"X");
  const CellRef second = add(u"x");
  EXPECT_EQ(node->GetCell(u"x"), first);
  node->ColCell()->Remove(1);
  EXPECT_EQ(node->GetCell(u"X"), second);
}

TEST_F(ChildLookup, ALeafFindsNoneEvenWithAListThatAHostAssigned) {
  const CellRef leaf = named(u"leaf");
  const auto list = std::make_shared<CellList>();
  list->Add(named(u"a"));
  leaf->setColCell(list);
  EXPECT_EQ(leaf->GetCell(u"a"), nullptr);
  EXPECT_TRUE(boxes.notices.empty());
}

TEST_F(ChildLookup, ANodeWithoutAListShowsTheMessageAndFindsNone) {
  node->setColCell(nullptr);
  EXPECT_EQ(node->GetCell(u"a"), nullptr);
  EXPECT_EQ(boxes.notices, shown);
}

TEST_F(ChildLookup, TheMessageHasNoTitleAndAsksNothing) {
  node->setColCell(nullptr);
  static_cast<void>(node->GetCell(u"a"));
  EXPECT_EQ(boxes.titles, Texts{u""});
  EXPECT_EQ(boxes.questions, 0);
}

TEST_F(ChildLookup, FindsWhatStandsBeforeAnItemThatIsNothing) {
  const CellRef a = add(u"a");
  node->ColCell()->Add(nullptr);
  EXPECT_EQ(node->GetCell(u"A"), a);
  EXPECT_TRUE(boxes.notices.empty());
}

TEST_F(ChildLookup, BehindAnItemThatIsNothingShowsTheMessageAndFindsNone) {
  add(u"a");
  node->ColCell()->Add(nullptr);
  add(u"b");
  EXPECT_EQ(node->GetCell(u"b"), nullptr);
  EXPECT_EQ(boxes.notices, shown);
}

TEST_F(ChildLookup, ANameThatIsNowhereMeetsTheDamageToo) {
  add(u"a");
  node->ColCell()->Add(nullptr);
  EXPECT_EQ(node->findCell(u"x"), nullptr);
  EXPECT_EQ(boxes.notices, shown);
}

TEST_F(ChildLookup, OfEqualNamesAroundTheDamageTheOneBeforeItIsFound) {
  const CellRef before = add(u"a");
  node->ColCell()->Add(nullptr);
  add(u"A");
  EXPECT_EQ(node->GetCell(u"a"), before);
  node->ColCell()->Remove(1);
  EXPECT_EQ(node->GetCell(u"a"), nullptr);
  EXPECT_EQ(boxes.notices, shown);
}

TEST_F(ChildLookup, IsWholeAgainWhenTheDamageIsRemoved) {
  node->ColCell()->Add(nullptr);
  const CellRef a = add(u"a");
  EXPECT_EQ(node->GetCell(u"a"), nullptr);
  node->ColCell()->Remove(1);
  EXPECT_EQ(node->GetCell(u"a"), a);
  EXPECT_EQ(boxes.notices, shown);
}

TEST_F(ChildLookup, DamageInALongListIsMetAsTheWalkMeetsIt) {
  for (int i = 0; i < 500; ++i) {
    add(u"n" + decimal(i));
  }
  EXPECT_NE(node->GetCell(u"N499"), nullptr);
  node->ColCell()->Add(nullptr, 251);
  EXPECT_NE(node->GetCell(u"N249"), nullptr);
  EXPECT_TRUE(boxes.notices.empty());
  EXPECT_EQ(node->GetCell(u"N250"), nullptr);
  EXPECT_EQ(boxes.notices, shown);
}

TEST_F(ChildLookup, FollowsARenameOfACellThatStandsInSeveralLists) {
  const CellRef cell = add(u"old");
  const CellRef other = named(u"other");
  append(other, cell);
  append(other, cell);
  EXPECT_EQ(other->GetCell(u"old"), cell);
  cell->setnom(u"new");
  for (const CellRef& holder : {node, other}) {
    EXPECT_EQ(holder->GetCell(u"old"), nullptr);
    EXPECT_EQ(holder->GetCell(u"NEW"), cell);
  }
}

TEST_F(ChildLookup, FollowsAReplacedList) {
  add(u"a");
  const auto replacement = std::make_shared<CellList>();
  replacement->Add(named(u"b"));
  node->setColCell(replacement);
  EXPECT_EQ(node->GetCell(u"a"), nullptr);
  EXPECT_EQ(node->GetCell(u"b"), replacement->Item(1));
  replacement->Add(named(u"c"));
  EXPECT_NE(node->GetCell(u"c"), nullptr);
}

TEST_F(ChildLookup, TwoNodesMayShareOneList) {
  const CellRef twin = named(u"twin");
  twin->setTypeCell(1);
  twin->setColCell(node->ColCell());
  const CellRef a = add(u"a");
  EXPECT_EQ(twin->GetCell(u"A"), a);
}

TEST_F(ChildLookup, ARenameToTheOwnTextIsHarmless) {
  const CellRef cell = add(u"prefix-name");
  cell->setnom(cell->nom());
  EXPECT_EQ(node->GetCell(u"prefix-name"), cell);
  cell->setnom(TextView(cell->nom()).substr(7));
  EXPECT_EQ(cell->nom(), u"name");
  EXPECT_EQ(node->GetCell(u"NAME"), cell);
  EXPECT_EQ(node->GetCell(u"prefix-name"), nullptr);
}

TEST_F(ChildLookup, AListOutlivesItsCellAndStillFollowsRenames) {
  const CellRef a = add(u"a");
  const auto list = node->ColCell();
  node.reset();
  a->setnom(u"b");
  EXPECT_EQ(list->find(u"a"), nullptr);
  EXPECT_EQ(list->find(u"B"), a.get());
}

TEST_F(ChildLookup, ACellOutlivesTheListsThatHeldIt) {
  const CellRef a = add(u"a");
  node->setTypeCell(2);
  a->setnom(u"b");
  append(node, a);
  EXPECT_EQ(node->GetCell(u"b"), a);
}

}  // namespace
}  // namespace kob::test
