// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"
#include "SmallStack.h"

namespace kob::test {
namespace {

constexpr int levels = 100000;

/// A model whose tree is one chain of nodes "n" with a message "m" at its end.
struct DeepModel {
  DeepModel() {
    CellRef cell = model.Racine();
    for (int i = 0; i < levels; ++i) {
      cell = cell->AddNoeuds(u"n");
      if (i == levels / 2) {
        middle = cell;
      }
    }
    last = cell->AddMessage(u"m", u"text");
  }

  static Text path() {
    Text path;
    for (int i = 0; i < levels; ++i) {
      path += u"n\\";
    }
    return path + u"m";
  }

  KOBModeleTraduction model;
  CellRef middle;
  CellRef last;
};

TEST(DeepTree, IsMadeAndReleasedOnASmallStack) {
  onSmallStack([] {
    std::weak_ptr<KOBCellTraduction> below;
    {
      DeepModel deep;
      below = deep.last;
      deep.middle.reset();
      deep.last.reset();
      EXPECT_FALSE(below.expired());
    }
    EXPECT_TRUE(below.expired());
  });
}

TEST(DeepTree, GrowsWithTheLanguageCount) {
  onSmallStack([] {
    DeepModel deep;
    deep.model.setNbLangues(8);
    EXPECT_EQ(texts(deep.last).size(), 9U);
  });
}

TEST(DeepTree, TakesATestLanguageAndLosesItAgain) {
  onSmallStack([] {
    DeepModel deep;
    deep.model.UpdateTestLangue(3);
    EXPECT_EQ(texts(deep.last)[2], u"** text **");
    deep.model.ClearLangue(3);
    EXPECT_EQ(texts(deep.last)[2], u"");
  });
}

TEST(DeepTree, ResolvesAndWritesItsLongestPath) {
  onSmallStack([] {
    const DeepModel deep;
    const Text path = DeepModel::path();
    EXPECT_EQ(deep.model.GetCell(path), deep.last);
    EXPECT_EQ(deep.model.GetTraduction(path, 1), u"text");
    EXPECT_TRUE(deep.last->GetCellPath() == path);
  });
}

TEST(DeepTree, IsFilledFromAnotherOne) {
  onSmallStack([] {
    DeepModel deep;
    const DeepModel other;
    other.last->Traduction()->ChangeTraduction(u"texte", 2);
    deep.model.UpdateWithTraductionModele(other.model);
    EXPECT_EQ(texts(deep.last)[1], u"texte");
  });
}

TEST(DeepTree, WithAMessageAtEveryLevelIsFilledFromAnotherOne) {
  onSmallStack([] {
    DeepModel deep;
    const DeepModel other;
    for (const DeepModel* const one : {static_cast<const DeepModel*>(&deep), &other}) {
      for (CellRef cell = one->last->parentcell(); cell != one->model.Racine(); cell = cell->parentcell()) {
        cell->setTypeFeuille(1);
      }
    }
    other.middle->Traduction()->ChangeTraduction(u"texte", 2);
    deep.model.Racine()->UpdateCellWithModele(other.model, -1);
    EXPECT_EQ(texts(deep.middle)[1], u"texte");
  });
}

TEST(DeepTree, IsSearched) {
  onSmallStack([] {
    const DeepModel deep;
    CellResults results;
    deep.model.SearchString(u"EX", &results);
    deep.model.SearchNonTraduit(2, &results);
    EXPECT_EQ(results.Count(), 2);
    EXPECT_EQ(results.Item(1), deep.last);
  });
}

TEST(DeepTree, TellsWhatIsKnownOfAText) {
  onSmallStack([] {
    const DeepModel deep;
    deep.last->Traduction()->ChangeTraduction(u"texte", 2);
    EXPECT_EQ(texts(*deep.model.GetTraductionsConnues(u"TEXT"))[1], u"texte");
  });
}

TEST(DeepTree, IsNotGraftedBelowItsOwnEnd) {
  onSmallStack([] {
    DeepModel deep;
    EXPECT_EQ(failureOf([&] { deep.last->AddModele(deep.model); }), FailureKind::InvalidCall);
  });
}

TEST(DeepTree, AWalkThatFailsAtTheBottomComesBack) {
  onSmallStack([] {
    DeepModel deep;
    deep.last->setTraduction(nullptr);
    EXPECT_EQ(failureOf([&] { deep.model.UpdateTestLangue(2); }), FailureKind::ObjectNotSet);
    EXPECT_EQ(failureOf([&] { deep.model.setNbLangues(7); }), FailureKind::ObjectNotSet);
  });
}

TEST(DeepTree, APartThatAHostKeepsIsReleasedLater) {
  onSmallStack([] {
    CellRef middle;
    std::weak_ptr<KOBCellTraduction> last;
    {
      DeepModel deep;
      middle = deep.middle;
      last = deep.last;
    }
    EXPECT_FALSE(last.expired());
    EXPECT_EQ(middle->parentcell(), nullptr);
    middle.reset();
    EXPECT_TRUE(last.expired());
  });
}

TEST(DeepTree, AListThatOutlivesItsCellReleasesWhatIsBelow) {
  onSmallStack([] {
    std::shared_ptr<CellList> list;
    std::weak_ptr<KOBCellTraduction> last;
    {
      DeepModel deep;
      list = deep.model.Racine()->ColCell();
      last = deep.last;
    }
    EXPECT_FALSE(last.expired());
    list.reset();
    EXPECT_TRUE(last.expired());
  });
}

TEST(DeepTree, RemovingItsTopFromAListReleasesWhatIsBelow) {
  onSmallStack([] {
    DeepModel deep;
    const std::weak_ptr<KOBCellTraduction> last = deep.last;
    deep.middle.reset();
    deep.last.reset();
    deep.model.Racine()->ColCell()->Remove(1);
    EXPECT_TRUE(last.expired());
  });
}

TEST(DeepTree, MakingItsTopALeafReleasesWhatIsBelow) {
  onSmallStack([] {
    DeepModel deep;
    const std::weak_ptr<KOBCellTraduction> last = deep.last;
    deep.last.reset();
    deep.middle->setTypeCell(2);
    EXPECT_TRUE(last.expired());
  });
}

TEST(DeepTree, AssigningAnotherListReleasesWhatIsBelow) {
  onSmallStack([] {
    DeepModel deep;
    const std::weak_ptr<KOBCellTraduction> last = deep.last;
    deep.last.reset();
    deep.middle->setColCell(std::make_shared<CellList>());
    EXPECT_TRUE(last.expired());
    deep.middle.reset();
    deep.model.Racine()->setColCell(nullptr);
  });
}

TEST(DeepTree, OfListsThatTheirCellsShareIsReleasedToo) {
  onSmallStack([] {
    std::shared_ptr<CellList> list = std::make_shared<CellList>();
    std::weak_ptr<KOBCellTraduction> first;
    for (int i = 0; i < levels; ++i) {
      const CellRef one = KOBCellTraduction::createNode();
      const CellRef other = KOBCellTraduction::createNode();
      one->setColCell(list);
      other->setColCell(list);
      list = std::make_shared<CellList>();
      list->Add(one);
      list->Add(other);
      if (i == 0) {
        first = one;
      }
    }
    list.reset();
    EXPECT_TRUE(first.expired());
  });
}

}  // namespace
}  // namespace kob::test
