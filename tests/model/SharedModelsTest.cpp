// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"
#include "tests/doubles/ScriptedService.h"

#include <algorithm>
#include <array>

namespace kob::test {
namespace {

/// Models that hold the same cells since one was grafted onto the other.
class SharedModels : public ModelTest {
 protected:
  SharedModels() {
    message(giver->Racine(), u"m", {u"text", u"", u"", u"", u"", u""});
    receiver->AddModele(*giver);
    shared = giver->GetCell(u"m");
  }

  std::unique_ptr<KOBModeleTraduction> receiver = std::make_unique<KOBModeleTraduction>();
  std::unique_ptr<KOBModeleTraduction> giver = std::make_unique<KOBModeleTraduction>();
  std::weak_ptr<KOBCellTraduction> shared;
};

enum class Act { Change, Save, Search, Extend, Release };

TEST_F(SharedModels, CanBeChangedSavedSearchedExtendedAndReleasedInAnyOrderByEither) {
  kob::testing::ScriptedService service;
  std::array<Act, 5> acts = {Act::Change, Act::Save, Act::Search, Act::Extend, Act::Release};
  do {
    // Bit i: act i is done to the model that gave its cells.
    for (unsigned which = 0; which < 1U << acts.size(); ++which) {
      Global_Util::setNbLangues(6);
      auto own = std::make_unique<KOBModeleTraduction>();
      auto added = std::make_unique<KOBModeleTraduction>();
      const std::weak_ptr<KOBCellTraduction> cell = added->Racine()->AddMessage(u"m", u"text");
      own->AddModele(*added);
      for (std::size_t i = 0; i < acts.size(); ++i) {
        auto& chosen = (which >> i) % 2 == 0 ? own : added;
        auto& model = chosen != nullptr ? chosen : (chosen == own ? added : own);
        CellResults results;
        switch (acts[i]) {
          case Act::Change:
            model->GetCell(u"m")->Traduction()->ChangeTraduction(u"texte", 2);
            break;
          case Act::Save:
            ASSERT_TRUE(model->Save(u"shared.trad"));
            break;
          case Act::Search:
            model->SearchString(u"TEXT", &results);
            ASSERT_EQ(results.Count(), 1);
            break;
          case Act::Extend:
            model->setNbLangues(7);
            break;
          case Act::Release:
            model.reset();
        }
      }
      const auto& left = own != nullptr ? own : added;
      ASSERT_EQ(texts(left->GetCell(u"m")), (Texts{u"text", u"texte", u"", u"", u"", u"", u"", u""}));
      own.reset();
      added.reset();
      ASSERT_TRUE(cell.expired());
    }
  } while (std::next_permutation(acts.begin(), acts.end()));
  EXPECT_TRUE(boxes.notices.empty());
}

TEST_F(SharedModels, WhatOneChangesTheOtherShows) {
  giver->GetCell(u"m")->Traduction()->ChangeTraduction(u"texte", 2);
  EXPECT_EQ(receiver->GetTraduction(u"m", 2), u"texte");
  receiver->GetCell(u"m")->setnom(u"n");
  EXPECT_EQ(giver->GetTraduction(u"n", 2), u"texte");
}

TEST_F(SharedModels, ACellAddedToOneStaysInThatOne) {
  receiver->Racine()->AddMessage(u"own", u"x");
  EXPECT_EQ(giver->GetCell(u"own"), nullptr);
}

TEST_F(SharedModels, ACellAddedBelowASharedOneIsInBoth) {
  receiver->GetCell(u"m")->AddMessage(u"below", u"x");
  EXPECT_EQ(giver->GetTraduction(u"m\\below", 1), u"x");
}

TEST_F(SharedModels, ACellRemovedFromOneStaysInTheOther) {
  giver->Racine()->ColCell()->Remove(1);
  EXPECT_EQ(receiver->GetTraduction(u"m", 1), u"text");
}

TEST_F(SharedModels, WithoutTheReceiverTheCellsHaveNoParent) {
  receiver.reset();
  EXPECT_EQ(shared.lock()->parentcell(), nullptr);
  EXPECT_EQ(giver->GetTraduction(u"m", 1), u"text");
}

TEST_F(SharedModels, WithoutTheGiverTheCellsKeepTheirParent) {
  giver.reset();
  EXPECT_EQ(shared.lock()->parentcell(), receiver->Racine());
}

TEST_F(SharedModels, WithoutTheReceiverTheGiverIsFilledByPathAllTheSame) {
  receiver.reset();
  KOBModeleTraduction other;
  other.Racine()->AddMessage(u"m", u"x")->Traduction()->ChangeTraduction(u"texte", 2);
  giver->UpdateWithTraductionModele(other);
  EXPECT_EQ(giver->GetTraduction(u"m", 2), u"texte");
}

TEST_F(SharedModels, OneFilledFromTheOtherStays) {
  shared.lock()->Traduction()->ChangeTraduction(u"texte", 3);
  receiver->UpdateWithTraductionModele(*giver);
  EXPECT_EQ(texts(shared.lock()), (Texts{u"text", u"", u"texte", u"", u"", u""}));
}

/// How many texts the shared entry, one of the receiver alone and one of the giver alone have.
class SharedCounts : public SharedModels {
 protected:
  SharedCounts() {
    receiver->Racine()->AddMessage(u"own", u"x");
    giver->Racine()->AddMessage(u"given", u"x");
  }

  std::array<std::size_t, 3> counts() const {
    return {texts(shared.lock()).size(), texts(receiver->GetCell(u"own")).size(),
            texts(giver->GetCell(u"given")).size()};
  }
  using Counts = std::array<std::size_t, 3>;
};

TEST_F(SharedCounts, ReceiverToEight) {
  receiver->setNbLangues(8);
  EXPECT_EQ(counts(), (Counts{9, 9, 6}));
}

TEST_F(SharedCounts, GiverToEight) {
  giver->setNbLangues(8);
  EXPECT_EQ(counts(), (Counts{9, 6, 9}));
}

TEST_F(SharedCounts, ReceiverToEightThenGiverToEight) {
  receiver->setNbLangues(8);
  giver->setNbLangues(8);
  EXPECT_EQ(counts(), (Counts{9, 9, 6}));
}

TEST_F(SharedCounts, GiverToEightThenReceiverToEight) {
  giver->setNbLangues(8);
  receiver->setNbLangues(8);
  EXPECT_EQ(counts(), (Counts{9, 6, 9}));
}

TEST_F(SharedCounts, ReceiverToEightThenGiverToNine) {
  receiver->setNbLangues(8);
  giver->setNbLangues(9);
  EXPECT_EQ(counts(), (Counts{10, 9, 10}));
}

TEST_F(SharedCounts, GiverToEightThenReceiverToNine) {
  giver->setNbLangues(8);
  receiver->setNbLangues(9);
  EXPECT_EQ(counts(), (Counts{10, 10, 9}));
}

TEST_F(SharedCounts, InTurnEachStepOvershootsByOneForTheSharedEntry) {
  receiver->setNbLangues(7);
  giver->setNbLangues(8);
  receiver->setNbLangues(9);
  giver->setNbLangues(10);
  EXPECT_EQ(counts(), (Counts{11, 10, 11}));
}

TEST_F(SharedCounts, ReceiverToNineThenGiverToEight) {
  receiver->setNbLangues(9);
  giver->setNbLangues(8);
  EXPECT_EQ(counts(), (Counts{10, 10, 6}));
}

TEST_F(SharedCounts, AReleasedReceiverNoLongerExtendsTheSharedEntry) {
  receiver->setNbLangues(8);
  receiver.reset();
  giver->setNbLangues(9);
  EXPECT_EQ(texts(giver->GetCell(u"m")).size(), 10U);
}

TEST_F(SharedCounts, TheFactorsOfASharedControlGrowLikeItsTexts) {
  const CellRef cell = control(shared.lock(), u"c", {});
  receiver->setNbLangues(8);
  giver->setNbLangues(9);
  EXPECT_EQ(cell->ColLeft()->Count(), 10);
  EXPECT_EQ(cell->ColWidth()->Count(), 10);
}

}  // namespace
}  // namespace kob::test
