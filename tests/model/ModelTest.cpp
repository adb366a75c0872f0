// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

namespace kob::test {
namespace {

class Model : public ModelTest {};

TEST_F(Model, StartsWithAnEmptyRootNode) {
  const KOBModeleTraduction model;
  const CellRef& root = model.Racine();
  ASSERT_NE(root, nullptr);
  EXPECT_EQ(root->nom(), u"RACINE");
  EXPECT_EQ(root->Alias(), u"");
  EXPECT_EQ(root->TypeCell(), 1);
  EXPECT_EQ(root->TypeFeuille(), 0);
  EXPECT_EQ(root->parentcell(), nullptr);
  ASSERT_NE(root->ColCell(), nullptr);
  EXPECT_EQ(root->ColCell()->Count(), 0);
  EXPECT_EQ(root->Traduction(), nullptr);
  EXPECT_FALSE(root->Contexte());
}

TEST_F(Model, EachModelHasARootOfItsOwnThatStays) {
  const KOBModeleTraduction one;
  const KOBModeleTraduction other;
  EXPECT_NE(one.Racine(), other.Racine());
  EXPECT_EQ(one.Racine(), one.Racine());
}

TEST_F(Model, FichierIsEmptyAtFirst) {
  EXPECT_EQ(KOBModeleTraduction().Fichier(), u"");
}

TEST_F(Model, FichierIsAPlainTextThatNothingChecks) {
  KOBModeleTraduction model;
  model.setFichier(u"no such folder\\?*.xyz");
  EXPECT_EQ(model.Fichier(), u"no such folder\\?*.xyz");
  model.setFichier(u"");
  EXPECT_EQ(model.Fichier(), u"");
}

TEST_F(Model, AKeptCellOutlivesTheModelAndReadsNoParentThen) {
  CellRef child;
  {
    const KOBModeleTraduction model;
    child = model.Racine()->AddNoeuds(u"a");
    EXPECT_EQ(child->parentcell(), model.Racine());
  }
  EXPECT_EQ(child->nom(), u"a");
  EXPECT_EQ(child->parentcell(), nullptr);
  EXPECT_EQ(child->GetCellPath(), u"a");
}

TEST_F(Model, ReleasesItsTree) {
  std::weak_ptr<KOBCellTraduction> below;
  {
    const KOBModeleTraduction model;
    below = model.Racine()->AddNoeuds(u"a")->AddMessage(u"b", u"text");
    EXPECT_FALSE(below.expired());
  }
  EXPECT_TRUE(below.expired());
}

}  // namespace
}  // namespace kob::test
