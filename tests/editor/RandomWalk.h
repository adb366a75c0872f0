// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "RandomModel.h"
#include "Restatement.h"
#include "tests/doubles/Difference.h"
#include "tests/doubles/RecordedMessages.h"
#include "tests/doubles/ScriptedService.h"

#include <gtest/gtest.h>
#include <kobtraduction/editor/DialogWindow.h>

#include <optional>
#include <string>
#include <utility>

namespace kob::testing {

/// One opening of the editor on a random model, and beside it the restated rules on its twin. The toolkit
/// brings the windows, the person in front of them, what is seen there and, where it can, the answer for a
/// file name.
template <class Toolkit>
class Walk {
 public:
  using Person = typename Toolkit::Person;

  explicit Walk(std::uint32_t seed) : dice_(seed) {
    Dice same = dice_;
    fillRandomly(model_, dice_);
    fillRandomly(twin_, same);
    if (dice_.rarely(12)) {
      // All entries have six texts still; the seventh language is counted, and missed.
      Global_Util::setNbLangues(dice_.rarely(2) ? 7 : 3);
    }
  }

  /// Opens the editor and acts at most so often; how often it was.
  int run(int actions) {
    const std::int32_t mode = dice_.rarely(4) ? 1 : 0;
    const Text path = dice_.rarely(2) ? Text() : anyName(dice_) + u"\\" + anyName(dice_);
    const auto expected = failureOf([&] { restated_.emplace(twin_, mode, path); });
    std::optional<FailureKind> met;
    saved_ = printed(model_);
    toolkit_.whenShown(DialogKind::Traduction, [&](Person& person) {
      agree(person);
      while (done_ < actions && !met && !::testing::Test::HasFailure()) {
        ++done_;
        met = failureOf([&] { act(person); });
        EXPECT_EQ(person.window.isShown(), !met) << action_;
        if (!met) {
          agree(person);
        }
      }
    });
    const auto failure = failureOf([&] { model_.Show(mode, path); });
    EXPECT_EQ(failure, expected ? expected : met) << action_;
    sameModel();
    return done_;
  }

 private:
  void sameModel() const {
    const std::string recorded = printed(model_);
    const std::string told = printed(twin_);
    if (recorded != told) {
      ADD_FAILURE() << "after " << action_ << " the model differs\n" << difference(told, recorded);
    }
  }

  void agree(const Person& person) {
    const Screen screen = Toolkit::seen(person);
    if (!(screen == restated_->screen)) {
      ADD_FAILURE() << "after " << action_ << " the screen differs\n"
                    << difference(restated_->screen.printed(), screen.printed());
    }
    sameModel();
    EXPECT_TRUE(Toolkit::isShownModified(person) || printed(model_) == saved_) << action_;
    EXPECT_EQ(messages_.take(), std::exchange(restated_->boxes, {})) << action_;
  }

  std::size_t slot() { return static_cast<std::size_t>(dice_.roll(6)); }

  /// Lets the person do something, and restates it when it could be done. Fails as the restatement does.
  void act(Person& person) {
    Restatement& also = *restated_;
    const std::size_t i = slot();
    const auto index = static_cast<std::int32_t>(i);
    const Text text = anyText(dice_);
    const Text name = anyName(dice_);
    const bool yes = dice_.rarely(2);
    const std::int32_t value = 10 + dice_.roll(391);
    const std::int32_t line =
        dice_.roll(static_cast<std::int32_t>(person.lines(u"LstNomTrad").size()) + 1) - 1;
    const std::int32_t node = dice_.roll(Toolkit::nodes(person) + 1);
    const std::int32_t what = dice_.roll(22);
    action_ = "action " + std::to_string(what);
    switch (what) {
      case 0:
      case 1:
      case 2:
        return person.clickNode(node) ? also.clickNode(static_cast<std::size_t>(node)) : void();
      case 3:
        return person.type(u"tbNom", name) ? also.typeNom(name) : void();
      case 4:
        return person.type(u"tbAlias", text) ? also.typeAlias(text) : void();
      case 5:
        return person.type(u"tbContexte", text) ? also.typeContextName(text) : void();
      case 6:
        return person.type(u"tbTradMessage", index, text) ? also.typeMessage(i, text) : void();
      case 7:
      case 8:
        return person.type(u"tbTradCtrl", index, text) ? also.typeControl(i, text) : void();
      case 9:
        return person.choose(u"OptTypFeuille", index % 3) ? also.chooseKind(index % 3) : void();
      case 10:
        return person.check(u"chkContexte") ? also.checkContext() : void();
      case 11:
        return person.clickLine(u"LstNomTrad", line) ? also.clickName(line) : void();
      case 12:
        return addCell(person);
      case 13:
        messages_.answer(yes);
        return person.press(u"bSupp") ? finishQuestion([&] { also.deleteCell(yes); }) : forgetAnswer();
      case 14:
        return addName(person, name);
      case 15:
        messages_.answer(yes);
        return person.press(u"bSupTrad") ? finishQuestion([&] { also.deleteName(yes); }) : forgetAnswer();
      case 16:
        return person.check(u"chkPosition") ? also.checkPosition() : void();
      case 17:
        return person.move(u"sldLeft", index, value) ? also.moveLeft(i, value) : void();
      case 18:
        return person.move(u"sldwidth", index, value) ? also.moveWidth(i, value) : void();
      case 19:
        return yes ? (person.press(u"bl1", index) ? also.resetLeft(i) : void())
                   : (person.press(u"bw1", index) ? also.resetWidth(i) : void());
      case 20:
        if constexpr (requires { toolkit_.saveAs(person, text); }) {
          toolkit_.saveAs(person, text);
        } else {
          return;
        }
        also.saveAs(text);
        if (!text.empty()) {
          saved_ = printed(model_);
        }
        return;
      default:
        return search(person, text);
    }
  }

  /// An answer that was not asked for must not answer the next question.
  template <class Action>
  void finishQuestion(Action action) {
    action();
    forgetAnswer();
  }
  void forgetAnswer() {
    if (restated_->boxes.find("question") == std::string::npos) {
      messages_.question(u"", {}, MessageIcon::None);
      const std::string shown = messages_.take();
      EXPECT_EQ(shown.find("question \"\""), 0U) << shown;
    }
  }

  void addCell(Person& person) {
    NewCell cell{dice_.rarely(2), anyName(dice_), anyText(dice_), dice_.roll(3),
                 dice_.rarely(2), anyText(dice_), anyText(dice_)};
    toolkit_.whenShown(DialogKind::AddNoeud, [&](Person& dialog) {
      dialog.type(u"tbNom", cell.nom);
      dialog.type(u"tbAlias", cell.alias);
      dialog.choose(u"OptTypFeuille", cell.kind);
      cell.isContext = cell.isContext && dialog.check(u"chkContexte");
      dialog.type(u"tb1", cell.text1);
      dialog.type(u"tb2", cell.text2);
      dialog.press(cell.isOk ? u"bOK" : u"bCancel");
    });
    const bool could = person.press(u"bAdd");
    toolkit_.dropScripts(DialogKind::AddNoeud);
    if (could) {
      cell.isOk = cell.isOk && !cell.nom.empty();
      restated_->addCell(cell);
    }
  }

  void addName(Person& person, const Text& name) {
    const bool isOk = dice_.rarely(2);
    toolkit_.whenShown(DialogKind::AddTrad, [&](Person& dialog) {
      dialog.type(u"tbNomTrad", name);
      dialog.press(isOk ? u"bOk" : u"bCancel");
    });
    const bool could = person.press(u"bAddTrad");
    toolkit_.dropScripts(DialogKind::AddTrad);
    if (could) {
      restated_->addName(isOk && !name.empty() ? std::optional(name) : std::nullopt);
    }
  }

  void search(Person& person, const Text& text) {
    const bool isByText = dice_.rarely(2);
    const std::int32_t language = dice_.roll(5);
    const std::int32_t wanted = dice_.roll(8);
    std::optional<FailureKind> failure;
    toolkit_.whenShown(DialogKind::Recherche, [&](Person& dialog) {
      if (dialog.isChecked(u"CkSearch", 0) != isByText) {
        dialog.check(u"CkSearch", isByText ? 0 : 1);
      }
      dialog.type(u"tbSearchString", text);
      dialog.chooseLine(u"CbLangueSearch", language);
      dialog.press(u"bNewSearch");
      failure =
          failureOf([&] { isByText ? restated_->findText(text) : restated_->findUntranslated(language); });
      if (failure) {
        return;
      }
      Texts lines;
      for (const CellRef& hit : restated_->hits.value_or(std::vector<CellRef>())) {
        lines.emplace_back(hit->nom());
      }
      EXPECT_EQ(dialog.lines(u"List1"), lines);
      if (dialog.clickLine(u"List1", wanted)) {
        failure = failureOf([&] { restated_->clickHit(static_cast<std::size_t>(wanted)); });
      }
    });
    person.chooseMenu(u"m_Search");
    if (failure) {
      throw Failure(*failure);
    }
  }

  ModelTestScope scope_;
  Dice dice_;
  KOBModeleTraduction model_;
  KOBModeleTraduction twin_;
  RecordedMessages messages_;
  Toolkit toolkit_;
  ScriptedService service_;
  std::optional<Restatement> restated_;
  std::string action_ = "opening";
  std::string saved_;
  int done_ = 0;
};

}  // namespace kob::testing
