// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

#include <limits>
#include <thread>

namespace kob::test {
namespace {

class ModelLanguageCount : public ModelTest {};

template <class Action>
void onAFreshThread(Action action) {
  std::thread thread(action);
  thread.join();
}

TEST_F(ModelLanguageCount, ANewModelOnAFreshThreadMakesItSix) {
  onAFreshThread([] {
    EXPECT_EQ(Global_Util::NbLangues(), 0);
    const KOBModeleTraduction model;
    EXPECT_EQ(model.NbLangues(), 6);
    EXPECT_EQ(Global_Util::NbLangues(), 6);
  });
}

TEST_F(ModelLanguageCount, ANewModelRaisesASmallerCount) {
  Global_Util::setNbLangues(3);
  const KOBModeleTraduction model;
  EXPECT_EQ(model.NbLangues(), 6);
}

TEST_F(ModelLanguageCount, ANewModelNeverLowersTheCount) {
  Global_Util::setNbLangues(9);
  const KOBModeleTraduction model;
  EXPECT_EQ(model.NbLangues(), 9);
}

TEST_F(ModelLanguageCount, ASmallerValueIsIgnored) {
  KOBModeleTraduction model;
  for (const std::int32_t smaller : {4, 0, -1, std::numeric_limits<std::int32_t>::min()}) {
    model.setNbLangues(smaller);
    EXPECT_EQ(model.NbLangues(), 6);
  }
}

TEST_F(ModelLanguageCount, ASmallerOrEqualValueLeavesTheListsAlone) {
  KOBModeleTraduction model;
  const CellRef cell = model.Racine()->AddMessage(u"a", u"text");
  model.setNbLangues(4);
  model.setNbLangues(6);
  EXPECT_EQ(texts(cell).size(), 6U);
}

TEST_F(ModelLanguageCount, ALargerValueHoldsForEveryModelOfTheThread) {
  KOBModeleTraduction model;
  const KOBModeleTraduction other;
  model.setNbLangues(8);
  EXPECT_EQ(model.NbLangues(), 8);
  EXPECT_EQ(other.NbLangues(), 8);
}

TEST_F(ModelLanguageCount, OnlyTheTreeOfTheModelThatIsAskedGrows) {
  KOBModeleTraduction model;
  KOBModeleTraduction other;
  const CellRef cell = model.Racine()->AddMessage(u"a", u"text");
  const CellRef otherCell = other.Racine()->AddMessage(u"a", u"text");
  model.setNbLangues(8);
  EXPECT_EQ(texts(cell).size(), 9U);
  EXPECT_EQ(texts(otherCell).size(), 6U);
}

TEST_F(ModelLanguageCount, AnotherModelCatchesUpAtItsNextLargerValueOnly) {
  KOBModeleTraduction model;
  KOBModeleTraduction other;
  const CellRef otherCell = other.Racine()->AddMessage(u"a", u"text");
  model.setNbLangues(8);
  other.setNbLangues(8);
  EXPECT_EQ(texts(otherCell).size(), 6U);
  other.setNbLangues(9);
  EXPECT_EQ(texts(otherCell).size(), 10U);
}

TEST_F(ModelLanguageCount, OutlivesTheModel) {
  { KOBModeleTraduction().setNbLangues(11); }
  EXPECT_EQ(Global_Util::NbLangues(), 11);
}

TEST_F(ModelLanguageCount, AModelOnAnotherThreadHasACountOfItsOwn) {
  KOBModeleTraduction model;
  model.setNbLangues(8);
  onAFreshThread([] { EXPECT_EQ(KOBModeleTraduction().NbLangues(), 6); });
  EXPECT_EQ(model.NbLangues(), 8);
}

TEST_F(ModelLanguageCount, CellsMadeAfterARaiseHaveNoItemTooMany) {
  KOBModeleTraduction model;
  model.setNbLangues(8);
  EXPECT_EQ(texts(model.Racine()->AddMessage(u"a", u"text")).size(), 8U);
}

TEST_F(ModelLanguageCount, StaysRaisedWhenTheTreeThenFails) {
  KOBModeleTraduction model;
  const CellRef before = model.Racine()->AddMessage(u"a", u"text");
  const CellRef damaged = model.Racine()->AddMessage(u"b", u"text");
  const CellRef after = model.Racine()->AddMessage(u"c", u"text");
  damaged->setTraduction(nullptr);
  EXPECT_EQ(failureOf([&] { model.setNbLangues(8); }), FailureKind::ObjectNotSet);
  EXPECT_EQ(model.NbLangues(), 8);
  EXPECT_EQ(texts(before).size(), 9U);
  EXPECT_EQ(texts(after).size(), 6U);
}

}  // namespace
}  // namespace kob::test
