// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveForms.h"
#include "LiveModel.h"

#include <kobtraductionqt/KOBTraductionQt.h>
#include <kobtraductionqt/LanguageSwitcher.h>

#include <QSignalSpy>

#include <gmock/gmock.h>

#include <memory>

namespace kob::qt::live {
namespace {

using testing::IsEmpty;

struct Switcher : testing::Test {
  Switcher() {
    model.UpdateWithForm(hostForm(&form));
    setCaption(model, u"FrmClients\\lblNom", 2, u"Name");
    setCaption(model, u"FrmClients\\lblNom", 3, u"Naam");
    setCaption(model, u"FrmClients\\btnOk", 2, u"Fine");
  }

  /// The cell answers every language with a message: its factors are gone.
  void damageLabel() {
    const auto factors = model.GetCell(u"FrmClients\\lblNom")->ColLeft();
    while (factors->Count() > 0) {
      factors->Remove(1);
    }
  }

  ClientDialog form;
  KOBModeleTraduction model;
  RecordedBoxes boxes;
};

TEST_F(Switcher, StartsInTheReferenceLanguage) {
  LanguageSwitcher switcher(model);
  EXPECT_EQ(switcher.language(), 1);
  const std::string before = printTexts(form);
  switcher.addForm(&form);
  EXPECT_EQ(printTexts(form), before);
}

TEST_F(Switcher, ShowsEveryRegisteredFormInTheNewLanguageAtOnce) {
  ClientDialog other;
  LanguageSwitcher switcher(model);
  switcher.addForm(&form);
  switcher.addForm(&other);
  switcher.setLanguage(2);
  EXPECT_EQ(switcher.language(), 2);
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Name"));
  EXPECT_EQ(other.lblNom->text(), QStringLiteral("Name"));
}

TEST_F(Switcher, AFormRegisteredLaterTakesThePresentLanguage) {
  LanguageSwitcher switcher(model);
  switcher.setLanguage(2);
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Nom"));
  switcher.addForm(&form);
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Name"));
}

TEST_F(Switcher, GoesThroughLanguagesAndBack) {
  LanguageSwitcher switcher(model);
  const std::string before = printTexts(form);
  switcher.addForm(&form);
  switcher.setLanguage(2);
  switcher.setLanguage(3);
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Naam"));
  EXPECT_EQ(form.btnOk->text(), QStringLiteral("OK")) << "no text in 3: the reference, not language 2";
  switcher.setLanguage(1);
  EXPECT_EQ(printTexts(form), before);
}

TEST_F(Switcher, IgnoresLanguagesOutOfRange) {
  LanguageSwitcher switcher(model);
  const QSignalSpy changes(&switcher, &LanguageSwitcher::languageChanged);
  switcher.addForm(&form);
  switcher.setLanguage(2);
  for (const std::int32_t langue : {0, -1, model.NbLangues() + 1, 2147483647}) {
    switcher.setLanguage(langue);
    EXPECT_EQ(switcher.language(), 2);
    EXPECT_EQ(form.lblNom->text(), QStringLiteral("Name"));
  }
  EXPECT_EQ(changes.count(), 1);
  EXPECT_THAT(boxes.notices, IsEmpty());
}

TEST_F(Switcher, TellsTheNewLanguageOnceAndWhenEveryFormShowsIt) {
  ClientDialog other;
  LanguageSwitcher switcher(model);
  switcher.addForm(&form);
  switcher.addForm(&other);
  std::vector<int> told;
  QObject::connect(&switcher, &LanguageSwitcher::languageChanged, &form, [&](int langue) {
    told.push_back(langue);
    EXPECT_EQ(form.lblNom->text(), QStringLiteral("Name"));
    EXPECT_EQ(other.lblNom->text(), QStringLiteral("Name"));
  });
  switcher.setLanguage(2);
  switcher.setLanguage(2);
  switcher.refresh();
  EXPECT_THAT(told, testing::ElementsAre(2));
}

TEST_F(Switcher, RefreshShowsEditedTexts) {
  LanguageSwitcher switcher(model);
  switcher.addForm(&form);
  switcher.setLanguage(2);
  setCaption(model, u"FrmClients\\lblNom", 2, u"Surname");
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Name"));
  switcher.refresh();
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Surname"));
}

TEST_F(Switcher, ModuleChoosesTheCells) {
  model.UpdateWithForm(hostForm(&form), u"Achats");
  setCaption(model, u"Achats\\FrmClients\\lblNom", 2, u"Buyer");
  LanguageSwitcher switcher(model);
  switcher.addForm(&form, QStringLiteral("Achats"));
  switcher.setLanguage(2);
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Buyer"));
  switcher.addForm(&form);
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Name")) << "registering again takes the new module";
}

TEST_F(Switcher, ARemovedFormStaysAsItIs) {
  LanguageSwitcher switcher(model);
  switcher.addForm(&form);
  switcher.setLanguage(2);
  switcher.removeForm(&form);
  switcher.setLanguage(3);
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Name"));
  switcher.addForm(&form);
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Naam"));
}

TEST_F(Switcher, NoFormAndUnknownFormsAreIgnored) {
  LanguageSwitcher switcher(model);
  switcher.addForm(nullptr);
  switcher.removeForm(nullptr);
  switcher.removeForm(&form);
  switcher.setLanguage(2);
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Nom"));
}

TEST_F(Switcher, FormsMayBeDeletedAtAnyTime) {
  LanguageSwitcher switcher(model);
  auto doomed = std::make_unique<ClientDialog>();
  switcher.addForm(doomed.get());
  switcher.addForm(&form);
  switcher.setLanguage(2);
  doomed.reset();
  switcher.setLanguage(3);
  switcher.refresh();
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Naam"));
}

TEST_F(Switcher, AFormDeletedWhileAMessageIsOpen) {
  auto doomed = std::make_unique<ClientDialog>();
  LanguageSwitcher switcher(model);
  switcher.addForm(doomed.get());
  switcher.addForm(&form);
  damageLabel();
  boxes.whileOpen = [&doomed] { doomed.reset(); };
  switcher.setLanguage(2);
  EXPECT_EQ(doomed, nullptr);
  EXPECT_EQ(switcher.language(), 2);
  EXPECT_EQ(form.btnOk->text(), QStringLiteral("Fine"));
}

TEST_F(Switcher, TheSwitcherDeletedWhileAMessageIsOpen) {
  auto switcher = std::make_unique<LanguageSwitcher>(model);
  switcher->addForm(&form);
  damageLabel();
  boxes.whileOpen = [&switcher] { switcher.reset(); };
  switcher->setLanguage(2);
  EXPECT_EQ(switcher, nullptr);
  EXPECT_FALSE(boxes.notices.empty());
}

TEST_F(Switcher, AFormRemovedWhileAMessageIsOpenIsNotPutBackLater) {
  LanguageSwitcher switcher(model);
  switcher.addForm(&form);
  setWidthFactor(model, u"FrmClients\\btnOk", 2, 2);
  damageLabel();
  boxes.whileOpen = [&] { switcher.removeForm(&form); };
  switcher.setLanguage(2);
  boxes.whileOpen = nullptr;
  ASSERT_EQ(form.btnOk->width(), 150);
  switcher.setLanguage(1);
  switcher.addForm(&form);
  EXPECT_EQ(form.btnOk->width(), 150);
}

TEST_F(Switcher, ALanguageSetWhileAMessageIsOpenIsTheOneThatAllFormsShowInTheEnd) {
  ClientDialog other;
  LanguageSwitcher switcher(model);
  switcher.addForm(&form);
  switcher.addForm(&other);
  damageLabel();
  setCaption(model, u"FrmClients\\btnOk", 3, u"Goed");
  std::vector<int> told;
  QObject::connect(&switcher, &LanguageSwitcher::languageChanged, &form, [&](int langue) {
    told.push_back(langue);
    EXPECT_EQ(form.btnOk->text(), QStringLiteral("Goed"));
    EXPECT_EQ(other.btnOk->text(), QStringLiteral("Goed"));
  });
  bool isFirst = true;
  boxes.whileOpen = [&] {
    if (std::exchange(isFirst, false)) {
      switcher.setLanguage(3);
    }
  };
  switcher.setLanguage(2);
  EXPECT_EQ(switcher.language(), 3);
  EXPECT_EQ(form.btnOk->text(), QStringLiteral("Goed"));
  EXPECT_EQ(other.btnOk->text(), QStringLiteral("Goed"));
  EXPECT_THAT(told, testing::ElementsAre(3));
}

}  // namespace
}  // namespace kob::qt::live
