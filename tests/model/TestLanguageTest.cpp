// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

#include <limits>

namespace kob::test {
namespace {

/// A model with a message, a control of two entries below a node, and a message below the same node.
class WholeTreeLanguages : public ModelTest {
 protected:
  WholeTreeLanguages() {
    first = message(model.Racine(), u"first", {u"Un", u"One", u"Een", u"Eins", u"", u""});
    const CellRef node = model.Racine()->AddNoeuds(u"node");
    caption = entry(u"Caption", {u"Fichier", u"File", u"", u"", u"", u""});
    toolTip = entry(u"ToolTip", {u"", u"Tip", u"", u"", u"", u""});
    ctl = control(node, u"ctl", {caption, toolTip});
    last = message(node, u"last", {u"Deux", u"Two", u"", u"", u"", u""});
  }

  Texts all() const {
    Texts found;
    for (const auto& list :
         {texts(first), texts(*caption->ColTraduction()), texts(*toolTip->ColTraduction()), texts(last)}) {
      found.insert(found.end(), list.begin(), list.end());
    }
    return found;
  }

  Texts inLanguage(std::int32_t langue) const {
    return {Text(first->Traduction()->ColTraduction()->Item(langue)),
            Text(caption->ColTraduction()->Item(langue)), Text(toolTip->ColTraduction()->Item(langue)),
            Text(last->Traduction()->ColTraduction()->Item(langue))};
  }

  KOBModeleTraduction model;
  CellRef first;
  CellRef ctl;
  EntryRef caption;
  EntryRef toolTip;
  CellRef last;
};

TEST_F(WholeTreeLanguages, ATestLanguageShowsEveryReferenceTextBetweenMarkers) {
  model.UpdateTestLangue(3);
  EXPECT_EQ(inLanguage(3), (Texts{u"** Un **", u"** Fichier **", u"**  **", u"** Deux **"}));
}

TEST_F(WholeTreeLanguages, ATestLanguageTouchesNoOtherLanguage) {
  model.UpdateTestLangue(3);
  EXPECT_EQ(inLanguage(1), (Texts{u"Un", u"Fichier", u"", u"Deux"}));
  EXPECT_EQ(inLanguage(2), (Texts{u"One", u"File", u"Tip", u"Two"}));
  EXPECT_EQ(inLanguage(4), (Texts{u"Eins", u"", u"", u""}));
}

TEST_F(WholeTreeLanguages, TheLastLanguageCanBeATestLanguage) {
  model.UpdateTestLangue(6);
  EXPECT_EQ(inLanguage(6)[0], u"** Un **");
}

TEST_F(WholeTreeLanguages, TheReferenceLanguageIsNeverATestLanguage) {
  const Texts before = all();
  model.UpdateTestLangue(1);
  EXPECT_EQ(all(), before);
}

TEST_F(WholeTreeLanguages, ALanguageOutsideTheCountIsNeverATestLanguage) {
  const Texts before = all();
  for (const std::int32_t langue :
       {0, -1, 7, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
    model.UpdateTestLangue(langue);
  }
  EXPECT_EQ(all(), before);
}

TEST_F(WholeTreeLanguages, ClearingEmptiesTheLanguageInEveryEntry) {
  model.ClearLangue(2);
  EXPECT_EQ(inLanguage(2), (Texts{u"", u"", u"", u""}));
}

TEST_F(WholeTreeLanguages, ClearingTouchesNoOtherLanguage) {
  model.ClearLangue(2);
  EXPECT_EQ(inLanguage(1), (Texts{u"Un", u"Fichier", u"", u"Deux"}));
  EXPECT_EQ(inLanguage(3), (Texts{u"Een", u"", u"", u""}));
  EXPECT_EQ(texts(first).size(), 6U);
}

TEST_F(WholeTreeLanguages, ClearingNeverEmptiesTheReferenceLanguage) {
  const Texts before = all();
  model.ClearLangue(1);
  EXPECT_EQ(all(), before);
}

TEST_F(WholeTreeLanguages, ClearingOnePastTheCountChangesNothing) {
  const Texts before = all();
  model.ClearLangue(model.NbLangues() + 1);
  EXPECT_EQ(all(), before);
}

TEST_F(WholeTreeLanguages, ClearingAnyOtherLanguageOutsideTheCountChangesNothing) {
  const Texts before = all();
  for (const std::int32_t langue :
       {0, -1, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
    model.ClearLangue(langue);
  }
  EXPECT_EQ(all(), before);
}

TEST_F(WholeTreeLanguages, AFailureReachesTheCallerAndWhatWasDoneBeforeStays) {
  caption->setColTraduction(nullptr);
  EXPECT_EQ(failureOf([&] { model.UpdateTestLangue(3); }), FailureKind::ObjectNotSet);
  EXPECT_EQ(texts(first)[2], u"** Un **");
  EXPECT_EQ(toolTip->ColTraduction()->Item(3), u"");
  EXPECT_EQ(texts(last)[2], u"");
}

TEST_F(WholeTreeLanguages, ALanguageThatCannotBeChosenDoesNotEvenWalkADamagedTree) {
  first->setTraduction(nullptr);
  for (const std::int32_t langue : {0, 1, 7}) {
    EXPECT_EQ(failureOf([&] { model.UpdateTestLangue(langue); }), std::nullopt);
    EXPECT_EQ(failureOf([&] { model.ClearLangue(langue); }), std::nullopt);
  }
}

TEST_F(WholeTreeLanguages, AListShorterThanTheLanguageStopsTheClearing) {
  toolTip->setColTraduction(textList({u"a", u"b"}));
  EXPECT_EQ(failureOf([&] { model.ClearLangue(4); }), FailureKind::InvalidIndex);
  EXPECT_EQ(texts(first)[3], u"");
  EXPECT_EQ(texts(*toolTip->ColTraduction()), (Texts{u"a", u"b"}));
}

TEST_F(WholeTreeLanguages, AnEmptyListStopsTheTestLanguage) {
  toolTip->setColTraduction(textList({}));
  EXPECT_EQ(failureOf([&] { model.UpdateTestLangue(2); }), FailureKind::InvalidIndex);
  EXPECT_EQ(texts(*caption->ColTraduction())[1], u"** Fichier **");
  EXPECT_EQ(texts(last)[1], u"Two");
}

TEST_F(WholeTreeLanguages, AWalkThatFailedCanBeRepeatedAfterTheRepair) {
  caption->setColTraduction(nullptr);
  EXPECT_EQ(failureOf([&] { model.UpdateTestLangue(3); }), FailureKind::ObjectNotSet);
  caption->setColTraduction(textList({u"Fichier", u"", u""}));
  model.UpdateTestLangue(3);
  EXPECT_EQ(inLanguage(3), (Texts{u"** Un **", u"** Fichier **", u"**  **", u"** Deux **"}));
}

}  // namespace
}  // namespace kob::test
