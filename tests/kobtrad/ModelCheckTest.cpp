// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LogicTest.h"

#include <ModelCheck.h>

#include <limits>

namespace kob::command {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// "path: problem" for each finding.
class ModelCheckTest : public LogicTest {
 protected:
  std::vector<std::string> findings() {
    std::vector<std::string> lines;
    for (const Finding& finding : check(model)) {
      lines.push_back(finding.path + ": " + finding.problem);
    }
    return lines;
  }
};

TEST_F(ModelCheckTest, a_harvested_model_is_fine) {
  given(R"(
    FrmMain node control
      .Caption "Accueil" 2="Home"
      Label1 control left=1 width=-1 width[2]=1.5
        .Caption "Nom"
        .ToolTip "Son nom"
    Achats node
      Titre message
        . "Bonjour" 3="Hallo"
  )");
  EXPECT_THAT(findings(), IsEmpty());
}

TEST_F(ModelCheckTest, an_empty_model_is_fine) {
  EXPECT_THAT(findings(), IsEmpty());
}

TEST_F(ModelCheckTest, finds_another_name_of_the_root) {
  model.Racine()->setnom(u"ROOT");
  EXPECT_THAT(findings(), ElementsAre(": the root is named \"ROOT\" and not \"RACINE\""));
}

TEST_F(ModelCheckTest, finds_a_cell_that_hides_behind_its_namesake) {
  given(R"(
    FrmMain node
      a message
        . "x"
      A message
        . "y"
  )");
  EXPECT_THAT(findings(), ElementsAre("FrmMain: two children are named \"A\": only the first is found"));
}

TEST_F(ModelCheckTest, finds_names_that_no_path_can_spell) {
  given("FrmMain node");
  cell(u"FrmMain").AddNoeuds(u"a\\b");
  cell(u"FrmMain").AddMessage(u"x", u"Bonjour")->setnom(u"");
  EXPECT_THAT(findings(), ElementsAre(HasSubstr("FrmMain\\a\\b: a name with a \"\\\" in it"),
                                      HasSubstr("FrmMain\\: a cell without a name")));
}

TEST_F(ModelCheckTest, finds_a_node_named_like_the_root) {
  given("FrmMain node");
  cell(u"FrmMain").AddNoeuds(u"RACINE");
  EXPECT_THAT(findings(), ElementsAre(HasSubstr("FrmMain\\RACINE: named like the root")));
}

TEST_F(ModelCheckTest, finds_a_cell_that_stands_at_two_places) {
  given("FrmMain node");
  const auto shared = cell(u"FrmMain").AddMessage(u"Titre", u"Bonjour");
  model.Racine()->ColCell()->Add(shared);
  EXPECT_THAT(findings(), ElementsAre(HasSubstr("the same cell stands here and elsewhere")));
}

TEST_F(ModelCheckTest, a_cell_below_itself_does_not_hold_it_up) {
  given("FrmMain node");
  cell(u"FrmMain").ColCell()->Add(model.GetCell(u"FrmMain"));
  EXPECT_THAT(findings(), ElementsAre(HasSubstr("the same cell stands here and elsewhere")));
  cell(u"FrmMain").ColCell()->Remove(1);
}

TEST_F(ModelCheckTest, finds_missing_lists_and_items) {
  given(R"(
    a node
    b message
    c control
    d control
    e control
    f control
  )");
  cell(u"a").setColCell(nullptr);
  cell(u"b").setTraduction(nullptr);
  cell(u"c").setColTraduction(nullptr);
  cell(u"d").setColLeft(nullptr);
  cell(u"e").setColWidth(nullptr);
  cell(u"f").ColTraduction()->Add(nullptr);
  EXPECT_THAT(findings(), ElementsAre("a: a node without a list of children", "b: a message without its text",
                                      "c: a control without a list of texts",
                                      "d: a control without its list of left factors",
                                      "e: a control without its list of width factors",
                                      "f: a text of a control that is nothing"));
}

TEST_F(ModelCheckTest, finds_a_child_that_is_nothing) {
  model.Racine()->ColCell()->Add(nullptr);
  EXPECT_THAT(findings(), ElementsAre(HasSubstr("a child that is nothing")));
}

TEST_F(ModelCheckTest, finds_texts_that_no_form_shows) {
  given(R"(
    Label1 control
      .Texte "Nom"
      .Caption "a"
      .CAPTION "b"
  )");
  EXPECT_THAT(findings(),
              ElementsAre("Label1: a text named \"Texte\": only Caption and ToolTip are ever shown",
                          "Label1: two texts named \"CAPTION\": only the last is shown"));
}

TEST_F(ModelCheckTest, finds_a_translation_of_nothing) {
  given(R"(
    Titre message
      . "" 3="Hallo"
  )");
  EXPECT_THAT(findings(), ElementsAre("Titre: Message has a text in language 3 and none in language 1"));
}

TEST_F(ModelCheckTest, finds_lists_that_are_too_short) {
  given(R"(
    Label1 control
      .Caption "Nom"
  )");
  cell(u"Label1").ColTraduction()->Item(1)->ColTraduction()->Remove(3);
  cell(u"Label1").ColWidth()->Remove(3);
  EXPECT_THAT(findings(), ElementsAre("Label1: Caption has 2 texts for 3 languages",
                                      "Label1: 2 width factors for 3 languages"));
}

TEST_F(ModelCheckTest, finds_a_factor_that_is_no_number) {
  given("Label1 control");
  cell(u"Label1").ChangeLeft(std::numeric_limits<double>::quiet_NaN(), 2);
  EXPECT_THAT(findings(), ElementsAre(HasSubstr("the left factor of language 2")));
}

}  // namespace
}  // namespace kob::command
