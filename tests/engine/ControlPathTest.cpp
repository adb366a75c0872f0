// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EngineTest.h"

#include <tests/doubles/Utf8.h>

namespace kob::testing {
namespace {

class ControlPathTest : public EngineTest {
 protected:
  ControlPathTest() {
    given(R"(
      form FrmMain
        frame Frame1
          button cmdOk Index=1
        menu mnuFile
        toolbar tbMain
    )");
  }
};

TEST_F(ControlPathTest, AControlOnTheFormIsFormAndName) {
  EXPECT_EQ(pathOf("tbMain"), "\\FrmMain\\tbMain");
}

TEST_F(ControlPathTest, ContainersStandOutermostFirst) {
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1\\cmdOk(1)");
}

TEST_F(ControlPathTest, AModuleStartsThePath) {
  EXPECT_EQ(pathOf("cmdOk(1)", u"Achats"), "Achats\\FrmMain\\Frame1\\cmdOk(1)");
}

TEST_F(ControlPathTest, AContextEndsThePathWithoutItsMarker) {
  at("cmdOk(1)").answers(Property::Tag, u"Vente[C]");
  EXPECT_EQ(pathOf("cmdOk(1)", u"Achats"), "Achats\\FrmMain\\Frame1\\cmdOk(1)\\Vente");
}

TEST_F(ControlPathTest, AMenuFollowsItsParent) {
  EXPECT_EQ(pathOf("mnuFile"), "\\FrmMain\\mnuFile");
}

TEST_F(ControlPathTest, AFormIsItsOwnName) {
  EXPECT_EQ(pathOf("FrmMain"), "\\FrmMain");
}

TEST_F(ControlPathTest, AFormInAModuleIsModuleAndName) {
  EXPECT_EQ(pathOf("FrmMain", u"Achats"), "Achats\\FrmMain");
}

TEST_F(ControlPathTest, AButtonsRecordStandsBelowItsToolBar) {
  const HostRef button = record(u"Open", ref("tbMain"));
  EXPECT_EQ(model.GetPath(button), u"\\FrmMain\\tbMain\\Open");
  EXPECT_EQ(model.GetPath(record(u"Recent", button)), u"\\FrmMain\\tbMain\\Open\\Recent");
}

TEST_F(ControlPathTest, IndexZeroCounts) {
  at("cmdOk(1)").answers(Property::Index, 0);
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1\\cmdOk(0)");
}

TEST_F(ControlPathTest, WithoutIndexThereAreNoParentheses) {
  at("cmdOk(1)").lacks(Property::Index);
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1\\cmdOk");
}

TEST_F(ControlPathTest, ANegativeIndexIsNone) {
  at("cmdOk(1)").answers(Property::Index, -2);
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1\\cmdOk");
}

TEST_F(ControlPathTest, AContainersIndexIsPartOfItsName) {
  at("Frame1").answers(Property::Index, 2);
  at("FrmMain").answers(Property::Index, 0);
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain(0)\\Frame1(2)\\cmdOk(1)");
}

TEST_F(ControlPathTest, AnIndexThatIsATextConverts) {
  at("cmdOk(1)").answers(Property::Index, u" 007 ");
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1\\cmdOk(7)");
}

TEST_F(ControlPathTest, AFractionalIndexIsRoundedHalfToEven) {
  at("cmdOk(1)").answers(Property::Index, 2.5);
  at("Frame1").answers(Property::Index, 3.5);
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1(4)\\cmdOk(2)");
}

TEST_F(ControlPathTest, AnIndexJustBelowZeroRoundsToZero) {
  at("cmdOk(1)").answers(Property::Index, -0.5);
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1\\cmdOk(0)");
}

TEST_F(ControlPathTest, AnIndexThatDoesNotConvertIsNone) {
  for (const Value& value : {Value(u"deux"), Value(u""), Value(), Value(4e9), Value(ref("Frame1"))}) {
    at("cmdOk(1)").answers(Property::Index, value);
    EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1\\cmdOk");
  }
}

TEST_F(ControlPathTest, TrueAsAnIndexIsMinusOneAndFalseIsZero) {
  at("cmdOk(1)").answers(Property::Index, true);
  at("Frame1").answers(Property::Index, false);
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1(0)\\cmdOk");
}

TEST_F(ControlPathTest, ABareMarkerGivesNoContext) {
  at("cmdOk(1)").answers(Property::Tag, u"[T]");
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1\\cmdOk(1)");
  at("cmdOk(1)").answers(Property::Tag, u"[C]");
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1\\cmdOk(1)");
}

TEST_F(ControlPathTest, OnlyOneMarkerIsRemovedTBeforeC) {
  at("cmdOk(1)").answers(Property::Tag, u"x[C][T]");
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1\\cmdOk(1)\\x[C]");
  at("cmdOk(1)").answers(Property::Tag, u"x[T][C]");
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1\\cmdOk(1)\\x[T]");
}

TEST_F(ControlPathTest, MarkersAreComparedExactlyAndOnlyAtTheEnd) {
  for (const char16_t* const tag : {u"x[c]", u"x[t]", u"[T]x", u"x[T] "}) {
    at("cmdOk(1)").answers(Property::Tag, tag);
    EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1\\cmdOk(1)\\" + toUtf8(tag));
  }
}

TEST_F(ControlPathTest, TheTagOfAnExcludedControlIsAContextLikeAny) {
  at("cmdOk(1)").answers(Property::Tag, u"PAS TRADUIT");
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1\\cmdOk(1)\\PAS TRADUIT");
}

TEST_F(ControlPathTest, ATagThatIsANumberIsAContext) {
  at("cmdOk(1)").answers(Property::Tag, 12);
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1\\cmdOk(1)\\12");
}

TEST_F(ControlPathTest, TheTagsOfContainersDoNotCount) {
  at("Frame1").answers(Property::Tag, u"Vente");
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1\\cmdOk(1)");
}

TEST_F(ControlPathTest, WithoutContainerAndParentOnlyTheOwnNameIsLeft) {
  at("mnuFile").lacks(Property::Parent);
  EXPECT_EQ(pathOf("mnuFile", u"Achats"), "Achats\\mnuFile");
}

TEST_F(ControlPathTest, AContainerThatIsNothingSwitchesToParent) {
  at("Frame1").answers(Property::Container, Value());
  at("Frame1").answers(Property::Parent, ref("mnuFile"));
  EXPECT_EQ(pathOf("Frame1"), "\\FrmMain\\mnuFile\\Frame1");
}

TEST_F(ControlPathTest, AContainerThatIsNoObjectSwitchesToParent) {
  at("Frame1").answers(Property::Container, u"FrmMain");
  at("Frame1").answers(Property::Parent, ref("mnuFile"));
  EXPECT_EQ(pathOf("Frame1"), "\\FrmMain\\mnuFile\\Frame1");
}

TEST_F(ControlPathTest, TheLinkIsChosenOnceForTheWholeWalk) {
  // Frame1 has a Parent too, and mnuFile a Container: neither is followed once the other link was chosen.
  at("Frame1").lacks(Property::Container);
  at("Frame1").answers(Property::Parent, ref("FrmMain"));
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\Frame1\\cmdOk(1)");
  at("cmdOk(1)").lacks(Property::Container);
  at("cmdOk(1)").answers(Property::Parent, ref("mnuFile"));
  at("mnuFile").answers(Property::Container, ref("Frame1"));
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\mnuFile\\cmdOk(1)");
}

TEST_F(ControlPathTest, AMissingNameIsAnEmptyElement) {
  at("cmdOk(1)").lacks(Property::Name);
  at("cmdOk(1)").lacks(Property::Index);
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1\\");
}

TEST_F(ControlPathTest, AMissingNameOfAContainerIsAnEmptyElementAndNotThePreviousName) {
  at("FrmMain").lacks(Property::Name);
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\\\Frame1\\cmdOk(1)");
}

TEST_F(ControlPathTest, AMissingTagIsNoContext) {
  at("cmdOk(1)").lacks(Property::Tag);
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1\\cmdOk(1)");
}

TEST_F(ControlPathTest, ANameThatIsANumberReadsAsText) {
  at("Frame1").answers(Property::Name, 12);
  at("cmdOk(1)").answers(Property::Name, 1.5);
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\12\\1.5(1)");
}

TEST_F(ControlPathTest, ACycleOfContainersEndsAtAnObjectAlreadyMet) {
  at("FrmMain").answers(Property::Container, ref("Frame1"));
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\FrmMain\\Frame1\\cmdOk(1)");
}

TEST_F(ControlPathTest, ACycleOfParentsEndsToo) {
  at("FrmMain").answers(Property::Parent, ref("mnuFile"));
  EXPECT_EQ(pathOf("mnuFile").substr(0, 9), "\\mnuFile\\");
}

TEST_F(ControlPathTest, AControlThatContainsItselfEndsToo) {
  at("Frame1").answers(Property::Container, ref("Frame1"));
  EXPECT_EQ(pathOf("Frame1"), "\\Frame1\\Frame1");
}

TEST_F(ControlPathTest, NothingHasThePathOfAnEmptyName) {
  EXPECT_EQ(model.GetPath(nullptr), u"\\");
  EXPECT_EQ(model.GetPath(nullptr, u"Achats"), u"Achats\\");
}

TEST_F(ControlPathTest, AContainerThatVanishesDuringTheWalkEndsIt) {
  at("Frame1").before([this](const HostCall& call) {
    if (call.property == Property::Index) {
      at("Frame1").vanish();
    }
  });
  EXPECT_EQ(pathOf("cmdOk(1)"), "\\Frame1\\cmdOk(1)");
}

TEST_F(ControlPathTest, OddCharactersOfAModuleStayAsTheyAre) {
  EXPECT_EQ(pathOf("tbMain", u" A\\b.(é) "), " A\\b.(é) \\FrmMain\\tbMain");
}

TEST_F(ControlPathTest, NeitherReadsNorChangesTheModelOrTheForm) {
  pathOf("cmdOk(1)", u"Achats");
  EXPECT_TRUE(treeIs(""));
  EXPECT_EQ(form().writes(), "");
}

}  // namespace
}  // namespace kob::testing
