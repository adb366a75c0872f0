// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EngineTest.h"

namespace kob::testing {
namespace {

/// A failure that is not forgiven ends the harvest with "ERREUR " and the step; what was recorded stays.
class HarvestingErrorsTest : public EngineTest {
 protected:
  HarvestingErrorsTest() {
    given(R"(
      form FrmMain Caption="Accueil"
        label First Caption="premier"
        frame Frame1
          frame Frame2
            label A Caption="a"
        tabs ssTab
          page P0 title="Un"
          page P1 title="Deux"
        toolbar tbMain
          button Open Caption="Ouvrir"
            entry Recent Caption="Récents"
        label Late Caption="dernier"
    )");
  }

  /// Harvests, and tells the step of the one error; -1 when the messages are anything else.
  int errorOfHarvest() {
    return errorOf([this] { harvest(); });
  }
  template <class Action>
  int errorOf(Action action) {
    action();
    const std::string shown = messages.take();
    const std::string start = "notice \"ERREUR ";
    const std::size_t at = shown.rfind(start);
    const bool isLast = at != std::string::npos && shown.find('\n', at) == shown.size() - 1;
    others_ = isLast ? shown.substr(0, at) : shown;
    return isLast ? std::stoi(shown.substr(at + start.size())) : -1;
  }
  /// The messages of a damaged list that its look-ups showed before.
  static std::string lookups(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
      text += "notice \"GetCell - KOBCellTraduction\"\n";
    }
    return text;
  }
  /// Puts a nothing in front of a cell's children.
  void damage(TextView path) {
    CellList& children = *cell(path)->ColCell();
    children.Count() == 0 ? children.Add(nullptr) : children.Add(nullptr, 1);
  }
  bool firstIsThere() const { return cell(u"FrmMain\\First") != nullptr; }
  bool lateIsThere() const { return cell(u"FrmMain\\Late") != nullptr; }

  std::string others_;
};

TEST_F(HarvestingErrorsTest, Step1TheFormHasNoName) {
  at("FrmMain").lacks(Property::Name);
  EXPECT_EQ(errorOfHarvest(), 1);
  EXPECT_TRUE(treeIs(""));
}

TEST_F(HarvestingErrorsTest, Step1TheFormsNameDoesNotConvert) {
  at("FrmMain").answers(Property::Name, Value());
  EXPECT_EQ(errorOfHarvest(), 1);
}

TEST_F(HarvestingErrorsTest, Step1ThereIsNoForm) {
  EXPECT_EQ(errorOf([this] { model.UpdateWithForm(nullptr, u"Achats"); }), 1);
  EXPECT_TRUE(treeIs(""));
}

TEST_F(HarvestingErrorsTest, Step2TheModulesListIsDamaged) {
  model.Racine()->ColCell()->Add(nullptr);
  EXPECT_EQ(errorOf([this] { model.UpdateWithForm(form().form(), u"Achats"); }), 2);
  EXPECT_EQ(others_, lookups(2));
}

TEST_F(HarvestingErrorsTest, Step3TheFormHasNoCaption) {
  at("FrmMain").lacks(Property::Caption);
  EXPECT_EQ(errorOfHarvest(), 3);
  EXPECT_TRUE(treeIs(""));
}

TEST_F(HarvestingErrorsTest, Step3TheFormHasNoTag) {
  at("FrmMain").lacks(Property::Tag);
  EXPECT_EQ(errorOfHarvest(), 3);
}

TEST_F(HarvestingErrorsTest, Step3TheFormHasNoWidth) {
  at("FrmMain").lacks(Property::Width);
  EXPECT_EQ(errorOfHarvest(), 3);
}

TEST_F(HarvestingErrorsTest, Step3TheFormsWidthDoesNotConvert) {
  at("FrmMain").answers(Property::Width, u"large");
  EXPECT_EQ(errorOfHarvest(), 3);
}

TEST_F(HarvestingErrorsTest, Step3TheFormsCellCannotBeInserted) {
  model.Racine()->ColCell()->Add(nullptr);
  EXPECT_EQ(errorOfHarvest(), 3);
  EXPECT_EQ(others_, lookups(2));
}

TEST_F(HarvestingErrorsTest, Step3TheFormsEntriesAreDamaged) {
  givenModel("FrmMain control left=0 width=1");
  cell(u"FrmMain")->ColTraduction()->Add(nullptr);
  EXPECT_EQ(errorOfHarvest(), 3);
}

TEST_F(HarvestingErrorsTest, Step3AButtonLacksWhatItsRecordNeeds) {
  for (const Property property :
       {Property::Caption, Property::ToolTipText, Property::Key, Property::ButtonMenus}) {
    const Value before = *at("Open").held(property);
    at("Open").lacks(property);
    EXPECT_EQ(errorOfHarvest(), 3);
    EXPECT_TRUE(treeIs("FrmMain control left=0 width=1\n  .Caption \"Accueil\""));
    at("Open").answers(property, before);
  }
}

TEST_F(HarvestingErrorsTest, Step3AnEntryLacksWhatItsRecordNeeds) {
  for (const Property property : {Property::Caption, Property::ToolTipText, Property::Key}) {
    const Value before = *at("Recent").held(property);
    at("Recent").lacks(property);
    EXPECT_EQ(errorOfHarvest(), 3);
    at("Recent").answers(property, before);
  }
}

TEST_F(HarvestingErrorsTest, Step3ButtonsOrMenusHaveNoCount) {
  form().collection("Open", Property::ButtonMenus).lacks(Property::Count);
  EXPECT_EQ(errorOfHarvest(), 3);
  form().collection("tbMain", Property::Buttons).lacks(Property::Count);
  EXPECT_EQ(errorOfHarvest(), 3);
}

TEST_F(HarvestingErrorsTest, Step3SubControlsCannotBeEnumerated) {
  at("First").answers(Property::Controls, ref("Late"));
  EXPECT_EQ(errorOfHarvest(), 3);
}

TEST_F(HarvestingErrorsTest, Step422AContainerChainEndsInNothing) {
  at("Frame1").answers(Property::Container, Value());
  EXPECT_EQ(errorOfHarvest(), 422);
  EXPECT_TRUE(firstIsThere());
  EXPECT_FALSE(lateIsThere());
}

TEST_F(HarvestingErrorsTest, Step422ALaterContainerHasNoName) {
  at("Frame1").lacks(Property::Name);
  EXPECT_EQ(errorOfHarvest(), 422);
}

TEST_F(HarvestingErrorsTest, Step425AContainerCannotBeRead) {
  at("Frame1").lacks(Property::Container);
  EXPECT_EQ(errorOfHarvest(), 425);
  EXPECT_TRUE(firstIsThere());
  EXPECT_FALSE(lateIsThere());
}

TEST_F(HarvestingErrorsTest, Step425AContainerIsNoObject) {
  at("Frame1").answers(Property::Container, u"FrmMain");
  EXPECT_EQ(errorOfHarvest(), 425);
}

TEST_F(HarvestingErrorsTest, Step425AContainerVanishesDuringTheWalk) {
  at("Frame2").before([this](const HostCall& call) {
    if (call.property == Property::Container) {
      at("Frame2").vanish();
    }
  });
  EXPECT_EQ(errorOfHarvest(), 425);
}

TEST_F(HarvestingErrorsTest, Step431AContainersCellCannotBeInserted) {
  givenModel("FrmMain node");
  damage(u"FrmMain");
  at("First").vanish();
  EXPECT_EQ(errorOfHarvest(), 431);
  EXPECT_EQ(others_, lookups(2));
}

TEST_F(HarvestingErrorsTest, Step451TheNumberOfTabsCannotBeReadAgain) {
  at("ssTab").failsFromRead(Property::Tabs, 2);
  EXPECT_EQ(errorOfHarvest(), 451);
}

TEST_F(HarvestingErrorsTest, Step451TheCurrentTabCannotBeRead) {
  at("ssTab").lacks(Property::Tab);
  EXPECT_EQ(errorOfHarvest(), 451);
}

TEST_F(HarvestingErrorsTest, Step451TheCurrentTabIsBeyond16Bits) {
  at("ssTab").answers(Property::Tab, 40000);
  EXPECT_EQ(errorOfHarvest(), 451);
}

/// What fails inside the loop over the tabs.
enum class TabFailure { Tab, Caption, ToolTipText };

class HarvestingTabErrorsTest : public HarvestingErrorsTest,
                                public ::testing::WithParamInterface<TabFailure> {
 protected:
  /// The ordinary reading before the loop succeeds, the first one inside it fails.
  void breakTab() {
    switch (GetParam()) {
      case TabFailure::Tab:
        at("ssTab").refuses(Property::Tab);
        break;
      case TabFailure::Caption:
        at("ssTab").failsFromRead(Property::Caption, 2);
        break;
      case TabFailure::ToolTipText:
        at("ssTab").failsFromRead(Property::ToolTipText, 2);
        break;
    }
  }
};

INSTANTIATE_TEST_SUITE_P(Each, HarvestingTabErrorsTest,
                         ::testing::Values(TabFailure::Tab, TabFailure::Caption, TabFailure::ToolTipText));

TEST_P(HarvestingTabErrorsTest, Step451111NoCellNoContext) {
  breakTab();
  EXPECT_EQ(errorOfHarvest(), 451111);
  EXPECT_TRUE(firstIsThere());
  EXPECT_FALSE(lateIsThere());
}

TEST_P(HarvestingTabErrorsTest, Step451121NoCellWithContext) {
  at("ssTab").answers(Property::Tag, u"Vente");
  breakTab();
  EXPECT_EQ(errorOfHarvest(), 451121);
  EXPECT_NE(cell(u"FrmMain\\ssTab"), nullptr) << "the control's node is made before the first tab";
}

TEST_P(HarvestingTabErrorsTest, Step451211AKnownCellNoContext) {
  givenModel("FrmMain node\n  ssTab node");
  breakTab();
  EXPECT_EQ(errorOfHarvest(), 451211);
}

TEST_P(HarvestingTabErrorsTest, Step4512211AKnownCellWithoutTheContext) {
  givenModel("FrmMain node\n  ssTab node");
  at("ssTab").answers(Property::Tag, u"Vente");
  breakTab();
  EXPECT_EQ(errorOfHarvest(), 4512211);
}

TEST_P(HarvestingTabErrorsTest, Step4512221AKnownContext) {
  givenModel("FrmMain node\n  ssTab node\n    Vente node");
  at("ssTab").answers(Property::Tag, u"Vente");
  breakTab();
  EXPECT_EQ(errorOfHarvest(), 4512221);
}

TEST_F(HarvestingErrorsTest, Step451111ATabbedControlHasNoToolTips) {
  at("ssTab").lacks(Property::ToolTipText);
  EXPECT_EQ(errorOfHarvest(), 451111);
}

TEST_F(HarvestingErrorsTest, Step451111TheTabsBeforeTheFailureStay) {
  at("ssTab").failsFromRead(Property::Caption, 3);
  EXPECT_EQ(errorOfHarvest(), 451111);
  EXPECT_NE(cell(u"FrmMain\\ssTab\\ssTab(0)"), nullptr);
  EXPECT_EQ(cell(u"FrmMain\\ssTab\\ssTab(1)"), nullptr);
}

TEST_F(HarvestingErrorsTest, Step451112ATabsCellCannotBeInserted) {
  givenModel("FrmMain node\n  Frame1 node");
  for (const char* const other : {"First", "Frame1", "Frame2", "A"}) {
    at(other).lacks(Property::Caption);
  }
  damage(u"FrmMain");
  EXPECT_EQ(errorOfHarvest(), 451112);
  EXPECT_EQ(others_, lookups(3));
}

TEST_F(HarvestingErrorsTest, Step45112TheNodeOfATabbedControlCannotBeInserted) {
  givenModel("FrmMain node");
  for (const char* const other : {"First", "A"}) {
    at(other).lacks(Property::Caption);
  }
  at("ssTab").answers(Property::Tag, u"Vente");
  damage(u"FrmMain");
  EXPECT_EQ(errorOfHarvest(), 45112);
  EXPECT_EQ(others_, lookups(2));
}

TEST_F(HarvestingErrorsTest, Step451211AKnownTabsEntriesAreDamaged) {
  givenModel("FrmMain node\n  ssTab node\n    ssTab(0) control left=1 width=1");
  cell(u"FrmMain\\ssTab\\ssTab(0)")->ColTraduction()->Add(nullptr);
  EXPECT_EQ(errorOfHarvest(), 451211);
}

TEST_F(HarvestingErrorsTest, Step4512212ATabBelowAKnownCellCannotBeInserted) {
  givenModel("FrmMain node\n  ssTab node");
  at("ssTab").answers(Property::Tag, u"Vente");
  damage(u"FrmMain\\ssTab");
  EXPECT_EQ(errorOfHarvest(), 4512212);
}

TEST_F(HarvestingErrorsTest, Step4512222AnUnchangedTabLeavesNothingForTheNext) {
  at("ssTab").answers(Property::Tag, u"Vente");
  harvest();
  EXPECT_EQ(errorOfHarvest(), 4512222);
  EXPECT_EQ(others_, "");
}

TEST_F(HarvestingErrorsTest, Step4512222ARefusedTabLeavesNothingForTheNext) {
  at("ssTab").answers(Property::Tag, u"Vente");
  givenModel("FrmMain node\n  ssTab node\n    Vente message");
  EXPECT_EQ(errorOfHarvest(), 4512222);
}

TEST_F(HarvestingErrorsTest, ATabThatCannotBePutBackEndsTheCall) {
  at("ssTab").refusesFromWrite(Property::Tab, 3);
  EXPECT_GT(errorOfHarvest(), 451);
  EXPECT_NE(cell(u"FrmMain\\ssTab\\ssTab(1)"), nullptr);
  EXPECT_FALSE(lateIsThere());
}

TEST_F(HarvestingErrorsTest, Step4521ANewControlsCellCannotBeInserted) {
  givenModel("FrmMain node");
  damage(u"FrmMain");
  EXPECT_EQ(errorOfHarvest(), 4521);
  EXPECT_EQ(others_, lookups(2));
}

TEST_F(HarvestingErrorsTest, Step4522AKnownControlsEntriesAreDamaged) {
  givenModel("FrmMain node\n  First control left=1 width=1");
  cell(u"FrmMain\\First")->ColTraduction()->Add(nullptr);
  EXPECT_EQ(errorOfHarvest(), 4522);
  EXPECT_FALSE(lateIsThere());
}

TEST_F(HarvestingErrorsTest, Step4522AKnownEntryHasNoTexts) {
  givenModel("FrmMain node\n  First control left=1 width=1\n    .Caption \"x\"");
  cell(u"FrmMain\\First")->ColTraduction()->Item(1)->setColTraduction(nullptr);
  EXPECT_EQ(errorOfHarvest(), 4522);
}

TEST_F(HarvestingErrorsTest, AControlAloneStep2) {
  model.Racine()->ColCell()->Add(nullptr);
  EXPECT_EQ(errorOf([this] { harvestControl("First", u"Achats"); }), 2);
}

TEST_F(HarvestingErrorsTest, AControlAloneStep431) {
  model.Racine()->ColCell()->Add(nullptr);
  EXPECT_EQ(errorOf([this] { harvestControl("First"); }), 431);
}

TEST_F(HarvestingErrorsTest, AControlAloneHasNoStep451) {
  at("ssTab").lacks(Property::Tab);
  EXPECT_EQ(errorOf([this] { harvestControl("ssTab"); }), 45);
}

TEST_F(HarvestingErrorsTest, AControlAloneStep451111) {
  at("ssTab").lacks(Property::ToolTipText);
  EXPECT_EQ(errorOf([this] { harvestControl("ssTab"); }), 451111);
}

TEST_F(HarvestingErrorsTest, AControlAloneStep4521) {
  givenModel("FrmMain node");
  damage(u"FrmMain");
  EXPECT_EQ(errorOf([this] { harvestControl("First"); }), 4521);
}

TEST_F(HarvestingErrorsTest, AControlAloneStep4522) {
  givenModel("FrmMain node\n  First control left=1 width=1");
  cell(u"FrmMain\\First")->ColTraduction()->Add(nullptr);
  EXPECT_EQ(errorOf([this] { harvestControl("First"); }), 4522);
}

}  // namespace
}  // namespace kob::testing
