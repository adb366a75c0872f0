// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveForms.h"
#include "LiveModel.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QLineEdit>
#include <QPointer>

#include <gmock/gmock.h>

#include <memory>

namespace kob::qt::live {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct BadInput : testing::Test {
  KOBModeleTraduction model;
  RecordedBoxes boxes;
};

TEST_F(BadInput, NoWidgetIsNoHostObject) {
  EXPECT_EQ(hostForm(nullptr), nullptr);
  EXPECT_EQ(hostControl(static_cast<QWidget*>(nullptr)), nullptr);
  EXPECT_EQ(hostControl(static_cast<QAction*>(nullptr)), nullptr);
}

TEST_F(BadInput, ANullFormEndsWithAMessage) {
  model.UpdateWithForm(nullptr);
  EXPECT_THAT(boxes.notices, ElementsAre("ERREUR 1"));
  model.TraduitDialog(nullptr, 1);
  EXPECT_THAT(boxes.notices, ElementsAre("ERREUR 1", "ERREUR"));
  EXPECT_EQ(print(model), "");
}

TEST_F(BadInput, ANullControlIsHarvestedAsNothingAndCannotBeApplied) {
  model.UpdateWithCtrl(nullptr);
  EXPECT_EQ(print(model), "");
  EXPECT_THAT(boxes.notices, IsEmpty());
  model.TraduitControle(nullptr, 1);
  EXPECT_THAT(boxes.notices, ElementsAre("ERREUR"));
  EXPECT_EQ(utf8(model.GetPath(nullptr)), "\\");
}

TEST_F(BadInput, ADeletedFormAndControlAnswerNothing) {
  auto form = std::make_unique<ClientDialog>();
  const HostRef host = hostForm(form.get());
  const HostRef control = hostControl(form->lblNom);
  form.reset();
  model.UpdateWithForm(host);
  model.TraduitDialog(host, 1);
  model.UpdateWithCtrl(control);
  model.TraduitControle(control, 1);
  EXPECT_THAT(boxes.notices, ElementsAre("ERREUR 1", "ERREUR", "ERREUR"));
  EXPECT_EQ(print(model), "");
}

TEST_F(BadInput, AFormWithoutControlsHasATitle) {
  QWidget form;
  form.setObjectName(QStringLiteral("Vide"));
  form.setWindowTitle(QStringLiteral("Rien"));
  model.UpdateWithForm(hostForm(&form));
  EXPECT_EQ(print(model), "Vide Caption \"Rien\"\n");
  setCaption(model, u"Vide", 2, u"Nothing");
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(form.windowTitle(), QStringLiteral("Nothing"));
  EXPECT_THAT(boxes.notices, IsEmpty());
}

TEST_F(BadInput, ALanguageOutOfRangeWritesNothingAndTellsForEachControl) {
  ClientDialog form;
  model.UpdateWithForm(hostForm(&form));
  const std::string before = printTexts(form);
  for (const std::int32_t langue : {0, -1, 7, 2147483647, -2147483647 - 1}) {
    boxes.notices.clear();
    model.TraduitDialog(hostForm(&form), langue);
    EXPECT_EQ(printTexts(form), before) << langue;
    EXPECT_THAT(boxes.notices, SizeIs(5));
    EXPECT_THAT(boxes.notices, Each(std::string("Erreur Traduit Controle")));
    boxes.notices.clear();
    model.TraduitControle(hostControl(form.lblNom), langue);
    EXPECT_THAT(boxes.notices, ElementsAre("Erreur Traduit Controle"));
  }
  EXPECT_EQ(printTexts(form), before);
}

TEST_F(BadInput, AControlThatVanishesWhileAQuestionIsOpenIsLeftOut) {
  ClientDialog form;
  QPushButton* last = addButton(form, "btnDernier", "Dernier", "Le dernier");
  model.UpdateWithForm(hostForm(&form));
  form.btnOk->setText(QStringLiteral("Accepter"));
  last->setText(QStringLiteral("Ultime"));
  boxes.whileOpen = [&last] { delete std::exchange(last, nullptr); };
  model.UpdateWithForm(hostForm(&form));
  EXPECT_THAT(boxes.questions, SizeIs(1));
  EXPECT_THAT(boxes.notices, IsEmpty());
  EXPECT_THAT(print(model), testing::HasSubstr("btnDernier Caption \"Dernier\" ToolTip \"Le dernier\"\n"));
  EXPECT_THAT(print(model), testing::HasSubstr("btnOk Caption \"Accepter\""));
}

TEST_F(BadInput, AFormThatVanishesWhileAQuestionIsOpenLosesNothing) {
  auto form = std::make_unique<ClientDialog>();
  model.UpdateWithForm(hostForm(form.get()));
  const std::string before = print(model);
  form->btnOk->setText(QStringLiteral("Accepter"));
  boxes.answer = false;
  boxes.whileOpen = [&form] { form.reset(); };
  model.UpdateWithForm(hostForm(form.get()));
  EXPECT_EQ(print(model), before);
  EXPECT_EQ(form, nullptr);
}

TEST_F(BadInput, AControlThatVanishesWhileALanguageIsAppliedIsLeftOut) {
  ClientDialog form;
  model.UpdateWithForm(hostForm(&form));
  setCaption(model, u"FrmClients", 2, u"Customers");
  setCaption(model, u"FrmClients\\lblNom", 2, u"Name");
  setCaption(model, u"FrmClients\\btnOk", 2, u"Fine");
  const QPointer<QPushButton> button = form.btnOk;
  QObject::connect(&form, &QWidget::windowTitleChanged, &form, [&form] { delete form.btnOk; });
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_TRUE(button.isNull());
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Name"));
  EXPECT_THAT(boxes.notices, IsEmpty());
}

TEST_F(BadInput, AControlThatDeletesAnotherWhileItsTextIsWritten) {
  MainForm form;
  model.UpdateWithForm(hostForm(&form));
  setCaption(model, u"FenPrincipale\\actQuitter", 2, u"Quit");
  setCaption(model, u"FenPrincipale\\mnuFichier", 2, u"File");
  setCaption(model, u"FenPrincipale\\barre\\btnOuvrir", 2, u"Open");
  const QPointer<QAction> entry = form.actNouveau;
  QObject::connect(form.actQuitter, &QAction::changed, &form, [entry] { delete entry.data(); });
  QObject::connect(form.actRecent, &QAction::changed, &form, [entry] { delete entry.data(); });
  setCaption(model, u"FenPrincipale\\barre\\btnOuvrir\\actRecent", 2, u"Recent");
  setCaption(model, u"FenPrincipale\\barre\\btnOuvrir\\actNouveau", 2, u"New");
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_TRUE(entry.isNull());
  EXPECT_EQ(form.actRecent->text(), QStringLiteral("Recent"));
  EXPECT_EQ(form.actQuitter->text(), QStringLiteral("Quit"));
  EXPECT_THAT(boxes.notices, IsEmpty());
}

TEST_F(BadInput, AModuleWithASeparatorIsOneNameWhenHarvestedAndAPathWhenApplied) {
  ClientDialog form;
  model.UpdateWithForm(hostForm(&form), u"Achats\\Nord");
  ASSERT_EQ(model.Racine()->ColCell()->Count(), 1);
  EXPECT_EQ(utf8(model.Racine()->ColCell()->Item(1)->nom()), "Achats\\Nord");
  form.lblNom->setText(QStringLiteral("changed"));
  model.TraduitDialog(hostForm(&form), 1, u"Achats\\Nord");
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("changed"));
  EXPECT_THAT(boxes.notices, IsEmpty());
}

}  // namespace
}  // namespace kob::qt::live
