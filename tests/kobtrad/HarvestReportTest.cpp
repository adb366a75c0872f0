// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LogicTest.h"

#include <CommandBoxes.h>
#include <HarvestReport.h>
#include <tests/doubles/ScriptedForm.h>

#include <optional>

namespace kob::command {
namespace {

/// What a harvest tells, on scripted forms.
class HarvestReportTest : public LogicTest {
 protected:
  void form(std::string_view text) { form_.emplace(text); }
  /// The lines of a harvest; questions get this answer.
  std::string told(bool answer = false, TextView module = {}) {
    CommandBoxes boxes([answer](const std::string&) { return answer; });
    std::string lines = "\n";
    for (const HarvestedText& text : harvest(model, form_->form(), module)) {
      lines += describe(text);
    }
    notices_ = boxes.takeNotices();
    return lines;
  }

  std::optional<kob::testing::ScriptedForm> form_;
  std::vector<std::string> notices_;
};

constexpr std::string_view main = R"(
  form FrmMain Caption="Accueil"
    button cmdOk Caption="Valider" ToolTipText="Envoyer"
)";
constexpr std::string_view changed = R"(
  form FrmMain Caption="Entrée"
    button cmdOk Caption="OK" ToolTipText="Envoyer"
)";

TEST_F(HarvestReportTest, all_is_new_at_first) {
  form(main);
  EXPECT_EQ(told(), R"(
new        FrmMain  Caption  "Accueil"
new        FrmMain\cmdOk  Caption  "Valider"
new        FrmMain\cmdOk  ToolTip  "Envoyer"
)");
}

TEST_F(HarvestReportTest, all_is_unchanged_the_second_time) {
  form(main);
  told();
  EXPECT_EQ(told(), R"(
unchanged  FrmMain  Caption  "Accueil"
unchanged  FrmMain\cmdOk  Caption  "Valider"
unchanged  FrmMain\cmdOk  ToolTip  "Envoyer"
)");
}

TEST_F(HarvestReportTest, a_refused_text_stays_and_is_told) {
  form(main);
  told();
  form(changed);
  EXPECT_EQ(told(false), R"(
changed    FrmMain  Caption  "Accueil" -> "Entrée"
refused    FrmMain\cmdOk  Caption  "Valider" -> "OK"
unchanged  FrmMain\cmdOk  ToolTip  "Envoyer"
)");
}

TEST_F(HarvestReportTest, an_accepted_text_is_changed) {
  form(main);
  told();
  form(changed);
  EXPECT_EQ(told(true), R"(
changed    FrmMain  Caption  "Accueil" -> "Entrée"
changed    FrmMain\cmdOk  Caption  "Valider" -> "OK"
unchanged  FrmMain\cmdOk  ToolTip  "Envoyer"
)");
}

TEST_F(HarvestReportTest, a_message_at_the_place_of_a_control_leaves_it_out) {
  given(R"(
    FrmMain node
      cmdOk message
        . "Bonjour"
  )");
  form(main);
  EXPECT_EQ(told(), R"(
new        FrmMain  Caption  "Accueil"
left out   FrmMain\cmdOk  Caption  "Valider"
left out   FrmMain\cmdOk  ToolTip  "Envoyer"
)");
}

TEST_F(HarvestReportTest, a_context_with_the_texts_of_its_control_is_unchanged) {
  form(main);
  told();
  form(R"(
    form FrmMain Caption="Accueil"
      button cmdOk Caption="Valider" ToolTipText="Envoyer" tag="Vente"
  )");
  EXPECT_EQ(told(), R"(
unchanged  FrmMain  Caption  "Accueil"
unchanged  FrmMain\cmdOk\Vente  Caption  "Valider"
unchanged  FrmMain\cmdOk\Vente  ToolTip  "Envoyer"
)");
}

TEST_F(HarvestReportTest, a_module_stands_before_the_paths) {
  form(R"(form FrmMain Caption="Accueil")");
  EXPECT_EQ(told(false, u"Ventes"), "\nnew        Ventes\\FrmMain  Caption  \"Accueil\"\n");
}

TEST_F(HarvestReportTest, what_goes_wrong_is_said_once) {
  form("form FrmMain -Name");
  told();
  EXPECT_EQ(notices_, std::vector<std::string>{"ERREUR 1"});
}

TEST_F(HarvestReportTest, the_language_count_stays_that_of_the_model) {
  form(main);
  told();
  EXPECT_EQ(model.NbLangues(), 3);
  EXPECT_EQ(cell(u"FrmMain").ColWidth()->Count(), 3);
}

}  // namespace
}  // namespace kob::command
